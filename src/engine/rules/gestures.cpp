#include "engine/rules/gestures.h"

#include <algorithm>

#include "engine/common/rounding.h"
#include "engine/rules/stacks.h"
#include "engine/rules/stock.h"

namespace varnello {
namespace {

// How carried cards fan out.
constexpr int kFanDown = 250;
constexpr int kFanRight = 180;

}  // namespace

void Gestures::Reset() {
    dragging_ = false;
    DragCount_ = 0;
}

void Gestures::MouseDown(PicID id, double x, double y) {
    if (!field_.data.Playing()) return;
    Reset();
    downX_ = RoundTo16(x);
    downY_ = RoundTo16(y);
    startLeft_ = RoundTo16(field_.table.Card(id).Left);
    startTop_ = RoundTo16(field_.table.Card(id).Top);
    heldAt_ = field_.table.Card(id).Loc;
    CardDown(id);
    field_.data.PlaySound(Sound::CardDown);
}

void Gestures::MouseMove(PicID id, double x, double y) {
    if (field_.data.Playing() && dragging_ && StillHeld(id)) CardDrag(id, x, y);
}

void Gestures::MouseUp(PicID id) { EndDrag(id, &Gestures::CardDrop); }

void Gestures::PutBack(PicID id) { EndDrag(id, &Gestures::CardBack); }

void Gestures::EndDrag(PicID id, void (Gestures::*end)(PicID)) {
    if (!field_.data.Playing() || !dragging_) return;
    dragging_ = false;
    if (StillHeld(id)) {
        (this->*end)(id);
    } else {
        Settle(id);
    }
    field_.data.PlaySound(Sound::CardUp);
}

void Gestures::StockClick() {
    if (field_.data.Playing() && field_.games.StockNum() == StockNum::Redeal) Redeal(field_);
}

bool Gestures::RedealPossible() const {
    return field_.data.Playing() && field_.games.StockNum() == StockNum::Redeal &&
           field_.array.GetTop(Cell::Waste, 0) >= 0;
}

bool Gestures::StillHeld(PicID id) const {
    const Place& at = field_.table.Card(id).Loc;
    if (at != heldAt_) return false;
    if (at.Cell == Cell::Res) return true;
    const bool sameCount = field_.array.GetTop(at.Cell, at.Pile) == at.Pos + DragCount_;
    return sameCount && (DragCount_ == 0 || IsRun(field_, id, DragCount_));
}

void Gestures::Settle(PicID id) {
    const Place& at = field_.table.Card(id).Loc;
    if (at != heldAt_) return;  // the move that took it away has placed it
    for (int pos = at.Pos; pos <= field_.array.GetTop(at.Cell, at.Pile); ++pos) {
        const PicID card = field_.array.GetPicID(at.Cell, at.Pile, pos);
        const Place place{at.Cell, at.Pile, pos};
        // Only closed cards below it count: an undo may have closed it and others on it.
        const int closed = std::min(field_.array.ClosedCards(at.Pile), pos);
        PutAt(card, field_.games.GetCordX(place, closed), field_.games.GetCordY(place, closed),
              true);
    }
}

bool Gestures::IsTopCard(PicID id) const {
    const Place& at = field_.table.Card(id).Loc;
    return at.Pos == field_.array.GetTop(at.Cell, at.Pile);
}

int Gestures::CardsAbove(PicID id) const {
    const Place& at = field_.table.Card(id).Loc;
    return field_.array.GetTop(at.Cell, at.Pile) - at.Pos;
}

bool Gestures::CanLiftStack(PicID id) const {
    if (field_.table.Card(id).FaceMode == FaceMode::Closed || !field_.games.MultiMove()) {
        return false;
    }
    const int above = CardsAbove(id);
    if (!IsRun(field_, id, above)) return false;
    return !HasStackLimit(field_.games.Tag()) || above <= MaxExtraCards(field_);
}

Grip Gestures::GripOf(PicID id) const {
    if (!field_.data.Playing()) return Grip::None;
    const auto lift = [](bool possible) { return possible ? Grip::Lift : Grip::None; };
    switch (field_.table.Card(id).Loc.Cell) {
        case Cell::Home: return lift(IsTopCard(id) || CanLiftStack(id));
        case Cell::Stock:
            if (!IsTopCard(id)) return Grip::None;
            return field_.games.StockType() == StockType::Open ? Grip::Lift : Grip::Deal;
        case Cell::Waste:
        case Cell::Goal: return lift(IsTopCard(id));
        case Cell::Res: break;
    }
    return Grip::Lift;
}

void Gestures::CardDown(PicID id) {
    switch (GripOf(id)) {
        case Grip::None: break;
        case Grip::Deal: PressStockCard(id); break;
        case Grip::Lift:
            dragging_ = true;
            if (field_.table.Card(id).Loc.Cell == Cell::Home) LiftStack(id);
            break;
    }
}

void Gestures::LiftStack(PicID id) {
    const Place& at = field_.table.Card(id).Loc;
    DragCount_ = CardsAbove(id);
    for (int i = 1; i <= DragCount_; ++i) {
        const PicID carried = field_.array.GetPicID(Cell::Home, at.Pile, at.Pos + i);
        field_.table.BringToFront(carried);
        field_.array.ShowCard(carried);
    }
}

void Gestures::PressStockCard(PicID id) {
    if (field_.games.StockMove() == StockMove::Row) {
        DealRow(field_);
    } else {
        field_.array.AddtoWaste(id);
    }
}

void Gestures::PutAt(PicID id, double left, double top, bool bringToFront) {
    field_.table.Card(id).MoveTo(left, top);
    if (bringToFront) field_.table.BringToFront(id);
    field_.array.ShowCard(id);
}

void Gestures::MoveCarried(PicID id, int left, int top, bool bringToFront) {
    const Place& at = field_.table.Card(id).Loc;
    const bool right = field_.games.FansRight();
    for (int i = 1; i <= DragCount_; ++i) {
        const PicID carried = field_.array.GetPicID(Cell::Home, at.Pile, at.Pos + i);
        PutAt(carried, Saturate16(right ? left + kFanRight * i : left),
              Saturate16(right ? top : top + kFanDown * i), bringToFront);
    }
}

void Gestures::CardDrag(PicID id, double x, double y) {
    const KesCard& card = field_.table.Card(id);
    const std::int16_t left = RoundTo16(card.Left + x - downX_);
    const std::int16_t top = RoundTo16(card.Top + y - downY_);
    PutAt(id, left, top, true);
    MoveCarried(id, left, top, true);
}

void Gestures::CardBack(PicID id) {
    PutAt(id, startLeft_, startTop_, false);
    MoveCarried(id, startLeft_, startTop_, false);
}

}  // namespace varnello
