#pragma once

#include <string>
#include <vector>

#include "engine/reports/record_columns.h"
#include "engine/scores/score_store.h"

/// The rankings of the window "High Score", 20 places each, over the open score list. Each call
/// ranks anew.
namespace varnello {

/// What the four sheets show.
extern const RecordColumns kTopColumns;
extern const RecordColumns kTopOfGameColumns;
extern const RecordColumns kTopOfPlayerColumns;
extern const RecordColumns kFinishedColumns;

struct Ranking {
    std::vector<ReportRow> Rows;
    std::vector<std::uint32_t> Positions;  ///< of each row's game in the open list, from 0
};

/// The best scores of all games, won and lost alike.
Ranking TopRows(cScore& score, const DateForms& dates);
Ranking TopRowsOfGame(cScore& score, const std::string& game, const DateForms& dates);
Ranking TopRowsOfPlayer(cScore& score, const std::string& player, const DateForms& dates);

/// What finished games are ranked by.
enum class FinishedBy { Score, Moves, Time };
/// The best won games: highest scores, fewest moves or shortest times.
Ranking FinishedRows(cScore& score, FinishedBy by, const DateForms& dates);

}  // namespace varnello
