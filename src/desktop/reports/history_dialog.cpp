#include "desktop/reports/history_dialog.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/appearance/icons.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_memory.h"
#include "desktop/platform/words.h"
#include "engine/movelog/history.h"

namespace varnello {
namespace {

constexpr int kColumns = 4;
constexpr int kWidths[kColumns] = {71, 282, 282, 76};  // pixels
constexpr QSize kSize(760, 460);

/// Dark red for the last move, olive for the undone ones; lighter where the list is dark.
QColor ColourOf(HistoryMark mark, bool dark) {
    if (mark == HistoryMark::Last) return dark ? QColor(255, 138, 128) : QColor(128, 0, 0);
    return dark ? QColor(214, 204, 96) : QColor(128, 128, 0);
}

QTreeWidgetItem* ItemOf(const HistoryRow& row, const QIcon& icon, bool dark) {
    auto* item = new QTreeWidgetItem({AsFigure(row.Number), Localized(row.Source),
                                      Localized(row.Destination), AsFigure(row.Cards)});
    item->setIcon(0, icon);
    if (row.Mark == HistoryMark::Applied) return item;
    for (int column = 0; column < kColumns; ++column) {
        item->setForeground(column, ColourOf(row.Mark, dark));
        QFont font = item->font(column);
        font.setBold(row.Mark == HistoryMark::Last);
        item->setFont(column, font);
    }
    return item;
}

}  // namespace

HistoryDialog::HistoryDialog(const cTrans& log, SettingsStore& store, QWidget* parent)
    : QDialog(parent), lvHistory_(new QTreeWidget) {
    setWindowTitle(tr("Game History"));
    lvHistory_->setHeaderLabels({QString(), tr("Source"), tr("Destination"), tr("Cards")});
    lvHistory_->headerItem()->setData(0, Qt::AccessibleTextRole, tr("Number"));
    lvHistory_->setRootIsDecorated(false);
    lvHistory_->setUniformRowHeights(true);
    lvHistory_->setAllColumnsShowFocus(true);
    lvHistory_->setAccessibleName(tr("Moves"));
    for (int column = 0; column < kColumns; ++column) {
        lvHistory_->header()->resizeSection(column, kWidths[column]);
    }

    const bool dark = lvHistory_->palette().color(QPalette::Base).lightness() < 128;
    const QIcon icon = SmallIcon(QStringLiteral("move"));
    QList<QTreeWidgetItem*> items;
    QTreeWidgetItem* last = nullptr;
    for (const HistoryRow& row : log.CreateLV()) {
        items << ItemOf(row, icon, dark);
        if (row.Mark == HistoryMark::Last) last = items.back();
    }
    lvHistory_->addTopLevelItems(items);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* all = new QVBoxLayout(this);
    all->addWidget(lvHistory_);
    all->addWidget(buttons);
    new WindowMemory(this, store, "History", kSize);
    if (!last) return;
    lvHistory_->setCurrentItem(last);
    lvHistory_->clearSelection();  // its colour tells enough
    layout()->activate();          // the list has its size from here on
    lvHistory_->scrollToItem(last, QAbstractItemView::PositionAtCenter);
}

}  // namespace varnello
