#include "desktop/platform/tree_width.h"

#include <QScrollBar>
#include <QTreeWidgetItemIterator>
#include <algorithm>

namespace varnello {
namespace {

constexpr int kMargins = 16;  // pixels around icon and text
constexpr int kIcon = 16;     // pixels, where a tree names no size

}  // namespace

int WidthOfTree(const QTreeWidget& tree) {
    const int icon = tree.iconSize().isValid() ? tree.iconSize().width() : kIcon;
    int widest = 0;
    // The toolkit's iterator changes nothing, but takes no const tree.
    for (QTreeWidgetItemIterator at(const_cast<QTreeWidget*>(&tree)); *at; ++at) {
        int depth = 1;
        for (const QTreeWidgetItem* item = (*at)->parent(); item; item = item->parent()) ++depth;
        const int text = tree.fontMetrics().horizontalAdvance((*at)->text(0));
        widest = std::max(widest, depth * tree.indentation() + icon + text);
    }
    return widest + kMargins + 2 * tree.frameWidth() + tree.verticalScrollBar()->sizeHint().width();
}

}  // namespace varnello
