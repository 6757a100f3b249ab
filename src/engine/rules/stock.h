#pragma once

#include "engine/rules/playfield.h"

namespace varnello {

/// Deals one stock card onto each tableau pile, left to right, while cards remain. One undo step.
void DealRow(const Playfield& field);

/// Turns the waste back into the stock, card by card. One undo step.
void Redeal(const Playfield& field);

}  // namespace varnello
