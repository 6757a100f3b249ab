#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/reports/record_columns.h"
#include "engine/scores/score_store.h"

/// The plain log of all games, window "Log Statistics".
namespace varnello {

extern const RecordColumns kLogColumns;

/// How old a game may be. Ages are calendar differences to the present.
struct AgeChoice {
    std::string_view Text;
    std::string_view Key;
    bool (*Passes)(std::int64_t days, std::int64_t months);
};
/// The last one, "all", also lets games pass whose date is odd or in the future.
std::span<const AgeChoice> AgeChoices();

struct LogFilter {
    std::string Player;  ///< empty for all
    std::string Game;    ///< empty for all
    const AgeChoice* Age = &AgeChoices().back();
};

/// The positions in the score list, from 0, of the games that pass, in list order.
std::vector<std::uint32_t> LogPositions(const ScoreList& list, const LogFilter& filter,
                                        const DateTime& now);

/// What some games have in common.
struct LogTotals {
    ScoreSummary Sum;
    std::int32_t BestScore = 0;
};
LogTotals TotalsOf(const ScoreList& list, std::span<const std::uint32_t> positions);

/// The position of the game that ended last, from 0; of none when no date can be read.
std::optional<std::uint32_t> NewestOf(const ScoreList& list);

}  // namespace varnello
