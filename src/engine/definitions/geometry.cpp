#include <algorithm>
#include <cmath>

#include "engine/common/rounding.h"
#include "engine/definitions/game_record.h"

// Where a card place lies on the table. All lengths are twips.
namespace varnello {
namespace {

constexpr double kSpanLeft = 1790;  // the boards are centred in a span of the table
constexpr double kSpanWidth = 11900;
constexpr int kClosedFan = 60;   // distance of neighbouring closed cards of a tableau pile
constexpr int kLowerGoal = 250;  // family "Stala": all but a foundation's first card

/// How far the card at `pos` lies from the bottom card of its pile.
int FanOffset(int pos, int posWidth, int closedCards) {
    if (closedCards == 0) return pos * posWidth;
    return closedCards * kClosedFan + (pos - closedCards) * posWidth;
}

/// Stock and waste grow up and to the left in steps that come ever more rarely.
int HeapStep(int pos) { return static_cast<int>(RoundHalfEven(std::sqrt(std::max(pos, 0)))) / 2; }

}  // namespace

cGames::Point cGames::CellPos(const Place& place, int closedCards) const {
    const CellDef& def = Def(place.Cell);
    Point at{def.StartX, def.StartY};
    if (place.Cell == Cell::Stock || place.Cell == Cell::Waste) {
        const int step = HeapStep(place.Pos) * def.PosWidth;
        return {at.X - step, at.Y - step};
    }

    const int column = place.Pile % def.Div;
    const int row = place.Pile / def.Div;
    const int closed = place.Cell == Cell::Home ? closedCards : 0;
    switch (def.PileOrder) {
        case PileOrder::Down:
            at.X += column * def.PileWidth;
            at.Y += row * def.DivWidth + FanOffset(place.Pos, def.PosWidth, closed);
            break;
        case PileOrder::DownOneLine:
            at.X += column * def.PileWidth + row * def.DivWidth;
            at.Y += place.Pos * def.PosWidth;
            break;
        case PileOrder::RightRows:
            at.X += column * def.PileWidth + FanOffset(place.Pos, def.PosWidth, closed);
            at.Y += row * def.DivWidth;
            break;
        case PileOrder::RightColumns:
            at.X += row * def.DivWidth + place.Pos * def.PosWidth;
            at.Y += column * def.PileWidth;
            break;
    }
    if (place.Cell == Cell::Goal && Tag() == Tag::Stala && place.Pos >= 1) at.Y += kLowerGoal;
    return at;
}

int cGames::GetCordX(const Place& place, int ClosedCards) const {
    return RoundTo16((kSpanWidth - BaseX()) / 2 + kSpanLeft + CellPos(place, ClosedCards).X);
}

int cGames::GetCordY(const Place& place, int ClosedCards) const {
    return Saturate16(CellPos(place, ClosedCards).Y + BaseY());
}

}  // namespace varnello
