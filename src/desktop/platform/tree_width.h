#pragma once

#include <QTreeWidget>

namespace varnello {

/// The width in pixels at which no text of a tree is cut, whatever is open, beside a scroll bar.
int WidthOfTree(const QTreeWidget& tree);

}  // namespace varnello
