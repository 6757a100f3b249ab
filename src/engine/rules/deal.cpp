#include "engine/rules/deal.h"

#include "engine/common/rounding.h"

namespace varnello {
namespace {

std::int16_t SuitOf(SuitType type, int value) {
    switch (type) {
        case SuitType::One: return 0;
        case SuitType::Two: return Narrow16(value % 52 / 26);
        case SuitType::Four: break;
    }
    return Narrow16(value % 52 / 13);
}

void ShowSlot(const Playfield& field, Cell cell, int pile, int picture) {
    const Place place{cell, pile, 0};
    field.table.Slot(cell, pile) = {.Picture = Narrow16(picture),
                                    .Left = Narrow16(field.array.GetCordX(place)),
                                    .Top = Narrow16(field.array.GetCordY(place)),
                                    .Visible = true};
    field.array.ShowSlot(cell, pile);
}

void ShowGoalSlot(const Playfield& field, int pile, int mark) {
    ShowSlot(field, Cell::Goal, pile, mark);
}

void PlaceOnGoal(const Playfield& field, PicID id, int pile) {
    field.array.MoveCard({.PicID = id, .To = {Cell::Goal, pile, 0}, .tMod = MoveKind::Deal});
}

/// The cards that start the foundations, but for `GoalType::FirstCards`.
void PlaceStartingCards(const Playfield& field) {
    cGames& games = field.games;
    const std::int16_t count = games.Cards(Cell::Goal);
    const auto type = games.GoalType();
    int placed = 0;  // of GoalType::FirstCard
    for (PicID id = 0; id < games.TotalCards(); ++id) {
        const KesCard& card = field.table.Card(id);
        const bool lowerHalf = 2 * card.Suitpile < count;
        if (card.Num == static_cast<std::int32_t>(type) && card.Suitpile < count) {
            PlaceOnGoal(field, id, card.Suitpile);
        }
        if (type == GoalType::AcesAndKings && card.Num == (lowerHalf ? kAce : kKing)) {
            PlaceOnGoal(field, id, card.Suitpile);
        }
        if (type == GoalType::SuitpileRank && card.Suitpile == card.Num) {
            PlaceOnGoal(field, id, card.Suitpile);
            ShowGoalSlot(field, card.Suitpile, card.Suitpile);
        }
        if (type == GoalType::FirstCard) {
            if (id == 0) games.GoalBase(card.Num);
            if (card.Num == games.GoalBase() && placed < count) PlaceOnGoal(field, id, placed++);
        }
    }
}

void ShowGoalSlots(const Playfield& field) {
    const cGames& games = field.games;
    for (int pile = 0; pile < games.Piles(Cell::Goal); ++pile) {
        switch (games.GoalType()) {
            case GoalType::WholeRuns: ShowGoalSlot(field, pile, kRunSlot); break;
            case GoalType::Aces:
            case GoalType::Twos:
            case GoalType::Kings:
                ShowGoalSlot(field, pile, static_cast<std::int32_t>(games.GoalType()));
                break;
            case GoalType::AcesAndKings:
                ShowGoalSlot(field, pile, 2 * pile < games.Cards(Cell::Goal) ? kAce : kKing);
                break;
            case GoalType::FirstCard: ShowGoalSlot(field, pile, games.GoalBase()); break;
            default: break;
        }
    }
}

void PlaceGoalCards(const Playfield& field) {
    const std::int16_t count = field.games.Cards(Cell::Goal);
    if (count > 0) PlaceStartingCards(field);
    ShowGoalSlots(field);
    if (field.games.GoalType() != GoalType::FirstCards) return;
    for (PicID pile = 0; pile < count; ++pile) {
        PlaceOnGoal(field, pile, pile);
        ShowGoalSlot(field, pile, field.table.Card(pile).Num);
    }
}

void ShowSlots(const Playfield& field) {
    cGames& games = field.games;
    for (int pile = 0; pile < games.Piles(Cell::Res); ++pile) {
        ShowSlot(field, Cell::Res, pile, kPlainSlot);
    }
    if (games.Tag() == Tag::Penguin) {
        const bool fromAce = games.GoalBase() == kAce;
        games.EmptyNum(fromAce ? kKing : Narrow16(games.GoalBase() - 1));
    }
    for (int pile = 0; pile < games.Piles(Cell::Home); ++pile) {
        ShowSlot(field, Cell::Home, pile, games.EmptyNum() >= 0 ? games.EmptyNum() : kPlainSlot);
    }
    if (games.Piles(Cell::Waste) >= 1) {
        ShowSlot(field, Cell::Waste, 0, kPlainSlot);
    }
}

void FillStock(const Playfield& field) {
    const cGames& games = field.games;
    cArray& array = field.array;
    const FaceMode face = games.StockType() == StockType::Open ? FaceMode::Open : FaceMode::Closed;
    if (games.StockNum() > StockNum::None) {
        ShowSlot(field, Cell::Stock, 0, kPlainSlot + static_cast<int>(games.StockNum()));
    }
    if (games.Piles(Cell::Stock) < 1) return;
    for (PicID id = 0; id < games.TotalCards(); ++id) {
        const KesCard& card = field.table.Card(id);
        const bool stripped = games.StockType() == StockType::TwoSuits && card.Suit >= 2;
        if (card.Loc.Cell == Cell::Goal || stripped) continue;
        array.MoveCard({.PicID = id,
                        .To = {Cell::Stock, 0, array.GetTop(Cell::Stock, 0) + 1},
                        .tMod = MoveKind::Deal,
                        .DFace = face});
    }
}

/// Deals the stock's top card.
void DealTo(const Playfield& field, Cell cell, int pile, int pos, FaceMode face = FaceMode::Open) {
    field.array.MoveCard({.PicID = field.array.GetTopPicID(Cell::Stock, 0),
                          .To = {cell, pile, pos},
                          .tMod = MoveKind::Deal,
                          .Speed = 3,
                          .DFace = face});
}

void FillWaste(const Playfield& field) {
    for (int i = 0; i < field.games.Cards(Cell::Waste); ++i) DealTo(field, Cell::Waste, i, 0);
}

void FillRes(const Playfield& field) {
    const int piles = field.games.Piles(Cell::Res);
    for (int i = 0; i < field.games.Cards(Cell::Res); ++i) {
        DealTo(field, Cell::Res, i % piles, i / piles);
    }
}

FaceMode ClosedIf(bool closed) { return closed ? FaceMode::Closed : FaceMode::Open; }

void DealRows(const Playfield& field) {
    const int piles = field.games.Piles(Cell::Home);
    const int cards = field.games.Cards(Cell::Home);
    const int open = field.games.CardsOpen();
    const bool corner = field.games.HomeType() == HomeType::ClosedCorner;
    for (int i = 0; i < cards; ++i) {
        const int pile = i % piles;
        const int row = i / piles;
        const bool closed = corner ? row < 3 && pile < 4 : open > 0 && i < cards - open;
        DealTo(field, Cell::Home, pile, row, ClosedIf(closed));
    }
}

void DealStaircase(const Playfield& field, bool reverse) {
    const int piles = field.games.Piles(Cell::Home);
    const bool closedRest = field.games.CardsOpen() > 0;
    for (int row = 0; row < piles; ++row) {
        for (int j = 0; j < piles - row; ++j) {
            if (reverse && field.array.GetTop(Cell::Stock, 0) < 0) return;
            DealTo(field, Cell::Home, reverse ? j : j + row, row, ClosedIf(closedRest && j > 0));
        }
    }
}

void DealBySuit(const Playfield& field) {
    for (int i = 0; i < kBySuitCards; ++i) {
        const PicID top = field.array.GetTopPicID(Cell::Stock, 0);
        const std::int16_t suit = field.table.Card(top).Suit;
        DealTo(field, Cell::Home, suit, field.array.GetTop(Cell::Home, suit) + 1);
    }
}

void DealCone(const Playfield& field) {
    int pile = 0;
    for (const int height : kConeHeights) {
        for (int pos = 0; pos < height; ++pos) DealTo(field, Cell::Home, pile, pos);
        ++pile;
    }
}

/// Goes on drawing where the shuffle stopped; the outer piles are half as likely as the rest.
void DealAtRandom(const Playfield& field) {
    const int last = field.games.Piles(Cell::Home) - 1;
    while (field.array.GetTop(Cell::Stock, 0) >= 0) {
        const double drawn = static_cast<double>(field.generator.rtcRandomNext()) * last;
        const int pile = RoundTo16(drawn);
        DealTo(field, Cell::Home, pile, field.array.GetTop(Cell::Home, pile) + 1);
    }
}

void DealHome(const Playfield& field) {
    switch (field.games.HomeType()) {
        case HomeType::Rows:
        case HomeType::ClosedCorner: return DealRows(field);
        case HomeType::Staircase: return DealStaircase(field, false);
        case HomeType::BySuit: return DealBySuit(field);
        case HomeType::Cone: return DealCone(field);
        case HomeType::AtRandom: return DealAtRandom(field);
        case HomeType::ReverseStaircase: return DealStaircase(field, true);
    }
}

}  // namespace

void SetCardValues(const Playfield& field) {
    for (PicID id = 0; id < field.games.TotalCards(); ++id) {
        const int value = field.array.GetRandom(id);
        field.table.Card(id).SetValue(SuitOf(field.games.SuitType(), value), Narrow16(value % 13),
                                      Narrow16(value / 13));
        field.table.BringToFront(id);
    }
}

void NewDeal(const Playfield& field) {
    PlaceGoalCards(field);
    ShowSlots(field);
    FillStock(field);
    FillWaste(field);
    FillRes(field);
    field.data.PlaySound(Sound::Start);
    DealHome(field);
}

}  // namespace varnello
