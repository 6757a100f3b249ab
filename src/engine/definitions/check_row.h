#pragma once

#include <algorithm>
#include <string_view>

#include "engine/definitions/game_row.h"
#include "engine/definitions/geometry.h"
#include "engine/definitions/table_size.h"

/// Whether a row can be dealt, shown and won. The compiler asks it of the whole catalogue.
namespace varnello {

/// Suits that the deck of a game shows: 1, 2 or 4.
constexpr int SuitsOf(const GameRow& row) {
    const int halves =
        std::min(row.Ext.TotalCards / 26, 2);  // of a pack, as `SuitType::Two` counts
    switch (row.Home.SuitType) {
        case SuitType::One: return 1;
        case SuitType::Two: return halves;
        case SuitType::Four: break;
    }
    return 2 * halves;
}

/// Suits counted in each pack by itself, 1 to 8; a card's `Suitpile` is below.
constexpr int SuitPilesOf(const GameRow& row) { return row.Ext.TotalCards / kRanks; }

/// Cards that stay on the stock after the deal.
constexpr int CardsLeftOnStock(const GameRow& row) {
    const int waste = row.Waste ? row.Waste->Cards : 0;
    return row.Ext.TotalCards - row.Goal.Cards - row.Res.Cards - waste - row.Home.Cards;
}

/// Whether a click turns the stock's top card onto the waste.
constexpr bool TurnsOntoWaste(const GameRow& row) {
    return CardsLeftOnStock(row) > 0 && row.Stock.StockType != StockType::Open &&
           row.Stock.StockMove != StockMove::Row;
}

constexpr OrderCode MultiOrderOf(const GameRow& row) {
    return row.Home.MultiOrder == OrderCode::Nothing ? row.Home.Order : row.Home.MultiOrder;
}

/// How the foundation builds; `cGames::Order` says the same of the game on the table.
constexpr OrderCode GoalOrderOf(const GameRow& row, int pile) {
    const bool down = row.Ext.Tag == Tag::FreecellAK && pile >= 2;
    return down ? OrderCode::DownSuit : row.Goal.Order;
}

constexpr bool IsOneOf(auto value, auto... values) { return ((value == values) || ...); }

constexpr bool BuildsUp(OrderCode order) {
    return IsOneOf(order, OrderCode::UpSuit, OrderCode::UpColor, OrderCode::UpAny);
}
constexpr bool BuildsDown(OrderCode order) {
    return IsOneOf(order, OrderCode::DownSuit, OrderCode::DownColor, OrderCode::DownAny);
}
constexpr bool BuildsEitherWay(OrderCode order) {
    return IsOneOf(order, OrderCode::EitherSuit, OrderCode::EitherColor, OrderCode::EitherAny);
}
constexpr bool WantsTwoColours(OrderCode order) {
    return IsOneOf(order, OrderCode::DownColor, OrderCode::UpColor, OrderCode::EitherColor);
}

namespace row_check {

/// What is wrong, or nothing.
using Fault = std::string_view;

constexpr bool IsOrder(OrderCode order) {
    return IsOneOf(order, OrderCode::Nothing, OrderCode::Anything) || BuildsUp(order) ||
           BuildsDown(order) || BuildsEitherWay(order);
}

template <typename Code>
constexpr bool IsWithin(Code code, Code last) {
    return static_cast<int>(code) >= 0 && static_cast<int>(code) <= static_cast<int>(last);
}

constexpr Fault CodeFault(const GameRow& row) {
    if (!IsOrder(row.Home.Order)) return "Home.Order is no OrderCode";
    if (!IsOrder(row.Home.MultiOrder)) return "Home.MultiOrder is no OrderCode";
    if (!IsOrder(row.Goal.Order)) return "Goal.Order is no OrderCode";
    if (!IsWithin(row.Home.HomeType, HomeType::ReverseStaircase)) return "Home.HomeType is no code";
    if (!IsWithin(row.Home.SuitType, SuitType::Four)) return "Home.SuitType is no code";
    if (!IsWithin(row.Stock.StockType, StockType::TwoSuits)) return "Stock.StockType is no code";
    if (!IsWithin(row.Stock.StockMove, StockMove::Waste3)) return "Stock.StockMove is no code";
    if (!IsWithin(row.Stock.StockNum, StockNum::Redeal)) return "Stock.StockNum is no code";
    if (row.Ext.Tag == Tag::None || !IsWithin(row.Ext.Tag, Tag::Stala))
        return "Ext.Tag is no family";
    if (row.Home.EmptyNum > kKing) return "Home.EmptyNum is no rank: 0 to 12, or less for a code";
    const auto goal = row.Goal.GoalType;
    if (!IsOneOf(goal, GoalType::Aces, GoalType::Twos, GoalType::Kings) &&
        (goal < GoalType::WholeRuns || goal > GoalType::FirstCards)) {
        return "Goal.GoalType is no code";
    }
    for (const PileOrder order : {row.Home.PileOrder, row.Goal.PileOrder, row.Res.PileOrder}) {
        if (!IsWithin(order, PileOrder::RightColumns)) return "a PileOrder is no code";
    }
    return {};
}

constexpr Fault PilesFault(const GameRow& row) {
    const auto fits = [](int piles, int least, int slots) {
        return piles >= least && piles <= slots;
    };
    static_assert(kHomeSlots == 18 && kGoalSlots == 8 && kResSlots == 10,
                  "said in the texts below");
    if (!fits(row.Home.Piles, 1, kHomeSlots)) return "Home.Piles: the table has slots for 1 to 18";
    if (!fits(row.Goal.Piles, 1, kGoalSlots)) return "Goal.Piles: the table has slots for 1 to 8";
    if (!fits(row.Res.Piles, 0, kResSlots)) return "Res.Piles: the table has slots for 0 to 10";
    if (row.Stock.Piles != kStockSlots) return "Stock.Piles must be 1: every card is dealt from it";
    if (row.Waste && !fits(row.Waste->Piles, 0, kWasteSlots)) return "Waste.Piles is 0 or 1";
    if (row.Home.Div < 1) return "Home.Div, the piles of a row, must be 1 or more";
    if (row.Goal.Div < 1) return "Goal.Div, the piles of a row, must be 1 or more";
    if (row.Res.Div < 1) return "Res.Div, the piles of a row, must be 1 or more";
    return {};
}

/// Cards that the pattern of the tableau deals, when it has this many to deal.
constexpr int PatternCards(const GameRow& row, int available) {
    const int stairs = row.Home.Piles * (row.Home.Piles + 1) / 2;
    switch (row.Home.HomeType) {
        case HomeType::Staircase: return stairs;
        case HomeType::ReverseStaircase: return std::min(stairs, available);
        case HomeType::BySuit: return kBySuitCards;
        case HomeType::Cone: return 52;
        case HomeType::AtRandom: return available;
        case HomeType::Rows:
        case HomeType::ClosedCorner: break;
    }
    return row.Home.Cards;
}

constexpr Fault PatternFault(const GameRow& row) {
    switch (row.Home.HomeType) {
        case HomeType::BySuit:
            if (SuitsOf(row) < 2) return "HomeType::BySuit needs a deck of two suits or more";
            if (row.Home.Piles < SuitsOf(row)) return "HomeType::BySuit needs a pile for each suit";
            break;
        case HomeType::Cone:
            if (row.Home.Piles < 9) return "HomeType::Cone needs nine piles or more";
            break;
        case HomeType::AtRandom:
            if (row.Home.Piles < 2) return "HomeType::AtRandom draws among two piles or more";
            break;
        case HomeType::ClosedCorner:
            if (row.Home.Piles < 4 || row.Home.Cards < 3 * row.Home.Piles) {
                return "HomeType::ClosedCorner needs four piles or more and three full rows";
            }
            break;
        default: break;
    }
    const int available = CardsLeftOnStock(row) + row.Home.Cards;
    const int dealt = PatternCards(row, available);
    if (dealt > available) return "the pattern Home.HomeType deals more cards than are left for it";
    if (dealt != row.Home.Cards) return "Home.Cards isn't what the pattern Home.HomeType deals";
    if (row.Home.CardsOpen < 0 || row.Home.CardsOpen > row.Home.Cards) {
        return "Home.CardsOpen is neither 0 nor a part of Home.Cards";
    }
    return {};
}

constexpr Fault DeckFault(const GameRow& row) {
    if (!IsOneOf(row.Ext.TotalCards, 26, 52, 104)) return "Ext.TotalCards is 26, 52 or 104";
    const int waste = row.Waste ? row.Waste->Cards : 0;
    if (std::min({int{row.Home.Cards}, int{row.Goal.Cards}, int{row.Res.Cards}, waste}) < 0) {
        return "a number of Cards is below 0";
    }
    if (row.Res.Cards > row.Res.Piles) return "Res.Cards: a reserve cell holds one card";
    if (waste > 0 && row.Waste->Piles < waste) return "Waste.Cards: one card can start the waste";
    if (CardsLeftOnStock(row) < 0) return "more cards are dealt than Ext.TotalCards";
    if (row.Stock.StockType == StockType::TwoSuits && SuitsOf(row) > 2) {
        return "StockType::TwoSuits leaves cards of four suits without a place: take 26 cards";
    }
    const int suits = SuitsOf(row);
    if (suits == 1 && (WantsTwoColours(row.Home.Order) || WantsTwoColours(row.Goal.Order) ||
                       WantsTwoColours(row.Home.MultiOrder))) {
        return "an order of alternating colours in a deck of one colour lets nothing be laid";
    }
    return PatternFault(row);
}

constexpr Fault StockFault(const GameRow& row) {
    const bool hasWaste = row.Waste && row.Waste->Piles > 0;
    if (TurnsOntoWaste(row) && !hasWaste) {
        return "cards are left on a stock that is turned onto the waste, but there is no Waste";
    }
    if (hasWaste && !TurnsOntoWaste(row)) return "Waste: nothing is ever turned onto it";
    if (row.Stock.StockNum == StockNum::Redeal && !hasWaste) {
        return "StockNum::Redeal turns a waste over, but there is none";
    }
    return {};
}

/// The most cards that a foundation can hold in a game of single cards; the rank that opens it is
/// known but in the games where the cards decide it.
constexpr int GoalCapacity(const GameRow& row, int pile) {
    const OrderCode order = GoalOrderOf(row, pile);
    const bool started = pile < row.Goal.Cards;
    if (row.Goal.AK != 0 || !(BuildsUp(order) || BuildsDown(order))) return kRanks;
    int rank = kAce;
    switch (row.Goal.GoalType) {
        case GoalType::FirstCard:
        case GoalType::FirstCards: return 1;  // it may begin at the end
        case GoalType::AcesAndKings: rank = 2 * pile < row.Goal.Cards ? kAce : kKing; break;
        case GoalType::SuitpileRank: rank = started ? pile : kAce; break;
        default: rank = started ? static_cast<int>(row.Goal.GoalType) : int{kAce}; break;
    }
    return BuildsUp(order) ? kRanks - rank : rank + 1;
}

constexpr Fault RunsFault(const GameRow& row) {
    if (row.Goal.Cards != 0) return "Tag::Spider takes whole runs, so Goal.Cards must be 0";
    if (!IsOneOf(row.Goal.GoalType, GoalType::WholeRuns, GoalType::Aces)) {
        return "Tag::Spider goes with GoalType::WholeRuns or Aces";
    }
    if (!BuildsUp(row.Goal.Order)) return "Tag::Spider needs a Goal.Order that builds up";
    const int piles = row.Ext.GoalDiv == 0 ? SuitPilesOf(row) : row.Ext.GoalDiv;
    if (piles < 1 || piles > row.Goal.Piles) {
        return "Goal.Piles: a run goes to the foundation of its suit, or that modulo Ext.GoalDiv";
    }
    return {};
}

constexpr Fault FoundationFault(const GameRow& row) {
    if (row.Goal.Order == OrderCode::Nothing) return "Goal.Order lets nothing be laid";
    if (row.Ext.Tag == Tag::Spider) return RunsFault(row);
    if (row.Ext.GoalDiv != 0) return "Ext.GoalDiv is for Tag::Spider alone";
    const int cards = row.Goal.Cards;
    if (cards > row.Goal.Piles) return "Goal.Cards: one card starts a foundation";
    switch (row.Goal.GoalType) {
        case GoalType::WholeRuns: return "GoalType::WholeRuns is for Tag::Spider alone";
        case GoalType::FirstCard:
            if (cards < 1) return "GoalType::FirstCard needs Goal.Cards, the first card at least";
            break;
        case GoalType::FirstCards:
            if (cards != row.Goal.Piles) return "GoalType::FirstCards starts every foundation";
            break;
        case GoalType::AcesAndKings:
        case GoalType::SuitpileRank:
            if (cards != row.Goal.Piles || cards != SuitPilesOf(row)) {
                return "Goal.Cards: this GoalType starts a foundation for each suit of the packs";
            }
            break;
        case GoalType::Twos:
        case GoalType::Kings:
            if (cards != row.Goal.Piles) return "an empty foundation takes an Ace, so start all";
            break;
        case GoalType::Aces: break;
    }
    const bool byCard = row.Goal.GoalType == GoalType::FirstCards;
    if (!byCard && cards > SuitPilesOf(row)) return "Goal.Cards: there are fewer cards of the rank";
    int capacity = 0;
    for (int pile = 0; pile < row.Goal.Piles; ++pile) capacity += GoalCapacity(row, pile);
    if (capacity < row.Ext.TotalCards) {
        return "the foundations can't take all cards: see Goal.Piles, Order, AK and GoalType";
    }
    return {};
}

/// The most cards that the deal puts onto the tableau pile.
constexpr int DealtHeight(const GameRow& row, int pile) {
    const int piles = row.Home.Piles;
    const int evenly = (row.Home.Cards + piles - 1) / piles;
    switch (row.Home.HomeType) {
        case HomeType::Staircase: return pile + 1;
        case HomeType::ReverseStaircase: return piles - pile;
        case HomeType::BySuit: return pile < SuitsOf(row) ? kBySuitCards / SuitsOf(row) : 0;
        case HomeType::Cone: return pile < 9 ? kConeHeights[static_cast<std::size_t>(pile)] : 0;
        default: break;
    }
    return evenly;
}

/// The upper left corner of a card place on the table.
constexpr TwipPoint OnTable(const GameRow& row, const CellDef& def, const Place& place) {
    const TwipPoint at = CellPos(def, row.Ext.Tag, place, 0);
    return {static_cast<int>(LayoutLeft(row.Ext.BaseX)) + at.X, row.Ext.BaseY + at.Y};
}

constexpr bool StandsOnTable(TwipPoint at) {
    return at.X >= 0 && at.X + kCardWidth <= kTableWidth && at.Y >= 0 &&
           at.Y + kCardHeight <= kTableHeight;
}

/// Whether all piles stand on the table with this many cards each.
constexpr bool CellStands(const GameRow& row, Cell cell, const CellDef& def, auto cards) {
    for (int pile = 0; pile < def.Piles; ++pile) {
        const int top = std::max(cards(pile) - 1, 0);
        if (!StandsOnTable(OnTable(row, def, {cell, pile, 0})) ||
            !StandsOnTable(OnTable(row, def, {cell, pile, top}))) {
            return false;
        }
    }
    return true;
}

/// Whether two slots lie on one another, at least in part.
constexpr bool SlotsOverlap(const GameRow& row) {
    std::array<TwipPoint, kSlots> slots{};
    std::size_t count = 0;
    const auto add = [&](Cell cell, const CellDef& def) {
        for (int pile = 0; pile < def.Piles; ++pile) {
            slots[count++] = OnTable(row, def, {cell, pile, 0});
        }
    };
    add(Cell::Home, CellOf(row.Home));
    add(Cell::Goal, CellOf(row.Goal));
    add(Cell::Res, CellOf(row.Res));
    if (row.Waste) add(Cell::Waste, CellOf(*row.Waste));
    const bool showsStock = CardsLeftOnStock(row) > 0 || row.Stock.StockNum != StockNum::None;
    if (showsStock) add(Cell::Stock, CellOf(row.Stock));
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            const int dx = slots[i].X - slots[j].X;
            const int dy = slots[i].Y - slots[j].Y;
            if (std::max(dx, -dx) < kCardWidth && std::max(dy, -dy) < kCardHeight) return true;
        }
    }
    return false;
}

