#pragma once

#include <QSize>
#include <QWidget>

namespace varnello {

/// The size of a window with its font and within its screen, of a size that was made for a font of
/// 9 points; pixels without the frame.
QSize SizeFor(const QWidget& window, const QSize& atNinePoints);

/// The same for a size that is right for the font.
QSize BoundedByScreen(const QWidget& window, const QSize& size);

}  // namespace varnello
