#pragma once

#include <span>
#include <string_view>

#include "engine/definitions/game_row.h"

namespace varnello {

/// All games in alphabetical order; a game's id is its place here, counted from 1.
extern const std::span<const GameRow> kCatalogue;

inline int TotalGames() { return static_cast<int>(kCatalogue.size()); }

/// The row with exactly this name, or nullptr.
const GameRow* FindGame(std::string_view name);

/// Stores a row in `games`, after the defaults for what the row leaves out.
void SelectRow(cGames& games, const GameRow& row);

/// Stores the row of the game called `name`; a name of no game leaves the record but for the
/// reserve, the waste and the foundations' base rank as it was.
void SelectGame(cGames& games, std::string_view name);

}  // namespace varnello
