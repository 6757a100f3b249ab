#include "desktop/reports/report_cells.h"

#include <QApplication>
#include <QPainter>

namespace varnello {

void ReportCells::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);

    QRect room = cell.rect.adjusted(kMargin, 0, -kMargin, 0);
    const bool selected = cell.state & QStyle::State_Selected;
    if (!cell.icon.isNull()) {
        const QRect icon(
            room.topLeft() + QPoint(0, (room.height() - cell.decorationSize.height()) / 2),
            cell.decorationSize);
        cell.icon.paint(painter, QStyle::visualRect(cell.direction, cell.rect, icon),
                        Qt::AlignCenter, selected ? QIcon::Selected : QIcon::Normal);
        room.setLeft(icon.right() + kMargin);
        room = QStyle::visualRect(cell.direction, cell.rect, room);
    }
    const bool active = cell.state & QStyle::State_Active;
    painter->save();
    painter->setFont(cell.font);
    painter->setPen(cell.palette.color(active ? QPalette::Active : QPalette::Inactive,
                                       selected ? QPalette::HighlightedText : QPalette::Text));
    const QString text = painter->fontMetrics().elidedText(cell.text, Qt::ElideRight, room.width());
    painter->drawText(room, static_cast<int>(cell.displayAlignment) | Qt::TextSingleLine, text);
    painter->restore();
}

}  // namespace varnello
