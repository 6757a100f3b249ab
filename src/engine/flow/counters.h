#pragma once

#include <cstdint>
#include <string>

namespace varnello {

/// The captions at the right end of the menu bar; an empty one isn't shown.
struct CounterCaptions {
    std::string mScore;
    std::string mTime;
    std::string mMoves;
};

/// Ten points for each card on a foundation, less a third of the seconds and half of the moves.
std::int16_t ScoreOf(int goalCards, std::int32_t seconds, std::int16_t moves);

}  // namespace varnello
