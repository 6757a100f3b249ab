#include "desktop/platform/place_beside.h"

#include <cstdint>

namespace varnello {
namespace {

std::int64_t Area(const QRect& rect) {
    return rect.isEmpty() ? 0 : std::int64_t{rect.width()} * rect.height();
}

}  // namespace

QRect PlaceBeside(const QRect& available, const QRect& spared, QSize size) {
    QRect best(QPoint(), size.boundedTo(available.size()));
    const int right = available.right() + 1 - best.width();
    const int bottom = available.bottom() + 1 - best.height();
    std::int64_t least = -1;
    for (const int x : {right, available.left()}) {
        for (const int y : {available.top(), bottom}) {
            const QRect place(QPoint(x, y), best.size());
            const std::int64_t covered = Area(place & spared);
            if (least >= 0 && covered >= least) continue;
            least = covered;
            best = place;
        }
    }
    return best;
}

}  // namespace varnello
