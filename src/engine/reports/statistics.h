#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/reports/row.h"
#include "engine/scores/score_store.h"
#include "engine/settings/data.h"

/// The figures of the window "Game Statistics", worked out from the open score list.
namespace varnello {

/// The lines of the general summary, each a label and its value.
std::vector<Phrase> GeneralLines(const ScoreSummary& summary);

/// The columns of sums over `what`.
constexpr std::array<Column, 8> SumColumns(std::string_view what) {
    return {{{what},
             {say::Text("Played"), ColumnKind::Value},
             {say::Text("Won"), ColumnKind::Value},
             {say::Text("Lost"), ColumnKind::Value},
             {say::Text("Time"), ColumnKind::Value},
             {say::Text("Moves"), ColumnKind::Value},
             {say::Text("Score"), ColumnKind::Value},
             {say::Text("Perc"), ColumnKind::Value}}};
}
inline constexpr auto kGameColumns = SumColumns(say::Text("Game"));
inline constexpr auto kPlayerColumns = SumColumns(say::Text("Player"));

/// A row for each game; the percentage has two decimals.
std::vector<ReportRow> GameRows(const cScore& score, const cData& data);
/// A row for each player in slot order; the percentage is whole.
std::vector<ReportRow> PlayerRows(const cScore& score, const cData& data);

/// A choice of periods: so many days, months or years, the last one the present.
struct PeriodChoice {
    std::string_view Text;
    std::string_view Key;
    Interval interval;
    int Rows;
    std::string_view Heading;  ///< of the list's first column
};
std::span<const PeriodChoice> PeriodChoices();

/// The columns of the list of a choice's periods.
std::array<Column, 3> PeriodColumns(const PeriodChoice& choice);

/// The periods of a choice, oldest first.
std::vector<PeriodSummary> PeriodRows(const cScore& score, const PeriodChoice& choice,
                                      const DateTime& now);
/// A line of the list of periods: label, played, won. The labels sort in order of time.
std::vector<ReportRow> PeriodLines(const std::vector<PeriodSummary>& periods);

/// Score, moves and seconds of a game, as the row charts show them.
using GameFigures = std::array<std::int32_t, 3>;
/// The first games of one kind in list order, at most 50.
std::vector<ScoreRecord> FirstGames(const cScore& score, std::string_view game);

}  // namespace varnello
