#include "engine/board/table.h"

#include <algorithm>

namespace varnello {

KesEmpty& Table::Slot(Cell cell, int pile) {
    const auto index = static_cast<std::size_t>(pile);
    switch (cell) {
        case Cell::Home: return PicHome.at(index);
        case Cell::Stock: return PicStock.at(index);
        case Cell::Waste: return PicWaste.at(index);
        case Cell::Goal: return PicRight.at(index);
        case Cell::Res: break;
    }
    return PicRes.at(index);
}

const std::vector<PicID>& Table::VisibleCards() const {
    const auto isVisible = [&](PicID id) { return Card(id).Visible; };
    const auto liesBehind = [&](PicID a, PicID b) { return Card(a).Height < Card(b).Height; };
    const auto visible = std::count_if(PicCards.begin(), PicCards.end(),
                                       [](const KesCard& card) { return card.Visible; });
    if (std::ssize(order_) != visible || !std::all_of(order_.begin(), order_.end(), isVisible)) {
        order_.clear();
        order_.reserve(PicCards.size());
        for (PicID id = 0; id < kCardObjects; ++id) {
            if (isVisible(id)) order_.push_back(id);
        }
    }
    if (!std::is_sorted(order_.begin(), order_.end(), liesBehind)) {
        std::sort(order_.begin(), order_.end(), liesBehind);
    }
    return order_;
}

PicID Table::CardAt(double x, double y) const {
    PicID found = kNoCard;
    for (PicID id = 0; id < kCardObjects; ++id) {
        const KesCard& card = Card(id);
        const bool covers = card.Visible && x >= card.Left && x < card.Left + kCardWidth &&
                            y >= card.Top && y < card.Top + kCardHeight;
        if (covers && (found == kNoCard || card.Height > Card(found).Height)) found = id;
    }
    return found;
}

namespace {

bool SameCard(const KesCard& a, const KesCard& b) {
    if (!a.Visible || !b.Visible) return a.Visible == b.Visible;
    const bool closed = a.FaceMode == FaceMode::Closed;
    const bool sameValue = closed || (a.Suit == b.Suit && a.Num == b.Num);
    const bool sameLook = closed || a.Selected == b.Selected;
    return a.FaceMode == b.FaceMode && sameValue && sameLook && a.Left == b.Left &&
           a.Top == b.Top && a.Height == b.Height;
}

bool SameSlot(const KesEmpty& a, const KesEmpty& b) {
    if (!a.Visible || !b.Visible) return a.Visible == b.Visible;
    return a.Picture == b.Picture && a.Left == b.Left && a.Top == b.Top;
}

}  // namespace

bool LooksSame(const Table& one, const Table& other) {
    const auto same = [](const auto& a, const auto& b, auto test) {
        return std::equal(a.begin(), a.end(), b.begin(), test);
    };
    return same(one.PicCards, other.PicCards, SameCard) &&
           same(one.PicHome, other.PicHome, SameSlot) && same(one.PicRes, other.PicRes, SameSlot) &&
           same(one.PicRight, other.PicRight, SameSlot) &&
           same(one.PicWaste, other.PicWaste, SameSlot) &&
           same(one.PicStock, other.PicStock, SameSlot);
}

void Table::Clear() {
    for (KesCard& card : PicCards) {
        card.Visible = false;
        card.Loc = {};
        card.SetValue(0, 0, 0);
    }
    ForEachSlot(*this, [](const char*, int, KesEmpty& slot) { slot.Visible = false; });
}

}  // namespace varnello
