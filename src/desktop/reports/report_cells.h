#pragma once

#include <QStyledItemDelegate>

namespace varnello {

/// Draws the cells of a report. Keeps a number at the right of its cell and a text at the left of
/// the next one apart, whatever the style.
class ReportCells : public QStyledItemDelegate {
public:
    static constexpr int kMargin = 7;  ///< pixels at either side of a cell's text

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

}  // namespace varnello
