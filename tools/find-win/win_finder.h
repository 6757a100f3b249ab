#pragma once

#include <optional>

#include "beam_search.h"

namespace varnello::findwin {

struct Effort {
    Deadline end;
    int shortenings;  ///< further widths that try to shorten the line once there is one
};

/// Searches with ever wider beams, each with several evaluations, until one wins or time is up.
std::optional<Line> FindWin(const Rules& rules, const State& start, const Effort& effort);

}  // namespace varnello::findwin
