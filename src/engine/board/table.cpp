#include "engine/board/table.h"

#include <algorithm>

namespace varnello {

std::vector<PicID> Table::VisibleCards() const {
    std::vector<PicID> cards;
    cards.reserve(PicCards.size());
    for (PicID id = 0; id < kCardObjects; ++id) {
        if (Card(id).Visible) cards.push_back(id);
    }
    std::sort(cards.begin(), cards.end(),
              [&](PicID a, PicID b) { return Card(a).Height < Card(b).Height; });
    return cards;
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

void Table::Clear() {
    for (KesCard& card : PicCards) {
        card.Visible = false;
        card.Loc = {};
        card.SetValue(0, 0, 0);
    }
    ForEachSlot(*this, [](const char*, int, KesEmpty& slot) { slot.Visible = false; });
}

}  // namespace varnello
