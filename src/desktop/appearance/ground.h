#pragma once

#include <QImage>
#include <QRect>

#include "desktop/appearance/background.h"

namespace varnello {

/// The surface under the whole client area, in device pixels: on `table` exactly the table's
/// background, and around it the same going on, tiles in phase and a fade at its height, darkening
/// mildly away from the table as under a lamp. `scale` is the device pixels of a pixel of the
/// table.
QImage GroundPicture(QSize size, const QRect& table, double scale, const BackgroundChoice& choice);

}  // namespace varnello
