#include "desktop/reports/report_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QProxyStyle>
#include <QScrollBar>
#include <algorithm>

#include "desktop/platform/text.h"
#include "desktop/platform/words.h"
#include "desktop/reports/report_cells.h"

namespace varnello {
namespace {

constexpr int kMargin = ReportCells::kMargin;
constexpr int kPadding = 2 * kMargin + 4;
constexpr int kSortMark = 14;
constexpr int kRowGap = 6;           // pixels between two lines of text
constexpr int kMostCopied = 50'000;  // rows; the clipboard isn't the place for more

/// Has the titles of columns stand above what is in them.
class HeaderStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        return metric == PM_HeaderMargin ? kMargin
                                         : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

}  // namespace

ReportView::ReportView(ReportModel* model, const QString& name, QWidget* parent)
    : QTableView(parent), model_(model) {
    model->setParent(this);
    setModel(model);
    setItemDelegate(new ReportCells(this));
    auto* style = new HeaderStyle;
    style->setParent(this);
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
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowGap);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    horizontalHeader()->setSortIndicatorClearable(true);
    setSortingEnabled(true);
    byHand_.resize(static_cast<std::size_t>(model->columnCount()));
    connect(model, &QAbstractItemModel::modelReset, this, &ReportView::MeasureColumns);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int, int width) { TakeWidth(column, width); });
    disconnect(horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, this, nullptr);
    connect(horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, this,
            [this](int column) { TakeWidth(column, 0); });
    MeasureColumns();
}

void ReportView::TakeWidth(int column, int width) {
    if (fitting_) return;
    byHand_[static_cast<std::size_t>(column)] = width;
    FitColumns();
}

void ReportView::MeasureColumns() {
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics wide(bold);
    widths_.clear();
    for (int column = 0; column < model_->columnCount(); ++column) {
        const QString title =
            model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        int widest = wide.horizontalAdvance(title) + kSortMark;
        const int icon = column == 0 && model_->HasIcons() ? iconSize().width() + kMargin : 0;
        for (const QString& text : model_->WidestTexts(column)) {
            widest = std::max(widest, wide.horizontalAdvance(text) + icon);
        }
        widths_.push_back(widest + kPadding);
    }
    FitColumns();
}

/// What the columns don't need is spread over those that have their width from what is in them.
void ReportView::FitColumns() {
    const auto widthOf = [this](std::size_t column) {
        return byHand_[column] > 0 ? byHand_[column] : widths_[column];
    };
    int needed = 0;
    for (std::size_t column = 0; column < widths_.size(); ++column) needed += widthOf(column);
    auto free = static_cast<int>(std::count(byHand_.begin(), byHand_.end(), 0));
    int spare = std::max(viewport()->width() - needed, 0);
    fitting_ = true;
    for (std::size_t column = 0; column < widths_.size(); ++column) {
        const int share = byHand_[column] == 0 ? spare / free-- : 0;
        spare -= share;
        horizontalHeader()->resizeSection(static_cast<int>(column), widthOf(column) + share);
    }
    fitting_ = false;
}

void ReportView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    FitColumns();
    ScrollToCurrent();
}

void ReportView::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    ScrollToCurrent();
    scroll_ = false;
}

void ReportView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() != QEvent::FontChange) return;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowGap);
    if (!byHand_.empty()) MeasureColumns();
}

