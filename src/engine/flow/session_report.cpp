#include "engine/flow/session_report.h"

#include <algorithm>

#include "engine/common/calendar.h"
#include "engine/common/rounding.h"

namespace varnello {
namespace {

using enum RecordField;
constexpr RecordField kRowFields[] = {Game, GameNo, Player, Time, Moves, Status, Score};
constexpr RecordField kDetails[] = {Number, Time, Moves, Score};

ReportRow RunningRow(const Engine& engine, RecordFields fields) {
    const double number = engine.score().SesTop() + 1.0;
    ReportRow row =
        RowOf(engine.score().CurrentGame(Outcome::NotWon), number, fields, engine.dates());
    const auto status = std::find(fields.begin(), fields.end(), Status);
    if (status != fields.end()) {
        row[static_cast<std::size_t>(status - fields.begin())].Text = "Running";
    }
    return row;
}

std::vector<ReportRow> Rows(const Engine& engine, RecordFields fields) {
    const cScore& score = engine.score();
    std::vector<ReportRow> rows;
    for (std::int16_t i = 1; i <= score.SesTop(); ++i) {
        rows.push_back(RowOf(score.GetSes(i), i, fields, engine.dates()));
    }
    if (engine.data().GameRunning) rows.push_back(RunningRow(engine, fields));
    return rows;
}

}  // namespace

std::vector<Column> SessionColumns() {
    auto columns = ColumnsOf(kRowFields);
    columns[1].Title = "Game No";
    return columns;
}

std::vector<Column> DetailColumns() {
    auto columns = ColumnsOf(kDetails);
    columns[0].Title = "No.";
    return columns;
}

std::string SessionElapsedLabel(const Engine& engine) {
    const std::int64_t seconds = SecondsBetween(engine.data().SesStartTime, engine.Now());
    return "Time Elapsed : " + FormatTime(Saturate32(std::max<std::int64_t>(seconds, 0)));
}

std::vector<std::string> SessionLabels(const Engine& engine) {
    const ScoreSummary summary = engine.score().SesSummary();
    return {"Started : " + engine.dates().DateAndTime(engine.data().SesStartTime),
            "Games Played : " + std::to_string(engine.score().SesTop()),
            "Games Won : " + std::to_string(summary.Won),
            "Games Lost : " + std::to_string(summary.Lost),
            "Total Score : " + std::to_string(summary.Score),
            "Total Moves : " + std::to_string(summary.Moves),
            SessionElapsedLabel(engine)};
}

GameLabels GameLabelsOf(const Engine& engine) {
    const cData& data = engine.data();
    const bool none = data.CurGName().empty();  // before the first game
    return {.Started = "Game Started : " +
                       (none ? std::string() : engine.dates().DateAndTime(data.GameStartTime)),
            .Name = "Game : " + data.CurGName(),
            .Number = "Game Number : " + data.CurGNo.Shown(),
            .Score = "Score : " + std::to_string(data.CurScore),
            .Moves = "Moves : " + std::to_string(data.CurMoves),
            .Time = "Time Elapsed : " + FormatTime(data.CurTime),
            .Player = "Player Name : " + data.CurPlayer()};
}

std::vector<ReportRow> SessionRows(const Engine& engine) { return Rows(engine, kRowFields); }

ReportRow RunningSessionRow(const Engine& engine) { return RunningRow(engine, kRowFields); }

std::vector<ReportRow> DetailRows(const Engine& engine) { return Rows(engine, kDetails); }

ReportRow RunningDetailRow(const Engine& engine) { return RunningRow(engine, kDetails); }

}  // namespace varnello
