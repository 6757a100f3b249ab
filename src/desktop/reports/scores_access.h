#pragma once

#include <QWidget>

#include "engine/flow/engine.h"
#include "engine/reports/wins.h"

namespace varnello {

/// Opens the score list for a window, in sight of the person where that takes long. False when that
/// was stopped.
bool OpenScores(Engine& engine, QWidget* parent);

/// The current player's wins of the game that was just won and booked. The score list stays closed.
OwnWins LoadOwnWins(Engine& engine, QWidget* parent);

/// Asks for a file and writes the report over all results into it.
void ExportScores(Engine& engine, QWidget* parent);

}  // namespace varnello
