#include "engine/flow/session_report.h"

namespace varnello {
namespace {

using namespace columns;
constexpr RecordColumn kSession[] = {
    Game, {RecordField::GameNo, say::Text("Game No")}, Player, Time, Moves, Status, Score};
constexpr RecordColumn kDetails[] = {{RecordField::Number, say::Text("No.")}, Time, Moves, Score};

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
    if (status < row.size()) row[status] = WordCell(say::Text("Running"));
    return row;
}

Phrase SessionElapsedLabel(const Engine& engine) {
    return Say("Time Elapsed : %1", {Duration{engine.counters().SessionTime()}});
}

SessionLabels SessionLabelsOf(const Engine& engine) {
    const ScoreSummary summary = engine.score().SesSummary();
    return {.lblSesStarted =
                Say("Started : %1", {engine.dates().DateAndTime(engine.data().SesStartTime)}),
            .lblSesPlayed = Say("Games Played : %1", {engine.score().SesTop()}),
            .lblSesWon = Say("Games Won : %1", {summary.Won}),
            .lblSesLost = Say("Games Lost : %1", {summary.Lost}),
            .lblsesScore = Say("Total Score : %1", {summary.Score}),
            .lblSesMoves = Say("Total Moves : %1", {summary.Moves}),
            .lblSesElapsedTime = SessionElapsedLabel(engine)};
}

GameLabels GameLabelsOf(const Engine& engine) {
    const cData& data = engine.data();
    const bool none = data.CurGName().empty();  // before the first game
    const std::string started =
        none ? std::string() : engine.dates().DateAndTime(data.GameStartTime);
    return {.lblGameStarted = Say("Game Started : %1", {started}),
            .lblGameName = Say("Game : %1", {data.CurGName()}),
            .lblGameNo = Say("Game Number : %1", {data.CurGNo.Shown()}),
            .lblGameScore = Say("Score : %1", {data.CurScore}),
            .lblGameMoves = Say("Moves : %1", {data.CurMoves}),
            .lblGameTime = Say("Time Elapsed : %1", {Duration{data.CurTime}}),
            .lblPlayer = Say("Player Name : %1", {data.CurPlayer()})};
}

}  // namespace varnello
