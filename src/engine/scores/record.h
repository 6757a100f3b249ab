#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/common/csv.h"
#include "engine/settings/game_number.h"

namespace varnello {

/// One finished game.
struct ScoreRecord {
    std::string Date;  ///< as it stands in the file; empty in the session list
    std::string Game;
    GameNumber GameNo;
    std::int32_t Time = 0;  ///< seconds
    std::int32_t Moves = 0;
    std::int32_t Score = 0;
    std::int16_t Status = 0;  ///< 1 won, anything else lost
    std::string Player;

    bool operator==(const ScoreRecord&) const = default;
};

/// An aggregate over finished games; the last three are sums that stay at the limit of 32 bits.
struct ScoreSummary {
    std::int32_t Played = 0;
    std::int32_t Won = 0;
    std::int32_t Lost = 0;
    std::int32_t Score = 0;
    std::int32_t Moves = 0;
    std::int32_t Time = 0;

    void Add(const ScoreRecord& record);
    bool operator==(const ScoreSummary&) const = default;
};

/// A game number as files hold it: 1 to 15 bare digits, or a text in quotes.
std::optional<GameNumber> ReadGameNumber(const Field& field);

/// The line of a score file without its line end. The player isn't in it.
std::string ScoreLine(const ScoreRecord& record);

/// Reads a line of a score file; empty when it is damaged.
std::optional<ScoreRecord> ParseScoreLine(std::string_view line);

}  // namespace varnello
