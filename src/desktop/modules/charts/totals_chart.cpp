#include "desktop/modules/charts/totals_chart.h"

#include <QBarCategoryAxis>
#include <QBarSet>
#include <QLegend>
#include <QScatterSeries>
#include <QStackedBarSeries>
#include <algorithm>
#include <cmath>

#include "desktop/modules/charts/axes.h"
#include "desktop/modules/charts/colours.h"
#include "desktop/modules/charts/table.h"

namespace varnello {
namespace {

constexpr double kColumnWidth = 0.6;  // of a place
constexpr int kTextGap = 8;           // pixels between two values
constexpr double kTextLift = 6;       // pixels, half of which lie between a column and its value

/// A point without a mark that carries a text.
QScatterSeries* TextAbove(const QPointF& at, const QString& text, const QWidget& look) {
    auto* series = new QScatterSeries;
    series->append(at);
    series->setMarkerSize(kTextLift);
    series->setColor(Qt::transparent);
    series->setBorderColor(Qt::transparent);
    series->setPointLabelsFormat(text);
    series->setPointLabelsFont(look.font());
    series->setPointLabelsColor(InkColour(look.palette()));
    series->setPointLabelsClipping(false);
    series->setPointLabelsVisible(true);
    return series;
}

}  // namespace

void TotalsChart::Draw(QChart& chart, const QSize& size) const {
    const QList<double> row = FirstRow(Table());
    AddColumns(chart);

    const int line = fontMetrics().height();
    const double highest = *std::max_element(row.begin(), row.end());
    const double roomForText = 1 + 2.0 * line / size.height();
    const Scale scale = ScaleFor(*std::min_element(row.begin(), row.end()), highest * roomForText,
                                 size.height(), *this);
    int widest = 0;
    for (const double value : row) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(NumberText(value, locale())));
    }
    if ((size.width() - WidthOf(scale, *this)) / row.size() >= widest + kTextGap) {
        for (qsizetype i = 0; i < row.size(); ++i) {
            const QPointF top(static_cast<double>(i), std::max(row[i], 0.0));
            chart.addSeries(TextAbove(top, NumberText(row[i], locale()), *this));
        }
    }

    auto* names = new QBarCategoryAxis;
    names->append(Table().labels);
    AddNameAxis(chart, names, *this);
    AddValueAxis(chart, scale, size.width(), *this);
    chart.legend()->hide();
}

void TotalsChart::AddColumns(QChart& chart) const {
    // A stack in which one set alone has a value at each place, since a set has one colour.
    auto* columns = new QStackedBarSeries;
    const QList<double> row = FirstRow(Table());
    for (qsizetype i = 0; i < row.size(); ++i) {
        auto* set = new QBarSet(Table().labels[i]);
        for (qsizetype j = 0; j < row.size(); ++j) set->append(i == j ? row[i] : 0);
        set->setColor(SeriesColour(i, palette()));
        set->setBorderColor(Qt::transparent);
        columns->append(set);
    }
    columns->setBarWidth(kColumnWidth);
    chart.addSeries(columns);
}

QString TotalsChart::TipAt(QChart& chart, const QPointF& at) const {
    if (!chart.plotArea().contains(at)) return {};
    const auto place = static_cast<qsizetype>(std::lround(chart.mapToValue(at).x()));
    const qsizetype column = std::clamp<qsizetype>(place, 0, Table().labels.size() - 1);
    return ValueText(Table().labels[column], FirstRow(Table())[column], locale());
}

QString TotalsChart::Figures() const {
    return ValuesText(Table(), 0, QStringLiteral(", "), locale());
}

}  // namespace varnello
