#include "desktop/reports/report_view.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QProxyStyle>
#include <algorithm>
#include <numeric>

#include "desktop/platform/text.h"

namespace varnello {
namespace {

constexpr int kMargin = 7;  // pixels at either side of a cell's text
constexpr int kPadding = 2 * kMargin + 4;
constexpr int kIconRoom = 22;
constexpr int kSortMark = 14;

/// Keeps a number at the right of its cell and a text at the left of the next one apart.
class RoomyCells : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        if (metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin) return kMargin;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
};

}  // namespace

ReportView::ReportView(ReportModel* model, const QString& name, QWidget* parent)
    : QTableView(parent), model_(model) {
    model->setParent(this);
    setModel(model);
    auto* style = new RoomyCells;
    style->setParent(this);
    setStyle(style);
    horizontalHeader()->setStyle(style);
    setAccessibleName(name);
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setIconSize(QSize(16, 16));
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    horizontalHeader()->setSortIndicatorClearable(true);
    setSortingEnabled(true);
    connect(model, &QAbstractItemModel::modelReset, this, &ReportView::MeasureColumns);
    MeasureColumns();
}

void ReportView::MeasureColumns() {
    const QFontMetrics metrics = fontMetrics();
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics wide(bold);
    widths_.clear();
    for (int column = 0; column < model_->columnCount(); ++column) {
        const QString title =
            model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        widths_.push_back(wide.horizontalAdvance(title) + kPadding + kSortMark);
    }
    for (const int row : model_->WidestRows()) {
        const ReportRow cells = model_->RowAt(row);
        for (std::size_t column = 0; column < cells.size(); ++column) {
            const QString text = ToQt(cells[column].Text);
            const int width =
                wide.horizontalAdvance(text) + kPadding + (column == 0 ? kIconRoom : 0);
            widths_[column] = std::max(widths_[column], width);
        }
    }
    FitColumns();
}

/// What the columns don't need is spread over all of them.
void ReportView::FitColumns() {
    const int needed = std::accumulate(widths_.begin(), widths_.end(), 0);
    const int count = static_cast<int>(widths_.size());
    int spare = std::max(viewport()->width() - needed, 0);
    for (int column = 0; column < count; ++column) {
        const int share = spare / (count - column);
        spare -= share;
        horizontalHeader()->resizeSection(column,
                                          widths_[static_cast<std::size_t>(column)] + share);
    }
}

void ReportView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    FitColumns();
}

void ReportView::keyPressEvent(QKeyEvent* event) {
    if (!event->matches(QKeySequence::Copy)) return QTableView::keyPressEvent(event);
    QStringList lines;
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    for (const QModelIndex& row : rows) {
        QStringList cells;
        for (int column = 0; column < model_->columnCount(); ++column) {
            cells << row.siblingAtColumn(column).data().toString();
        }
        lines << cells.join(QLatin1Char('\t'));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

}  // namespace varnello
