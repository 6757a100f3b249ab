#include "engine/reports/high_scores.h"

namespace varnello {
namespace {

using namespace columns;

constexpr RecordColumn kTop[] = {Number, Player, Game, Score, Time, Moves, Status, Date, GameNo};
constexpr RecordColumn kTopOfGame[] = {Number, Player, Score, Time, Moves, Status, Date, GameNo};
constexpr RecordColumn kTopOfPlayer[] = {Number, Game, Score, Time, Moves, Status, Date, GameNo};
constexpr RecordColumn kFinished[] = {Number, Player, Game, Score, Time, Moves, Date, GameNo};

using Shown = bool (*)(const ScoreRecord&);
bool HasScore(const ScoreRecord& record) { return record.Score > 0; }
bool HasDate(const ScoreRecord& record) { return !record.Date.empty(); }

/// The places of the ranking that was asked for last.
Ranking Places(const cScore& score, Shown shown, RecordColumns columns, const DateForms& dates) {
    Ranking ranking;
    for (std::int16_t place = 1; place <= kTopPlaces; ++place) {
        const ScoreRecord record = score.GetTopScore(place);
        if (!shown(record)) continue;
        ranking.Rows.push_back(RowOf(record, place, columns, dates));
        ranking.Positions.push_back(score.TopPosition(place));
    }
    return ranking;
}

}  // namespace

const RecordColumns kTopColumns = kTop;
const RecordColumns kTopOfGameColumns = kTopOfGame;
const RecordColumns kTopOfPlayerColumns = kTopOfPlayer;
const RecordColumns kFinishedColumns = kFinished;

Ranking TopRows(cScore& score, const DateForms& dates) {
    score.Sort("", "", 0);
    return Places(score, HasScore, kTop, dates);
}

Ranking TopRowsOfGame(cScore& score, const std::string& game, const DateForms& dates) {
    score.Sort(game, "", 0);
    return Places(score, HasScore, kTopOfGame, dates);
}

Ranking TopRowsOfPlayer(cScore& score, const std::string& player, const DateForms& dates) {
    score.Sort("", player, 0);
    return Places(score, HasScore, kTopOfPlayer, dates);
}

Ranking FinishedRows(cScore& score, FinishedBy by, const DateForms& dates) {
    switch (by) {
        case FinishedBy::Score: score.Sort("", "", 1); break;
        case FinishedBy::Moves: score.FinSort(FinKey::Moves); break;
        case FinishedBy::Time: score.FinSort(FinKey::Time); break;
    }
    return Places(score, HasDate, kFinished, dates);
}

}  // namespace varnello
