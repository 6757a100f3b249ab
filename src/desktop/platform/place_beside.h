#pragma once

#include <QRect>

namespace varnello {

/// The place for a window of this size, with its frame, that covers least of `spared`, all within
/// `available`; of equal ones the one furthest to the right, then at the top.
QRect PlaceBeside(const QRect& available, const QRect& spared, QSize size);

}  // namespace varnello
