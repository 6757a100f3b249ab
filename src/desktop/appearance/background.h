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

/// Paints the whole surface with a background. A number that names none paints the default one.
void SetBG(QImage& surface, const BackgroundChoice& choice);

/// Paints 256 bands of equal height from `colour` at the top to black at the bottom, or all of them
/// in `colour`.
void FadeFill(QImage& surface, const QColor& colour, bool fade);

}  // namespace varnello
