#pragma once

#include <array>
#include <cstdint>

#include "engine/definitions/codes.h"

namespace varnello {

// The arguments of the setters of `cGames`, one structure each, in argument order. All lengths are
// twips. The defaults are what most games share.

struct HomeDef {
    std::int16_t Piles = 0;
    OrderCode Order = OrderCode::Nothing;
    std::int16_t Cards = 0;
    std::int16_t AK = 0;
    std::int16_t EmptyNum = kAnyCard;
    std::int16_t MultiMove = 1;
    std::int16_t StartX = 0;
    std::int16_t StartY = 0;
    std::int16_t PileWidth = 0;
    std::int16_t PosWidth = 0;
    std::int16_t Div = 20;
    std::int16_t DivWidth = 0;
    varnello::PileOrder PileOrder = PileOrder::Down;
    varnello::HomeType HomeType = HomeType::Rows;
    OrderCode MultiOrder = OrderCode::Nothing;
    varnello::SuitType SuitType = SuitType::Four;
    std::int16_t CardsOpen = 0;
};

struct StockDef {
    std::int16_t Piles = 1;
    varnello::StockMove StockMove = StockMove::Waste;
    std::int16_t StartX = 0;
    std::int16_t StartY = 0;
    std::int16_t PosWidth = 0;
    varnello::StockNum StockNum = StockNum::None;
    varnello::StockType StockType = StockType::Closed;
};

struct WasteDef {
    std::int16_t Piles = 0;
    std::int16_t StartX = 0;
    std::int16_t StartY = 0;
    std::int16_t PileWidth = 0;
    std::int16_t Cards = 0;
    std::int16_t PosWidth = 30;
};

struct GoalDef {
    std::int16_t Piles = 0;
    OrderCode Order = OrderCode::Nothing;
    std::int16_t Cards = 0;
    varnello::GoalType GoalType = GoalType::Aces;
    std::int16_t AK = 0;
    std::int16_t StartX = 0;
    std::int16_t StartY = 0;
    std::int16_t PileWidth = 0;
    std::int16_t PosWidth = 0;
    std::int16_t Div = 20;
    std::int16_t DivWidth = 0;
    varnello::PileOrder PileOrder = PileOrder::Down;
};

struct ResDef {
    std::int16_t Piles = 0;
    std::int16_t Cards = 0;
    std::int16_t StartX = 0;
    std::int16_t StartY = 0;
    std::int16_t PileWidth = 0;
    std::int16_t PosWidth = 0;
    std::int16_t Div = 20;
    std::int16_t DivWidth = 0;
    varnello::PileOrder PileOrder = PileOrder::Down;
};

struct ExtDef {
    std::int16_t BaseX = 0;
    std::int16_t BaseY = 0;
    std::int16_t TotalCards = 52;
    varnello::Tag Tag = Tag::Freecell;
    std::int16_t DisAutoPlay = 0;
    std::int16_t GoalDiv = 0;
};

/// One kind of place of the game on the table.
struct CellDef {
    std::int16_t Piles = 0;
    std::int16_t Cards = 0;  ///< dealt into this cell at the start
    OrderCode Order = OrderCode::Nothing;
    std::int16_t AK = 0;  ///< non-zero: ranks go round, King and Ace are neighbours
    std::int16_t StartX = 0;
    std::int16_t StartY = 0;
    std::int16_t PileWidth = 0;  ///< between neighbouring piles of a row
    std::int16_t PosWidth = 0;   ///< between neighbouring cards of a pile
    std::int16_t Div = 0;        ///< piles per row
    std::int16_t DivWidth = 0;   ///< between rows of piles
    varnello::PileOrder PileOrder = PileOrder::Down;
};

/// What the tableau, the foundations and the reserve have in common.
template <typename PileDef>
constexpr CellDef CellOf(const PileDef& def) {
    return {.Piles = def.Piles,
            .Cards = def.Cards,
            .StartX = def.StartX,
            .StartY = def.StartY,
            .PileWidth = def.PileWidth,
            .PosWidth = def.PosWidth,
            .Div = def.Div,
            .DivWidth = def.DivWidth,
            .PileOrder = def.PileOrder};
}

constexpr CellDef CellOf(const StockDef& def) {
    return {
        .Piles = def.Piles, .StartX = def.StartX, .StartY = def.StartY, .PosWidth = def.PosWidth};
}

constexpr CellDef CellOf(const WasteDef& def) {
    return {.Piles = def.Piles,
            .Cards = def.Cards,
            .StartX = def.StartX,
            .StartY = def.StartY,
            .PileWidth = def.PileWidth,
            .PosWidth = def.PosWidth};
}

/// Twips.
struct TwipPoint {
    int X, Y;
};

/// The definition of the game on the table: what makes one game differ from another. Everything
/// reads it; only `SelectGame` fills it, and the deal sets `EmptyNum` and `GoalBase` in the games
/// where the cards decide them. Nothing is checked here: see `FaultOf` in check_row.h.
class cGames {
public:
    void Home(const HomeDef& def);
    void Stock(const StockDef& def);
    void Waste(const WasteDef& def);
    void Goal(const GoalDef& def);
    void Res(const ResDef& def);
    void Ext(const ExtDef& def);

