#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "engine/flow/engine.h"

namespace varnello::test {

/// What is wrong with the board of a running game, or nothing: every card lies in exactly one place
/// and knows it, piles have no gaps, free reserves look free.
inline std::string BoardFault(const cArray& array, const Table& table, const cGames& games) {
    std::ostringstream fault;
    std::vector<int> seen(kCardObjects);
    for (int c = 0; c < kCells; ++c) {
        const auto cell = static_cast<Cell>(c);
        for (int pile = 0; pile < kPilesPerCell; ++pile) {
            const int top = array.GetTop(cell, pile);
            const bool used = pile < games.Piles(cell) || cell == Cell::Stock;
            if (top >= 0 && !used) fault << "cards on the unused pile " << c << '/' << pile << "; ";
            if (cell == Cell::Goal && top > 12 && games.Tag() != Tag::Spider) {
                fault << "overfull foundation; ";
            }
            for (int pos = 0; pos <= top; ++pos) {
                const PicID id = array.GetPicID(cell, pile, pos);
                if (id < 0 || id >= kCardObjects) {
                    fault << "gap at " << c << '/' << pile << '/' << pos << "; ";
                    continue;
                }
                ++seen[static_cast<std::size_t>(id)];
                const KesCard& card = table.Card(id);
                const Place place{cell, static_cast<std::int16_t>(pile),
                                  static_cast<std::int16_t>(pos)};
                if (card.Loc != place) fault << "card " << id << " is elsewhere; ";
                if (!card.Visible) fault << "card " << id << " is hidden; ";
            }
        }
    }
    for (int id = 0; id < kCardObjects; ++id) {
        const int expected = id < games.TotalCards() ? 1 : 0;
        const int count = seen[static_cast<std::size_t>(id)];
        if (count != expected) fault << "card " << id << " lies in " << count << " places; ";
    }
    for (int pile = 0; pile < games.Piles(Cell::Res); ++pile) {
        const bool free = array.GetTop(Cell::Res, pile) == -1;
        if (free != (array.GetPicID(Cell::Res, pile, 0) == kNoCard)) fault << "false reserve; ";
    }
    return fault.str();
}

/// What is wrong with faces and coordinates in a game that deals its tableau open, with no drag
/// under way.
inline std::string PictureFault(const Engine& engine) {
    std::ostringstream fault;
    for (const PicID id : engine.table().VisibleCards()) {
        const KesCard& card = engine.table().Card(id);
        const bool closed =
            card.Loc.Cell == Cell::Stock && engine.games().StockType() != StockType::Open;
        if ((card.FaceMode == FaceMode::Closed) != closed) fault << "face of " << id << "; ";
        if (card.Left != engine.array().GetCordX(card.Loc) ||
            card.Top != engine.array().GetCordY(card.Loc)) {
            fault << "card " << id << " stands elsewhere; ";
        }
    }
    return fault.str();
}

/// What is wrong with the log, or nothing: every undo step is closed.
inline std::string LogFault(const cTrans& log) {
    if (log.GetTransID() > log.TransTop()) return "the log is ahead of itself";
    if (log.Record(0).InGroup) return "record 0 is part of a step";
    if (log.Record(log.TransTop()).InGroup) return "the last step is open";
    if (log.Record(log.GetTransID()).InGroup) return "the log stands inside a step";
    return {};
}

}  // namespace varnello::test
