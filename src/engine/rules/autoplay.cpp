#include "engine/rules/autoplay.h"

#include <optional>

#include "engine/common/rounding.h"
#include "engine/rules/order.h"

namespace varnello {
namespace {

constexpr int kRunLength = 13;

/// Plays the top card of each pile from 0 up; false when the game has ended meanwhile.
bool PlayTops(const Playfield& field, Cell cell, int piles) {
    const std::uint64_t serial = field.array.Serial();
    for (int pile = 0; pile < piles; ++pile) {
        if (field.array.GetTop(cell, pile) >= 0) {
            PlayToGoal(field, field.array.GetTopPicID(cell, pile));
        }
        if (field.array.Serial() != serial) return false;
    }
    return true;
}

void PlayCardsUp(const Playfield& field) {
    if (field.data.Get(keys::Autoplay) == 0 || field.games.DisAutoPlay()) return;
    if (!PlayTops(field, Cell::Home, field.games.Piles(Cell::Home))) return;
    if (!PlayTops(field, Cell::Res, field.games.Piles(Cell::Res))) return;
    if (!PlayTops(field, Cell::Waste, 1)) return;
    if (field.games.StockType() == StockType::Open) PlayTops(field, Cell::Stock, 1);
}

/// Whether the top 13 cards of a tableau pile run from King to Ace in the foundations' order.
bool HasCompletedRun(const Playfield& field, int pile) {
    const int top = field.array.GetTop(Cell::Home, pile);
    if (top < kRunLength - 1) return false;
    const auto card = [&](int pos) -> const KesCard& {
        return field.table.Card(field.array.GetPicID(Cell::Home, pile, pos));
    };
    if (card(top).Num != kAce) return false;
    const OrderCode order = field.games.Order(Cell::Goal, 0);
    for (int pos = top; pos > top - kRunLength + 1; --pos) {
        if (!FitsOrder(card(pos), card(pos - 1), order, false)) return false;
    }
    return true;
}

void TakeRunOff(const Playfield& field, int pile) {
    cArray& array = field.array;
    const std::uint64_t serial = array.Serial();
    std::int16_t goal = field.table.Card(array.GetTopPicID(Cell::Home, pile)).Suitpile;
    if (field.games.GoalDiv() != 0) goal = Saturate16(goal % field.games.GoalDiv());
    const MultiStep step(field);
    for (int i = 0; i < kRunLength && array.Serial() == serial; ++i) {
        const Place to{Cell::Goal, goal, Saturate16(array.GetTop(Cell::Goal, goal) + 1)};
        array.MoveCard(array.GetTopPicID(Cell::Home, pile), to, MoveKind::Play, 3, 0,
                       FaceMode::Open);
    }
}

void TakeRunsOff(const Playfield& field) {
    const std::uint64_t serial = field.array.Serial();
    for (int pile = 0; pile < field.games.Piles(Cell::Home); ++pile) {
        if (HasCompletedRun(field, pile)) TakeRunOff(field, pile);
        if (field.array.Serial() != serial) return;
    }
}

}  // namespace

bool PlayToGoal(const Playfield& field, PicID id) {
    cArray& array = field.array;
    const KesCard& card = field.table.Card(id);
    for (std::int16_t pile = 0; pile < field.games.Piles(Cell::Goal); ++pile) {
        const std::int16_t top = array.GetTop(Cell::Goal, pile);
        const bool fits =
            top == -1 ? card.Num == field.games.GoalBase()
                      : FitsOrder(field.table.Card(array.GetTopPicID(Cell::Goal, pile)), card,
                                  field.games.Order(Cell::Goal, pile), field.games.AK(Cell::Goal));
        if (!fits) continue;
        array.MoveCard(id, {Cell::Goal, pile, Saturate16(top + 1)}, MoveKind::Play, 3, 0,
                       FaceMode::Open);
        // Heard only when the cards that followed have gone up as well.
        field.data.PlaySound(Sound::AutoPlay);
        return true;
    }
    return false;
}

void AutoPlay(const Playfield& field) {
    if (field.games.Tag() == Tag::Spider) {
        TakeRunsOff(field);
    } else {
        PlayCardsUp(field);
    }
}

}  // namespace varnello
