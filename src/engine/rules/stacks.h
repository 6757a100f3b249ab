#pragma once

#include "engine/rules/playfield.h"

namespace varnello {

/// Whether a tableau card and the `n` cards above it form a group that can be carried.
bool IsRun(const Playfield& field, PicID id, int n);

/// Piles of the cell that hold no card.
int EmptyPiles(const Playfield& field, Cell cell);

/// How many cards may be carried above the one taken, in the families that have a limit.
int MaxExtraCards(const Playfield& field);

}  // namespace varnello
