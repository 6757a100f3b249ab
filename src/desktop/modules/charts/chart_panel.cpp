#include "desktop/modules/charts/chart_panel.h"

#include <QChartView>
#include <QEvent>
#include <QGraphicsLayout>
#include <QHelpEvent>
#include <QLegend>
#include <QMouseEvent>
#include <QToolTip>
#include <memory>

#include "desktop/modules/charts/colours.h"
#include "desktop/modules/charts/table.h"

namespace varnello {
namespace {

constexpr QSize kSmallest(120, 80);  // pixels; a smaller view isn't laid out yet

}  // namespace

class ChartPanel::View : public QChartView {
public:
    explicit View(ChartPanel& panel) : QChartView(&panel), panel_(panel) {
        setRenderHint(QPainter::Antialiasing);
        setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);  // as the lists beside it
        setFocusPolicy(Qt::NoFocus);
        viewport()->setMouseTracking(true);
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QChartView::resizeEvent(event);
        panel_.Redraw();
    }

    bool viewportEvent(QEvent* event) override {
        if (event->type() == QEvent::ToolTip) {
            const auto* help = static_cast<QHelpEvent*>(event);
            ShowTip(help->pos(), help->globalPos());
            return true;
        }
        if (event->type() == QEvent::MouseMove && QToolTip::isVisible()) {
            const auto* mouse = static_cast<QMouseEvent*>(event);
            ShowTip(mouse->pos(), mouse->globalPosition().toPoint());
        }
        return QChartView::viewportEvent(event);
    }

private:
    void ShowTip(const QPoint& at, const QPoint& onScreen) {
        QToolTip::showText(onScreen, panel_.TipAt(*chart(), at), viewport());
    }

    ChartPanel& panel_;
};

ChartPanel::ChartPanel(QWidget* parent)
    : Chart(parent),
      sheets_(new QStackedLayout(this)),
      view_(new View(*this)),
      nothing_(new QLabel(QStringLiteral("Nothing played yet"))) {
    nothing_->setAlignment(Qt::AlignCenter);
    nothing_->setWordWrap(true);
    nothing_->setBackgroundRole(QPalette::Base);
    nothing_->setForegroundRole(QPalette::PlaceholderText);
    nothing_->setAutoFillBackground(true);
    nothing_->setFrameStyle(view_->frameStyle());
    sheets_->addWidget(nothing_);
    sheets_->addWidget(view_);
    setAccessibleDescription(nothing_->text());
}

void ChartPanel::Show(const ChartTable& table) {
    table_ = Completed(table);
    const bool blank = IsBlank(table_);
    setAccessibleDescription(blank ? nothing_->text() : Figures());
    sheets_->setCurrentWidget(blank ? static_cast<QWidget*>(nothing_) : view_);
    Redraw();
}

void ChartPanel::changeEvent(QEvent* event) {
    Chart::changeEvent(event);
    switch (event->type()) {
        case QEvent::PaletteChange:
        case QEvent::FontChange:
        case QEvent::LocaleChange:
        case QEvent::StyleChange: Redraw(); break;
        default: break;
    }
}

void ChartPanel::Redraw() {
    const std::unique_ptr<QChart> old(view_->chart());
    auto* chart = new QChart;
    chart->layout()->setContentsMargins(0, 0, 0, 0);
    chart->setMargins(kMargins);
    chart->setBackgroundVisible(false);
    chart->setLocalizeNumbers(true);
    chart->setLocale(locale());
    chart->legend()->layout()->setContentsMargins(0, 0, 0, 0);
    chart->legend()->setFont(font());
    chart->legend()->setLabelColor(InkColour(palette()));
    const QSize size = view_->viewport()->size();
    if (!IsBlank(table_) && size.boundedTo(kSmallest) == kSmallest) Draw(*chart, size);
    view_->setBackgroundBrush(PaperColour(palette()));
    view_->setChart(chart);
}

}  // namespace varnello
