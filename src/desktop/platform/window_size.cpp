#include "desktop/platform/window_size.h"

#include <QScreen>
#include <algorithm>

namespace varnello {
namespace {

constexpr QSize kFrame(16, 48);        // pixels that a window's frame may take
constexpr double kNinePointLine = 15;  // pixels

}  // namespace

QSize SizeFor(const QWidget& window, const QSize& atNinePoints) {
    const double scale = std::max(window.fontMetrics().height() / kNinePointLine, 1.0);
    return BoundedByScreen(window, atNinePoints * scale);
}

QSize BoundedByScreen(const QWidget& window, const QSize& size) {
    const QWidget* parent = window.parentWidget();
    const QScreen* screen = (parent ? parent : &window)->screen();
    return size.boundedTo(screen->availableSize() - kFrame);
}

}  // namespace varnello
