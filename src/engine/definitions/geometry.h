#pragma once

#include "engine/definitions/game_record.h"

/// Where a card place lies in a game's layout, so that the compiler can work it out as well.
namespace varnello {

inline constexpr int kClosedFan = 60;   ///< between neighbouring closed cards of a tableau pile
inline constexpr int kLowerGoal = 250;  ///< family "Stala": all but a foundation's first card

/// How far the card at `pos` lies from the bottom card of its pile.
constexpr int FanOffset(int pos, int posWidth, int closedCards) {
    if (closedCards == 0) return pos * posWidth;
    return closedCards * kClosedFan + (pos - closedCards) * posWidth;
}

/// Stock and waste grow up and to the left in steps that come ever more rarely: half the square
/// root of the position, which is rounded to the nearest whole number first.
constexpr int HeapStep(int pos) {
    int root = 0;
    while (pos > root * root + root) ++root;
    return root / 2;
}

/// Twips from the upper left corner of the layout.
constexpr TwipPoint CellPos(const CellDef& def, Tag tag, const Place& place, int closedCards) {
    TwipPoint at{def.StartX, def.StartY};
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
    if (place.Cell == Cell::Goal && tag == Tag::Stala && place.Pos >= 1) at.Y += kLowerGoal;
    return at;
}

/// Where a layout of this width begins on the table: the boards are centred in a span of it. Halves
/// of twips are left.
constexpr double LayoutLeft(int BaseX) {
    constexpr double kSpanLeft = 1790;
    constexpr double kSpanWidth = 11900;
    return (kSpanWidth - BaseX) / 2 + kSpanLeft;
}

}  // namespace varnello
