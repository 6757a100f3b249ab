#pragma once

#include <array>
#include <cstdint>

#include "engine/common/rounding.h"

/// The small codes from which a game is put together. All stored numbers are part of the records,
/// so every code has a fixed width and value.
namespace varnello {

/// Index of a card object, 0 to 103. It is all that the board and the move log store of a card.
using PicID = std::int16_t;
inline constexpr PicID kNoCard = -1;
inline constexpr int kCardObjects = 104;

/// A kind of place on the board.
enum class Cell : std::int16_t { Home = 0, Stock = 1, Waste = 2, Goal = 3, Res = 4 };
inline constexpr int kCells = 5;
inline constexpr int kPilesPerCell = 21;

/// A card's place: pile and position count from 0, position 0 is the bottom of the pile, -1 the
/// top of an empty one.
struct Place {
    varnello::Cell Cell = Cell::Home;
    std::int16_t Pile = 0;
    std::int16_t Pos = 0;

    constexpr Place() = default;
    constexpr Place(varnello::Cell cell, int pile, int pos)
        : Cell(cell), Pile(Narrow16(pile)), Pos(Narrow16(pos)) {}
    bool operator==(const Place&) const = default;
};

/// The kind of a card's move.
enum class MoveKind : std::int32_t {
    Play = 0,       // a drop, autoplay, the taking off of a run
    FromStock = 1,  // a stock card dealt in play
    ToStock = 2,    // a waste card turned back
    Uncover = 3,    // a move that opened the card below; only `MoveCard` itself says so
    UndoRedo = 4,
    Deal = 5
};

/// How a card may lie on another: a rank rule and a suit rule. Numbers that aren't listed, 10 and
/// 11 among them, let nothing be placed.
enum class OrderCode : std::int32_t {
    Nothing = 0,
    DownSuit = 1,
    UpSuit = 2,
    EitherSuit = 3,
    DownColor = 4,  // "color": the two colours differ
    UpColor = 5,
    EitherColor = 6,
    DownAny = 7,
    UpAny = 8,
    Anything = 9,
    EitherAny = 12,
};

/// Pattern of the tableau at the deal.
enum class HomeType : std::int32_t {
    Rows = 0,             // card by card across the piles
    Staircase = 1,        // row r covers piles r and up
    BySuit = 2,           // 52 cards, each to the pile of its suit
    Cone = 3,             // nine piles of 4 5 6 7 8 7 6 5 4
    AtRandom = 4,         // each card to a pile drawn at random
    ClosedCorner = 5,     // rows, closed in the first three rows of the first four piles
    ReverseStaircase = 6  // row r covers all piles but the last r
};

inline constexpr std::array kConeHeights{4, 5, 6, 7, 8, 7, 6, 5, 4};
inline constexpr int kBySuitCards = 52;

/// What starts a foundation. 0 to 12 is the rank that opens it.
enum class GoalType : std::int32_t {
    Aces = 0,
    Twos = 1,
    Kings = 12,
    WholeRuns = 13,     // start empty and take completed runs
    AcesAndKings = 14,  // lower half from Aces, upper half down from Kings
    SuitpileRank = 15,  // cards whose rank equals their suit pile
    FirstCard = 16,     // the first card of the deal sets the base rank
    FirstCards = 17     // the first cards of the deal, whatever they are
};

enum class StockType : std::int32_t {
    Closed = 0,
    Open = 1,     // face up; its top card plays like a card of the tableau
    TwoSuits = 2  // only suits 0 and 1 go to the stock
};

/// What a click on the stock does. Only `Row` differs; 0, 1 and 3 act alike.
enum class StockMove : std::int32_t { Waste = 0, Waste1 = 1, Row = 2, Waste3 = 3 };

/// The picture at the stock's place, also the distance from slot picture 14.
enum class StockNum : std::int16_t { None = 0, Stop = 1, Redeal = 2 };

enum class SuitType : std::int32_t { One = 0, Two = 1, Four = 2 };

/// How piles and cards run on the board.
enum class PileOrder : std::int32_t {
    Down = 0,         // piles side by side, cards fanned down, further rows below
    DownOneLine = 1,  // the same, a further row of piles continues to the right
    RightRows = 2,    // rows of piles below one another, cards fanned right
    RightColumns = 3  // piles below one another, columns of piles, cards fanned right
};

/// Family of rules that aren't parameters.
enum class Tag : std::int32_t { None, Freecell, FreecellAK, Penguin, Spider, Stala };

/// Whether the count of free places limits the size of a carried group.
constexpr bool HasStackLimit(Tag tag) {
    return tag == Tag::Freecell || tag == Tag::FreecellAK || tag == Tag::Penguin;
}

/// What an empty tableau pile takes, besides a rank from 0 to 12.
inline constexpr std::int16_t kAnyCard = -1;
inline constexpr std::int16_t kNoCardAtAll = -10;

inline constexpr std::int16_t kAce = 0;
inline constexpr std::int16_t kKing = 12;
inline constexpr int kRanks = 13;  ///< and so the cards of a suit, a whole run, a full foundation

/// Booleans of the records: -1 and 0.
inline constexpr std::int16_t kTrue = -1;

}  // namespace varnello
