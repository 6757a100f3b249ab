#pragma once

#include <cstdint>
#include <vector>

#include "rules.h"
#include "state.h"

namespace varnello::findwin {

/// One gesture: a drop of the top `count` cards of a pile, or a click on the stock.
struct Move {
    std::uint8_t from = 0;
    std::uint8_t to = 0;  ///< the waste for a click that turns a card over
    std::uint8_t count = 1;

    /// A click that deals a row has the stock on both ends.
    bool DealsRow() const { return from == to; }
};

/// All gestures that the rules allow, but for those that only repeat another one on an equal pile.
void FindMoves(const Rules& rules, const State& state, std::vector<Move>& moves);

/// Makes the move and all that the game does by itself after it.
void Apply(const Rules& rules, State& state, const Move& move);

}  // namespace varnello::findwin
