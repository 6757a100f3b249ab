#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <vector>

#include "evaluation.h"
#include "moves.h"
#include "rules.h"

namespace varnello::findwin {

using Line = std::vector<Move>;
using Deadline = std::chrono::steady_clock::time_point;

struct Limits {
    std::size_t width;  ///< states kept after each gesture
    int gestures;       ///< longest line of interest
    Deadline end;
};

/// Plays gesture by gesture on all kept states at once and goes on from the cheapest of the states
/// reached, so the line found is short for its width. Nothing when the beam runs dry or a limit is
/// reached.
std::optional<Line> BeamSearch(const Rules& rules, const Evaluation& evaluation, const State& start,
                               const Limits& limits);

}  // namespace varnello::findwin
