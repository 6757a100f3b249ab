#include "engine/reports/high_scores.h"

namespace varnello {
namespace {

using enum RecordField;

constexpr RecordField kTop[] = {Number, Player, Game, Score, Time, Moves, Status, Date, GameNo};
constexpr RecordField kTopOfGame[] = {Number, Player, Score, Time, Moves, Status, Date, GameNo};
constexpr RecordField kTopOfPlayer[] = {Number, Game, Score, Time, Moves, Status, Date, GameNo};
constexpr RecordField kFinished[] = {Number, Player, Game, Score, Time, Moves, Date, GameNo};

using Shown = bool (*)(const ScoreRecord&);
bool HasScore(const ScoreRecord& record) { return record.Score > 0; }
bool HasDate(const ScoreRecord& record) { return !record.Date.empty(); }

/// The places of the ranking that was asked for last.
std::vector<ReportRow> Places(const cScore& score, Shown shown, RecordFields fields,
                              const DateForms& dates) {
    std::vector<ReportRow> rows;
    for (std::int16_t place = 1; place <= kTopPlaces; ++place) {
        const ScoreRecord record = score.GetTopScore(place);
        if (shown(record)) rows.push_back(RowOf(record, place, fields, dates));
    }
    return rows;
}

}  // namespace

const RecordFields kTopFields = kTop;
const RecordFields kTopOfGameFields = kTopOfGame;
const RecordFields kTopOfPlayerFields = kTopOfPlayer;
const RecordFields kFinishedFields = kFinished;

std::vector<ReportRow> TopRows(cScore& score, const DateForms& dates) {
    score.Sort("", "", 0);
    return Places(score, HasScore, kTop, dates);
}

std::vector<ReportRow> TopRowsOfGame(cScore& score, const std::string& game,
                                     const DateForms& dates) {
    score.Sort(game, "", 0);
    return Places(score, HasScore, kTopOfGame, dates);
}

std::vector<ReportRow> TopRowsOfPlayer(cScore& score, const std::string& player,
                                       const DateForms& dates) {
    score.Sort("", player, 0);
    return Places(score, HasScore, kTopOfPlayer, dates);
}

std::vector<ReportRow> FinishedRows(cScore& score, FinishedBy by, const DateForms& dates) {
    switch (by) {
        case FinishedBy::Score: score.Sort("", "", 1); break;
        case FinishedBy::Moves: score.FinSort(false, true); break;
        case FinishedBy::Time: score.FinSort(true, false); break;
    }
    return Places(score, HasDate, kFinished, dates);
}

}  // namespace varnello
