#pragma once

#include "engine/rules/playfield.h"

namespace varnello {

/// One pass over the board. In the family "Spider" it takes completed runs off the tableau,
/// whatever the settings say; elsewhere it sends up every card that fits a foundation, if player
/// and game allow it. Each move it makes runs a whole pass of its own before this one goes on.
void AutoPlay(const Playfield& field);

/// Sends the card to the first foundation that takes it; false when none does.
bool PlayToGoal(const Playfield& field, PicID id);

}  // namespace varnello