    /// Where a card place lies on the table, in twips. `ClosedCards` is the number of closed cards
    /// in the tableau pile that the place belongs to; other cells pay it no heed.
    int GetCordX(const Place& place, int ClosedCards) const;
    int GetCordY(const Place& place, int ClosedCards) const;

    std::int16_t Piles(Cell cell) const { return Def(cell).Piles; }
    std::int16_t Cards(Cell cell) const { return Def(cell).Cards; }
    bool AK(Cell cell) const { return Def(cell).AK != 0; }
    /// How cards build on a pile. In the family "FreecellAK" the foundations from pile 2 on build
    /// down, whatever the record says.
    OrderCode Order(Cell cell, int pile) const;
    /// What a carried group must satisfy inside itself.
    OrderCode MultiOrder() const;
    varnello::GoalType GoalType() const { return goalType_; }
    varnello::StockType StockType() const { return stockType_; }
    varnello::StockMove StockMove() const { return stockMove_; }
    varnello::Tag Tag() const { return ext_.Tag; }
    varnello::HomeType HomeType() const { return homeType_; }
    varnello::SuitType SuitType() const { return suitType_; }
    std::int16_t TotalCards() const { return ext_.TotalCards; }
    std::int16_t BaseX() const { return ext_.BaseX; }
    std::int16_t BaseY() const { return ext_.BaseY; }
    bool DisAutoPlay() const { return ext_.DisAutoPlay != 0; }
    std::int16_t CardsOpen() const { return cardsOpen_; }
    varnello::StockNum StockNum() const { return stockNum_; }
    std::int16_t GoalDiv() const { return ext_.GoalDiv; }
    bool MultiMove() const { return multiMove_ != 0; }
    PileOrder HomePileOrder() const { return Def(Cell::Home).PileOrder; }
    /// Whether tableau cards fan to the right instead of down.
    bool FansRight() const;

    /// What an empty tableau pile takes: a rank 0 to 12, `kAnyCard`, else nothing.
    std::int16_t EmptyNum() const { return emptyNum_; }
    void EmptyNum(std::int16_t value) { emptyNum_ = value; }
    /// The rank that an empty foundation takes.
    std::int16_t GoalBase() const { return goalBase_; }
    void GoalBase(std::int16_t value) { goalBase_ = value; }

private:
    CellDef& Def(Cell cell) { return cells_[static_cast<std::size_t>(cell)]; }
    const CellDef& Def(Cell cell) const { return cells_[static_cast<std::size_t>(cell)]; }

    std::array<CellDef, kCells> cells_{};
    ExtDef ext_{.TotalCards = 0, .Tag = Tag::None};
    varnello::GoalType goalType_ = GoalType::Aces;
    std::int16_t emptyNum_ = 0;
    std::int16_t goalBase_ = kAce;
    std::int16_t multiMove_ = 0;
    varnello::StockType stockType_ = StockType::Closed;
    varnello::StockMove stockMove_ = StockMove::Waste;
    varnello::HomeType homeType_ = HomeType::Rows;
    OrderCode multiOrder_ = OrderCode::Nothing;
    varnello::SuitType suitType_ = SuitType::One;
    std::int16_t cardsOpen_ = 0;
    varnello::StockNum stockNum_ = StockNum::None;
};

}  // namespace varnello
