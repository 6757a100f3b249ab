#include "engine/common/rounding.h"
#include "engine/rules/gestures.h"
#include "engine/rules/order.h"

// Where a dropped card may lie. Ties are decided by the order of the search alone: the narrow pass
// before the wide one, then tableau piles, reserves, foundations, each from 0 up.
namespace varnello {

bool Gestures::HitCard(PicID id, const Place& place, bool wide) const {
    const KesCard& card = field_.table.Card(id);
    const double left = field_.array.GetCordX(place);
    const double top = field_.array.GetCordY(place);
    const double right = left + kCardWidth;
    const double bottom = top + kCardHeight;
    if (wide) {
        return card.Top + kCardHeight > top && card.Top < bottom && card.Left + kCardWidth > left &&
               card.Left < right;
    }
    const double centreX = RoundHalfEven(card.Left + kCardWidth / 2.0);
    const double centreY = card.Top + kCardHeight / 2.0;
    return centreX > left && centreX < right && centreY > top && centreY < bottom;
}

std::optional<Place> Gestures::TargetOnTableau(PicID id, bool wide) const {
    const cGames& games = field_.games;
    const KesCard& card = field_.table.Card(id);
    for (int pile = 0; pile < games.Piles(Cell::Home); ++pile) {
        const int top = field_.array.GetTop(Cell::Home, pile);
        if (!HitCard(id, {Cell::Home, pile, top}, wide)) continue;
        bool accepted = false;
        if (top == -1) {
            accepted = games.EmptyNum() == kAnyCard || games.EmptyNum() == card.Num;
        } else if (card.Loc.Cell != Cell::Home || card.Loc.Pile != pile) {
            accepted = FitsOrder(field_.table.Card(field_.array.GetTopPicID(Cell::Home, pile)),
                                 card, games.Order(Cell::Home, 0), games.AK(Cell::Home));
        }
        if (accepted) return Place{Cell::Home, pile, top + 1};
    }
    return std::nullopt;
}

std::optional<Place> Gestures::TargetOnReserve(PicID id, bool wide) const {
    if (DragCount_ != 0) return std::nullopt;
    for (int pile = 0; pile < field_.games.Piles(Cell::Res); ++pile) {
        const Place place{Cell::Res, pile, 0};
        const bool free = field_.array.GetPicID(Cell::Res, pile, 0) == kNoCard;
        if (free && HitCard(id, place, wide)) return place;
    }
    return std::nullopt;
}

std::optional<Place> Gestures::TargetOnFoundation(PicID id, bool wide) const {
    const cGames& games = field_.games;
    if (games.Tag() == Tag::Spider || DragCount_ != 0) return std::nullopt;
    const KesCard& card = field_.table.Card(id);
    for (int pile = 0; pile < games.Piles(Cell::Goal); ++pile) {
        if (!HitCard(id, {Cell::Goal, pile, 0}, wide)) continue;
        const int top = field_.array.GetTop(Cell::Goal, pile);
        bool accepted = false;
        if (top == -1) {
            accepted = card.Num == games.GoalBase();
        } else if (top != kRanks - 1) {  // else it is full
            accepted = FitsOrder(field_.table.Card(field_.array.GetTopPicID(Cell::Goal, pile)),
                                 card, games.Order(Cell::Goal, pile), games.AK(Cell::Goal));
        }
        if (accepted) return Place{Cell::Goal, pile, top + 1};
    }
    return std::nullopt;
}

std::optional<Place> Gestures::Target(PicID id) const {
    for (const bool wide : {false, true}) {
        if (const auto place = TargetOnTableau(id, wide)) return place;
        if (const auto place = TargetOnReserve(id, wide)) return place;
        if (const auto place = TargetOnFoundation(id, wide)) return place;
    }
    return std::nullopt;
}

void Gestures::CardDrop(PicID id) {
    const auto place = Target(id);
    if (!place) return CardBack(id);
    field_.array.MoveCard({.PicID = id, .To = *place, .Speed = 3, .mCards = DragCount_});
}

}  // namespace varnello