void ReportView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (model_->rowCount() > 0 || emptyText_.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

void ReportView::ShowRow(int row, bool selected) {
    if (row < 0 || row >= model_->rowCount() || row == CurrentRow()) return;
    const auto flags = selected ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                                : QItemSelectionModel::NoUpdate;
    selectionModel()->setCurrentIndex(model_->index(model_->Shown(row), 0), flags);
    scroll_ = !isVisible();
    ScrollToCurrent();
}

int ReportView::CurrentRow() const {
    return currentIndex().isValid() ? model_->Original(currentIndex().row()) : -1;
}

void ReportView::ScrollToCurrent() {
    if (scroll_ && currentIndex().isValid()) scrollTo(currentIndex(), PositionAtCenter);
}

void ReportView::Remember(WindowMemory& memory, const char* part) {
    memory.Keep(
        part, [this] { return State(); }, [this](const QString& state) { SetState(state); });
}

QString ReportView::State() const {
    QStringList words;
    for (const int width : byHand_) words << QString::number(width);
    const int sorted = horizontalHeader()->sortIndicatorSection();
    const bool down = horizontalHeader()->sortIndicatorOrder() == Qt::DescendingOrder;
    if (sorted < 0 && std::count(byHand_.begin(), byHand_.end(), 0) == words.size()) return {};
    words << QString::number(sorted < 0 ? 0 : down ? -1 - sorted : 1 + sorted);
    return words.join(QLatin1Char(' '));
}

void ReportView::SetState(const QString& state) {
    const QStringList words = state.split(QLatin1Char(' '));
    if (words.size() != static_cast<qsizetype>(byHand_.size()) + 1) return;  // other columns
    const int widest = screen()->availableSize().width();
    for (std::size_t column = 0; column < byHand_.size(); ++column) {
        byHand_[column] = std::clamp(words[static_cast<qsizetype>(column)].toInt(), 0, widest);
    }
    FitColumns();
    const int sorted =
        std::clamp(words.last().toInt(), -model_->columnCount(), model_->columnCount());
    if (sorted != 0) {
        sortByColumn(std::abs(sorted) - 1, sorted < 0 ? Qt::DescendingOrder : Qt::AscendingOrder);
    }
}

std::optional<GameChoice> ReportView::CurrentDeal() const {
    return dealOf_ && CurrentRow() >= 0 ? dealOf_(CurrentRow()) : std::nullopt;
}

void ReportView::AskForDeal() {
    if (const auto deal = CurrentDeal()) Q_EMIT DealAsked(*deal);
}

void ReportView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton || !indexAt(event->pos()).isValid()) return;
    // Once the button is up again: what opens then would never see its release.
    QMetaObject::invokeMethod(this, &ReportView::AskForDeal, Qt::QueuedConnection);
}

void ReportView::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    if (!byKey && !indexAt(event->pos()).isValid()) return;
    const auto deal = CurrentDeal();
    if (!deal) return;
    QMenu menu(this);
    QAction* play = menu.addAction(tr("&Play This Deal..."));
    QAction* copy = menu.addAction(tr("&Copy Number"));
    menu.setDefaultAction(play);
    const QRect row = visualRect(currentIndex());
    const QAction* chosen =
        menu.exec(byKey ? viewport()->mapToGlobal(row.bottomLeft() + QPoint(kMargin, 0))
                        : event->globalPos());
    if (chosen == play) Q_EMIT DealAsked(*deal);
    if (chosen == copy) QApplication::clipboard()->setText(ToQt(deal->Number->Shown()));
}

void ReportView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->matches(QKeySequence::Copy)) {
        CopyRows();
    } else if (enter && CurrentDeal()) {
        if (!event->isAutoRepeat()) AskForDeal();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void ReportView::CopyRows() {
    std::vector<std::pair<int, int>> runs;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        runs.emplace_back(range.top(), range.bottom());
    }
    if (runs.empty()) return;
    std::sort(runs.begin(), runs.end());
    int copied = 0;
    bool cut = false;
    QString text;
    for (const auto& [top, bottom] : runs) {
        for (int row = top; row <= bottom && !cut; ++row) {
            if (copied == kMostCopied) {
                cut = true;
                break;
            }
            if (copied++ > 0) text += QLatin1Char('\n');
            const ReportRow cells = model_->RowAt(model_->Original(row));
            for (std::size_t column = 0; column < cells.size(); ++column) {
                if (column > 0) text += QLatin1Char('\t');
                text += Localized(cells[column]);
            }
        }
    }
    QApplication::clipboard()->setText(text);
    if (cut) Q_EMIT CopyCut(copied);
}

}  // namespace varnello
