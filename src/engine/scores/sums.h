#pragma once

#include <cstdint>
#include <vector>

#include "engine/scores/score_list.h"

namespace varnello {

/// Sums over a whole score list, each in list order, worked out in one walk.
struct ScoreSums {
    struct GameEntry {
        ScoreSummary summary;
        std::vector<std::uint32_t> positions;  ///< of the game's records, from 0
    };

    ScoreSummary all;
    std::vector<GameEntry> byGame;       ///< by the number that stands for the game in the list
    std::vector<ScoreSummary> byPlayer;  ///< by the number that stands for the player

    explicit ScoreSums(const ScoreList& list);
};

}  // namespace varnello
