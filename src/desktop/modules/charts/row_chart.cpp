#include "desktop/modules/charts/row_chart.h"

#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QScatterSeries>
#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/modules/charts/axes.h"
#include "desktop/modules/charts/colours.h"
#include "desktop/modules/charts/row_axis.h"
#include "desktop/modules/charts/table.h"

namespace varnello {
namespace {

constexpr double kMarkSize = 7;      // pixels
constexpr double kMarkDistance = 9;  // pixels between two marks of a line, at least
constexpr double kLineWidth = 1.6;   // pixels

/// How the lines look, so that they are told apart without colours too.
struct LineLook {
    Qt::PenStyle style;
    QScatterSeries::MarkerShape mark;
};
constexpr std::array kLooks{
    LineLook{Qt::SolidLine, QScatterSeries::MarkerShapeCircle},
    LineLook{Qt::DashLine, QScatterSeries::MarkerShapeRectangle},
    LineLook{Qt::DotLine, QScatterSeries::MarkerShapeTriangle},
};

}  // namespace

void RowChart::Draw(QChart& chart, const QSize& size) const {
    const Scale scale = FullScale(size.height());
    const QMargins outside = kMargins + QMargins(WidthOf(scale, *this), 0, 0, 0);
    const RowSpread spread = SpreadRows(
        Table(), outside, size.width() - outside.left() - outside.right(), fontMetrics());
    const auto marksEvery = static_cast<qsizetype>(std::ceil(kMarkDistance / spread.distance));

    AddZeroLine(chart, spread);
    for (qsizetype series = 0; series < Table().labels.size(); ++series) {
        AddLine(chart, series, marksEvery);
    }
    QCategoryAxis* rows = RowAxis(Table(), spread);
    AddNameAxis(chart, rows, *this);
    rows->setLineVisible(false);  // the one at 0 will do
    rows->setGridLineVisible(true);
    AddValueAxis(chart, scale, size.width(), *this);
    chart.legend()->setAlignment(Qt::AlignTop);
    chart.legend()->setMarkerShape(QLegend::MarkerShapeFromSeries);
}

Scale RowChart::FullScale(int height) const {
    double lowest = 0;
    double highest = 0;
    for (const QList<double>& row : Table().rows) {
        for (const double value : row) {
            if (value < lowest) lowest = value;
            if (value > highest) highest = value;
        }
    }
    Scale scale = ScaleFor(lowest, highest, height, *this);
    const double room = (scale.high - scale.low) * kMarkSize / height;
    scale.low -= room;
    scale.high += room;
    return scale;
}

void RowChart::AddZeroLine(QChart& chart, const RowSpread& spread) const {
    auto* line = new QLineSeries;
    line->append(-spread.before, 0);
    line->append(static_cast<double>(Table().rows.size() - 1) + spread.after, 0);
    line->setPen(QPen(AxisColour(palette()), 1));
    chart.addSeries(line);
    chart.legend()->markers(line).front()->setVisible(false);
}

void RowChart::AddLine(QChart& chart, qsizetype series, qsizetype marksEvery) const {
    QList<QPointF> points;
    for (qsizetype row = 0; row < Table().rows.size(); ++row) {
        const double value = Table().rows[row][series];
        if (!std::isnan(value)) points << QPointF(static_cast<double>(row), value);
    }
    QList<QPointF> marked;  // the last one in any case
    for (qsizetype i = points.size() - 1; i >= 0; i -= marksEvery) marked << points[i];

    const QColor colour = SeriesColour(series, palette());
    const LineLook& look = kLooks[static_cast<std::size_t>(series) % kLooks.size()];

    auto* line = new QLineSeries;
    line->append(points);
    line->setPen(QPen(colour, kLineWidth, look.style));
    chart.addSeries(line);
    chart.legend()->markers(line).front()->setVisible(false);  // the marks have one

    auto* marks = new QScatterSeries;
    marks->setName(Table().labels[series]);
    marks->append(marked);
    marks->setMarkerShape(look.mark);
    marks->setMarkerSize(kMarkSize);
    marks->setColor(colour);
    marks->setBorderColor(colour);
    chart.addSeries(marks);
}

QString RowChart::TipAt(QChart& chart, const QPointF& at) const {
    if (!chart.plotArea().contains(at)) return {};
    const auto place = static_cast<qsizetype>(std::lround(chart.mapToValue(at).x()));
    const qsizetype row = std::clamp<qsizetype>(place, 0, Table().rows.size() - 1);
    const QString values = ValuesText(Table(), row, QStringLiteral("\n"), locale());
    return values.isEmpty() ? QString() : RowName(Table(), row) + QLatin1Char('\n') + values;
}

QString RowChart::Figures() const {
    QStringList rows;
    for (qsizetype row = 0; row < Table().rows.size(); ++row) {
        const QString values = ValuesText(Table(), row, QStringLiteral(", "), locale());
        if (!values.isEmpty()) rows << RowName(Table(), row) + QStringLiteral(": ") + values;
    }
    return rows.join(QLatin1Char('\n'));
}

}  // namespace varnello
