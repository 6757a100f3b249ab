// Writes the sheets of card pictures that the program reads.
#pragma once

#include "artwork.h"
#include "card_shape.h"

#include <QImage>

namespace varnello::render {

QImage FacesSheet(const CardShape& shape, Artwork& artwork);
QImage SlotsSheet(const CardShape& shape, Artwork& artwork);
QImage BackPicture(const CardShape& shape, int number);

// All sheets at all ratios. Throws when a file cannot be written.
void WriteSheets(Artwork& artwork, const QString& folder);

}  // namespace varnello::render
