// Paints the framed double figure of a jack, queen or king.
#pragma once

#include "artwork.h"
#include "card_shape.h"

namespace varnello::render {

void DrawCourt(QPainter& painter, const CardShape& shape, Artwork& artwork, const QString& suit,
               const QString& rank);

}  // namespace varnello::render
