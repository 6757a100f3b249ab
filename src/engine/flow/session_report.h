#pragma once

#include <array>
#include <vector>

#include "engine/flow/engine.h"
#include "engine/reports/record_columns.h"

/// The figures of the window "Session Statistics": this run of the program and the running game.
namespace varnello {

/// The labels of "This Session", from top to bottom.
struct SessionLabels {
    Phrase lblSesStarted, lblSesPlayed, lblSesWon, lblSesLost, lblsesScore, lblSesMoves,
        lblSesElapsedTime;

    std::array<Phrase, 7> InOrder() const {
        return {lblSesStarted, lblSesPlayed, lblSesWon,        lblSesLost,
                lblsesScore,   lblSesMoves,  lblSesElapsedTime};
    }
};
SessionLabels SessionLabelsOf(const Engine& engine);
Phrase SessionElapsedLabel(const Engine& engine);

/// The labels of "This Game", from top to bottom; they keep the last figures after a game's end.
struct GameLabels {
    Phrase lblGameStarted, lblGameName, lblGameNo, lblGameScore, lblGameMoves, lblGameTime,
        lblPlayer;

    std::array<Phrase, 7> InOrder() const {
        return {lblGameStarted, lblGameName, lblGameNo, lblGameScore,
                lblGameMoves,   lblGameTime, lblPlayer};
    }
};
GameLabels GameLabelsOf(const Engine& engine);

/// The list of games, and the same games by number, time, moves and score.
extern const RecordColumns kSessionColumns;
extern const RecordColumns kDetailColumns;
/// A row for each game that has ended and, while a game runs, a last one for that.
std::vector<ReportRow> SessionRows(const Engine& engine, RecordColumns columns);
ReportRow RunningRow(const Engine& engine, RecordColumns columns);

}  // namespace varnello
