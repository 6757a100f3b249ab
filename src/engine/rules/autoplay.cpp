#include "engine/rules/autoplay.h"

#include "engine/rules/order.h"

namespace varnello {
namespace {

/// Plays the top card of each pile from 0 up.
void PlayTops(const Playfield& field, Cell cell, int piles) {
    for (int pile = 0; pile < piles; ++pile) {
        if (field.array.GetTop(cell, pile) >= 0) {
            PlayToGoal(field, field.array.GetTopPicID(cell, pile));
        }
    }
}

void PlayCardsUp(const Playfield& field) {
    if (field.data.Get(keys::Autoplay) == 0 || field.games.DisAutoPlay()) return;
    PlayTops(field, Cell::Home, field.games.Piles(Cell::Home));
    PlayTops(field, Cell::Res, field.games.Piles(Cell::Res));
    PlayTops(field, Cell::Waste, 1);
    if (field.games.StockType() == StockType::Open) PlayTops(field, Cell::Stock, 1);
}

/// Whether the top 13 cards of a tableau pile run from King to Ace in the foundations' order.
bool HasCompletedRun(const Playfield& field, int pile) {
    const int top = field.array.GetTop(Cell::Home, pile);
    if (top < kRanks - 1) return false;
    const auto card = [&](int pos) -> const KesCard& {
        return field.table.Card(field.array.GetPicID(Cell::Home, pile, pos));
    };
    if (card(top).Num != kAce) return false;
    const OrderCode order = field.games.Order(Cell::Goal, 0);
    for (int pos = top; pos > top - kRanks + 1; --pos) {
        if (!FitsOrder(card(pos), card(pos - 1), order, false)) return false;
    }
    return true;
}

void TakeRunOff(const Playfield& field, int pile) {
    cArray& array = field.array;
    int goal = field.table.Card(array.GetTopPicID(Cell::Home, pile)).Suitpile;
    if (field.games.GoalDiv() != 0) goal %= field.games.GoalDiv();
    const MultiStep step(field);
    for (int i = 0; i < kRanks; ++i) {
        array.MoveCard({.PicID = array.GetTopPicID(Cell::Home, pile),
                        .To = {Cell::Goal, goal, array.GetTop(Cell::Goal, goal) + 1},
                        .Speed = 3});
    }
}

void TakeRunsOff(const Playfield& field) {
    for (int pile = 0; pile < field.games.Piles(Cell::Home); ++pile) {
        if (HasCompletedRun(field, pile)) TakeRunOff(field, pile);
    }
}

}  // namespace

bool PlayToGoal(const Playfield& field, PicID id) {
    cArray& array = field.array;
    const KesCard& card = field.table.Card(id);
    for (int pile = 0; pile < field.games.Piles(Cell::Goal); ++pile) {
        const int top = array.GetTop(Cell::Goal, pile);
        const bool fits =
            top == -1 ? card.Num == field.games.GoalBase()
                      : FitsOrder(field.table.Card(array.GetTopPicID(Cell::Goal, pile)), card,
                                  field.games.Order(Cell::Goal, pile), field.games.AK(Cell::Goal));
        if (!fits) continue;
        array.MoveCard({.PicID = id, .To = {Cell::Goal, pile, top + 1}, .Speed = 3});
        // Heard only when the cards that followed have gone up as well.
        field.data.PlaySound(Sound::AutoPlay);
        return true;
    }
    return false;
}

void AutoPlay(const Playfield& field) {
    const cData::OneReading settings(field.data);
    if (field.games.Tag() == Tag::Spider) {
        TakeRunsOff(field);
    } else {
        PlayCardsUp(field);
    }
}

}  // namespace varnello
