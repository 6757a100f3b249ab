#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "engine/common/phrase.h"
#include "engine/scores/score_list.h"

/// A game that has just been won, among the player's own wins of that game.
namespace varnello {

/// The position, from 0, of the player's last game in the list, if it is this one; dates apart.
std::optional<std::uint32_t> FindBooked(const ScoreList& list, const ScoreRecord& game);

struct OwnWins {
    std::vector<ScoreRecord> Others;  ///< the player's earlier wins of the game, oldest first
    int Place = 1;                    ///< this one's among all by time, from 1
};
/// The wins beside the player's last game, which has to be this one.
OwnWins OwnWinsOf(const ScoreList& list, const ScoreRecord& game);

/// "Your 3rd fastest of 12"; none for fewer than three wins.
std::optional<Phrase> PlaceText(const OwnWins& wins);

}  // namespace varnello
