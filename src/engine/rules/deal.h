#pragma once

#include "engine/rules/playfield.h"

namespace varnello {

/// Gives each card object of the game the value that the shuffle drew for it.
void SetCardValues(const Playfield& field);

/// Lays the shuffled cards out for the game on the table: foundations, slots, stock, waste,
/// reserves, and last the tableau. The definition has to fit the deck.
void NewDeal(const Playfield& field);

// Slot pictures.
inline constexpr std::int16_t kRunSlot = 13;    ///< a foundation that takes whole runs
inline constexpr std::int16_t kPlainSlot = 14;  ///< the stock's pictures follow it

}  // namespace varnello
