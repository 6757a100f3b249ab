#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/common/csv.h"
#include "engine/common/rounding.h"
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

    /// Adds one game; `record` is a `ScoreRecord` or has the figures of one.
    template <typename Record>
    void Add(const Record& record) {
        Played = Saturate32(std::int64_t{Played} + 1);
        if (record.Status == 1) Won = Saturate32(std::int64_t{Won} + 1);
        Lost = Played - Won;
        Score = Saturate32(std::int64_t{Score} + record.Score);
        Moves = Saturate32(std::int64_t{Moves} + record.Moves);
        Time = Saturate32(std::int64_t{Time} + record.Time);
    }
    bool operator==(const ScoreSummary&) const = default;
};

/// A game number as files hold it: 1 to 15 bare digits, or a text in quotes.
struct NumberField {
    bool Quoted = false;
    std::string_view Text;    ///< when quoted
    std::int64_t Digits = 0;  ///< when bare

    bool Take(FieldReader& reader);
    GameNumber Number() const;
};

/// The line of a score file without its line end. The player isn't in it.
std::string ScoreLine(const ScoreRecord& record);

/// The fields of a well-formed line of a score file, as views into the line.
struct ScoreFields {
    std::string_view Date;
    std::string_view Game;
    NumberField GameNo;
    std::int32_t Time = 0;
    std::int32_t Moves = 0;
    std::int32_t Score = 0;
    std::int16_t Status = 0;
};

/// Reads a line of a score file; empty when it is damaged.
std::optional<ScoreFields> ReadScoreLine(std::string_view line);

}  // namespace varnello
