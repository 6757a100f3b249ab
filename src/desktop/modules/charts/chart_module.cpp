#include "desktop/modules/chart_module.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QStackedBarSeries>
#include <QValueAxis>

namespace varnello {
namespace {

constexpr QRgb kColours[] = {0xFF1F5FA8, 0xFFC0392B, 0xFF2E8B57, 0xFFBC7216};

class QtCharts : public QObject, public ChartModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "varnello.ChartModule")
    Q_INTERFACES(varnello::ChartModule)

public:
    QWidget* TotalsChart(const QList<ChartBar>& bars, QWidget* parent) override;
};

/// A column of its own for each value: a stack in which one set alone is non-zero at each place.
QStackedBarSeries* Columns(const QList<ChartBar>& bars) {
    auto* series = new QStackedBarSeries;
    for (qsizetype i = 0; i < bars.size(); ++i) {
        auto* set = new QBarSet(bars[i].label);
        for (qsizetype j = 0; j < bars.size(); ++j) *set << (i == j ? bars[i].value : 0.0);
        set->setColor(QColor::fromRgb(kColours[static_cast<std::size_t>(i) % std::size(kColours)]));
        set->setBorderColor(Qt::transparent);
        series->append(set);
    }
    series->setBarWidth(0.55);
    return series;
}

QWidget* QtCharts::TotalsChart(const QList<ChartBar>& bars, QWidget* parent) {
    auto* chart = new QChart;
    auto* series = Columns(bars);
    chart->addSeries(series);

    auto* names = new QBarCategoryAxis;
    for (const ChartBar& bar : bars) names->append(bar.label);
    names->setGridLineVisible(false);
    chart->addAxis(names, Qt::AlignBottom);
    series->attachAxis(names);

    double highest = 10;  // so that the scale has whole numbers
    for (const ChartBar& bar : bars) highest = std::max(highest, bar.value);
    auto* scale = new QValueAxis;
    scale->setRange(0, highest);
    scale->setLabelFormat(QStringLiteral("%.0f"));
    scale->applyNiceNumbers();
    chart->addAxis(scale, Qt::AlignLeft);
    series->attachAxis(scale);

    chart->legend()->hide();
    chart->setBackgroundVisible(false);
    chart->setMargins(QMargins(0, 0, 0, 0));
    const QBrush text = parent->palette().brush(QPalette::WindowText);
    names->setLabelsBrush(text);
    scale->setLabelsBrush(text);

    auto* view = new QChartView(chart, parent);
    view->setRenderHint(QPainter::Antialiasing);
    view->setFrameShape(QFrame::NoFrame);
    view->setBackgroundBrush(Qt::NoBrush);
    return view;
}

}  // namespace
}  // namespace varnello

#include "chart_module.moc"