constexpr Fault PlaceFault(const GameRow& row) {
    constexpr int kRunOnTop = kRanks - 1;
    const bool builds = row.Home.Order != OrderCode::Nothing;
    const auto tableau = [&](int pile) {
        return DealtHeight(row, pile) + (builds ? kRunOnTop : 0);
    };
    const auto one = [](int) { return 1; };
    const auto whole = [](int) { return kRanks; };
    const auto all = [&](int) { return row.Ext.TotalCards; };
    if (!CellStands(row, Cell::Home, CellOf(row.Home), tableau)) {
        return "Home: a pile, as dealt or with a run of twelve on it, leaves the table";
    }
    if (!CellStands(row, Cell::Goal, CellOf(row.Goal), whole))
        return "Goal: a pile leaves the table";
    if (!CellStands(row, Cell::Res, CellOf(row.Res), one)) return "Res: a cell leaves the table";
    if (!CellStands(row, Cell::Stock, CellOf(row.Stock), all)) return "Stock: it leaves the table";
    if (row.Waste && !CellStands(row, Cell::Waste, CellOf(*row.Waste), all)) {
        return "Waste: it leaves the table";
    }
    if (SlotsOverlap(row)) return "two places lie on one another: see StartX, PileWidth, DivWidth";
    return {};
}

}  // namespace row_check

/// What makes a row impossible, in words, or nothing: every value within its code, piles within the
/// slots of the table, cards that add up to the deck, foundations that take them all, everything on
/// the table.
constexpr std::string_view FaultOf(const GameRow& row) {
    using namespace row_check;
    if (row.Name.empty()) return "Name is empty";
    for (const auto check :
         {CodeFault, PilesFault, DeckFault, StockFault, FoundationFault, PlaceFault}) {
        if (const Fault fault = check(row); !fault.empty()) return fault;
    }
    return {};
}

}  // namespace varnello
