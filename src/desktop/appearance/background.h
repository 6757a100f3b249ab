#pragma once

#include <QImage>

#include "engine/settings/data.h"

namespace varnello {

/// What the table looks like, as chosen in the settings or in a dialog.
struct BackgroundChoice {
    int bgIndex = keys::BGIndex.Default;
    bool fade = true;                                ///< to black at the bottom; colours only
    std::int32_t customColor = kDefaultCustomColor;  ///< red + 256 x green + 65536 x blue
};

BackgroundChoice StoredBackground(const cData& data);

/// Paints the whole surface, of this device pixel ratio, with a background: below 1000 a tile, 1000
/// the custom colour, above it a named colour. A number that names none paints the default one.
void SetBG(QImage& surface, double ratio, const BackgroundChoice& choice);

/// The tile of a background, at this device pixel ratio; a null picture for one without tiles.
QImage TilePicture(double ratio, const BackgroundChoice& choice);

/// Paints tiles from the top left corner on, row by row; the last ones are cut by the edge. False,
/// with nothing painted, for a number that names no tile.
bool TileFill(QImage& surface, double ratio, int id);

/// Paints 256 bands of equal height from `colour` at the top to black at the bottom, or all of them
/// in `colour`.
void FadeFill(QImage& surface, const QColor& colour, bool fade);

}  // namespace varnello
