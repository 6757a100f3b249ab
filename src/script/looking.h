#pragma once

#include <ostream>

#include "engine/flow/engine.h"

/// What the scripted table prints of the engine's state. Nothing here changes anything.
namespace varnello::script {

void PrintBoard(std::ostream& out, const Engine& engine);
void PrintLog(std::ostream& out, const Engine& engine);
void PrintState(std::ostream& out, const Engine& engine);
void PrintMarks(std::ostream& out, const Engine& engine);
void PrintRecent(std::ostream& out, const Engine& engine);
void PrintScores(std::ostream& out, const Engine& engine);
void PrintPlayers(std::ostream& out, const Engine& engine);
void PrintHistory(std::ostream& out, const Engine& engine);
void PrintFavorites(std::ostream& out, const Favorites& favorites, std::string_view game);
void PrintFinish(std::ostream& out, const Engine& engine);
void PrintMove(std::ostream& out, const CardMove& move);

}  // namespace varnello::script
