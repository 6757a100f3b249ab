#include "desktop/modules/charts/share_chart.h"

#include <QLegend>
#include <QLegendMarker>
#include <QLineF>
#include <QPieSeries>
#include <QPieSlice>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "desktop/modules/charts/colours.h"
#include "desktop/modules/charts/table.h"

namespace varnello {
namespace {

constexpr double kHole = 0.38;                 // of the ring's radius
constexpr double kSmallestWithPercent = 0.13;  // of the whole; less has no room for a text

/// What is shared: there is no negative part.
QList<double> PartsOf(const ChartTable& table) {
    QList<double> parts = FirstRow(table);
    for (double& part : parts) part = std::max(part, 0.0);
    return parts;
}

}  // namespace

void ShareChart::Draw(QChart& chart, const QSize&) const {
    auto* ring = new QPieSeries;
    for (const double part : PartsOf(Table())) ring->append(PercentText(part), part);
    chart.addSeries(ring);
    ring->setPieSize(1);
    ring->setHoleSize(kHole);
    for (qsizetype i = 0; i < ring->count(); ++i) {
        QPieSlice* slice = ring->slices()[i];
        const QColor colour = SeriesColour(i, palette());
        slice->setColor(colour);
        slice->setPen(slice->percentage() < 1 ? QPen(PaperColour(palette()), 2) : QPen(Qt::NoPen));
        slice->setLabelFont(font());
        slice->setLabelColor(TextColourOn(colour));
        slice->setLabelPosition(QPieSlice::LabelInsideHorizontal);
        slice->setLabelVisible(slice->percentage() >= kSmallestWithPercent);
        QLegendMarker* marker = chart.legend()->markers(ring)[i];
        marker->setLabel(Table().labels[i]);
        marker->setPen(QPen(colour));
    }
    chart.legend()->setAlignment(Qt::AlignBottom);
}

QString ShareChart::TipAt(QChart& chart, const QPointF& at) const {
    const QRectF area = chart.plotArea();
    const QLineF fromCentre(area.center(), at);
    const double radius = std::min(area.width(), area.height()) / 2;
    if (fromCentre.length() > radius || fromCentre.length() < radius * kHole) return {};

    const double angle = fromCentre.angleTo(QLineF(0, 0, 0, -1));  // clockwise from the top
    const auto* ring = static_cast<QPieSeries*>(chart.series().front());
    double end = 0;
    for (qsizetype i = 0; i < ring->count(); ++i) {
        end += ring->slices()[i]->angleSpan();
        if (angle < end) return TextOf(i);
    }
    return {};
}

QString ShareChart::Figures() const {
    QStringList figures;
    for (qsizetype i = 0; i < Table().labels.size(); ++i) figures << TextOf(i);
    return figures.join(QStringLiteral(", "));
}

QString ShareChart::PercentText(double part) const {
    const QList<double> parts = PartsOf(Table());
    const double whole = std::accumulate(parts.begin(), parts.end(), 0.0);
    const double percent = whole > 0 ? part * 100 / whole : 0;
    const int decimals = percent == std::floor(percent) ? 0 : 1;
    return locale().toString(percent, 'f', decimals) + QLatin1Char('%');
}

QString ShareChart::TextOf(qsizetype series) const {
    const double part = PartsOf(Table())[series];
    return QStringLiteral("%1 (%2)").arg(Table().labels[series], PercentText(part));
}

}  // namespace varnello
