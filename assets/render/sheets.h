// The card pictures, drawn at any scale: CardShape(1) has 71 by 96 pixels.
#pragma once

#include "artwork.h"
#include "card_shape.h"

#include <QImage>

namespace varnello::render {

// Faces in 13 columns from the ace to the king; rows are hearts, spades, diamonds, clubs.
QImage FacesSheet(const CardShape& shape, Artwork& artwork);
// The slots of slot.h side by side.
QImage SlotsSheet(const CardShape& shape, Artwork& artwork);
// The back with this number; the default back for a number that has none.
QImage BackPicture(const CardShape& shape, int number);

}  // namespace varnello::render
