#include "engine/flow/session_report.h"

#include <algorithm>

#include "engine/common/calendar.h"
#include "engine/common/rounding.h"

namespace varnello {
namespace {

using namespace columns;
constexpr RecordColumn kSession[] = {
    Game, {RecordField::GameNo, "Game No"}, Player, Time, Moves, Status, Score};
constexpr RecordColumn kDetails[] = {{RecordField::Number, "No."}, Time, Moves, Score};

}  // namespace

const RecordColumns kSessionColumns = kSession;
const RecordColumns kDetailColumns = kDetails;

std::vector<ReportRow> SessionRows(const Engine& engine, RecordColumns columns) {
    const cScore& score = engine.score();
    std::vector<ReportRow> rows;
    for (std::int16_t i = 1; i <= score.SesTop(); ++i) {
        rows.push_back(RowOf(score.GetSes(i), i, columns, engine.dates()));
    }
    if (engine.data().GameRunning) rows.push_back(RunningRow(engine, columns));
    return rows;
}

ReportRow RunningRow(const Engine& engine, RecordColumns columns) {
    const double number = engine.score().SesTop() + 1.0;
    ReportRow row =
        RowOf(engine.score().CurrentGame(Outcome::NotWon), number, columns, engine.dates());
    const std::size_t status = PlaceOf(RecordField::Status, columns);
    if (status < row.size()) row[status].Text = "Running";
    return row;
}

std::string SessionElapsedLabel(const Engine& engine) {
    return "Time Elapsed : " + FormatTime(engine.counters().SessionTime());
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

}  // namespace varnello
