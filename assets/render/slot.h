// Paints the places where no card lies.
#pragma once

#include "artwork.h"
#include "card_shape.h"

namespace varnello::render {

// 0 to 12 are marked with a rank; the rest follow in this order.
inline constexpr int emblemSlot = 13;
inline constexpr int plainSlot = 14;
inline constexpr int stopSlot = 15;
inline constexpr int redealSlot = 16;
inline constexpr int emptyStockSlot = 17;
inline constexpr int slotCount = 18;

void DrawSlot(QPainter& painter, const CardShape& shape, Artwork& artwork, int slot);

}  // namespace varnello::render
