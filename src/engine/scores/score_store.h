#pragma once

#include <cstdint>
#include <vector>

#include "engine/desktop.h"
#include "engine/scores/record.h"
#include "engine/settings/data.h"

namespace varnello {

/// The finished games: files on disk, one a player, and the list of this run. A report opens the
/// files into one list in memory, asks, and closes it; nothing derived from them is stored.
class cScore {
public:
    cScore(cData& data, const Clock& clock);

    /// Appends the current game to the current player's file. False when it can't be written.
    bool AddScore(std::int16_t Status);
    /// Adds the current game to the list of this run.
    void AddSesGame(std::int16_t Status);

    /// Appends the player's games to the list; damaged lines are skipped.
    void OpenScore(const std::string& Player);
    void OpenAllScore();
    void CloseScore() { scoreList_.clear(); }
    std::int32_t ScoreTop() const { return static_cast<std::int32_t>(scoreList_.size()); }
    /// A record of the open list, 1 to `ScoreTop`.
    const ScoreRecord& GetScore(std::int32_t Index) const {
        return scoreList_.at(static_cast<std::size_t>(Index - 1));
    }

    std::int16_t SesTop() const { return static_cast<std::int16_t>(sesList_.size()); }
    /// A game of this run, 1 to `SesTop`.
    const ScoreRecord& GetSes(std::int16_t Index) const {
        return sesList_.at(static_cast<std::size_t>(Index - 1));
    }
    ScoreSummary SesSummary() const;

private:
    ScoreRecord CurrentGame(std::int16_t Status) const;

    cData& data_;
    const Clock& clock_;
    std::vector<ScoreRecord> scoreList_;
    std::vector<ScoreRecord> sesList_;
};

}  // namespace varnello
