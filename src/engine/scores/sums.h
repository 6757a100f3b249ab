#pragma once

#include <cstdint>
#include <vector>

#include "engine/scores/score_list.h"

namespace varnello {

/// Wins in a row: those up to the last game, and the most there ever were.
struct Streak {
    std::int32_t Now = 0;
    std::int32_t Best = 0;

    void Add(bool won) {
        Now = won ? Now + 1 : 0;
        if (Now > Best) Best = Now;
    }
    bool operator==(const Streak&) const = default;
};

/// Sums over a whole score list, each in list order, worked out in one walk.
struct ScoreSums {
    struct PlayerEntry {
        ScoreSummary summary;
        Streak streak;
        std::vector<Streak> byGame;  ///< as `byGame` below, as far as the player's games go
    };

    ScoreSummary all;
    std::vector<ScoreSummary> byGame;   ///< by the number that stands for the game in the list
    std::vector<PlayerEntry> byPlayer;  ///< by the number that stands for the player

    explicit ScoreSums(const ScoreList& list);
};

}  // namespace varnello
