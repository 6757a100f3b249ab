#pragma once

#include <string>
#include <vector>

#include "engine/reports/record_columns.h"
#include "engine/scores/score_store.h"

/// The rankings of the window "High Score", 20 places each, over the open score list. Each call
/// ranks anew.
namespace varnello {

/// What the four sheets show.
extern const RecordFields kTopFields;
extern const RecordFields kTopOfGameFields;
extern const RecordFields kTopOfPlayerFields;
extern const RecordFields kFinishedFields;

/// The best scores of all games, won and lost alike.
std::vector<ReportRow> TopRows(cScore& score, const DateForms& dates);
std::vector<ReportRow> TopRowsOfGame(cScore& score, const std::string& game,
                                     const DateForms& dates);
std::vector<ReportRow> TopRowsOfPlayer(cScore& score, const std::string& player,
                                       const DateForms& dates);

/// What finished games are ranked by.
enum class FinishedBy { Score, Moves, Time };
/// The best won games: highest scores, fewest moves or shortest times.
std::vector<ReportRow> FinishedRows(cScore& score, FinishedBy by, const DateForms& dates);

}  // namespace varnello
