#include "desktop/charts/share_chart.h"

#include <QLineF>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "desktop/charts/colours.h"
#include "desktop/platform/words.h"

namespace varnello {
namespace {

constexpr double kHole = 0.62;      // of the ring's radius
constexpr double kSeam = 2;         // pixels between two parts
constexpr double kLargeText = 1.7;  // of the chart's font
constexpr double kLargest = 240;    // pixels across
constexpr double kSwatch = 0.7;     // of a line's height
constexpr double kLegendGap = 18;   // pixels between two entries of the legend
constexpr double kQuarter = 90;     // degrees

}  // namespace

double ShareChart::Part(std::size_t series) const {
    const double part = Table().rows.front()[series];
    return std::isnan(part) ? 0 : std::max(part, 0.0);
}

double ShareChart::Whole() const {
    double whole = 0;
    for (std::size_t i = 0; i < Table().series.size(); ++i) whole += Part(i);
    return whole;
}

QString ShareChart::PercentText(std::size_t series) const {
    const double percent = Whole() > 0 ? Part(series) * 100 / Whole() : 0;
    const int decimals = percent == std::floor(percent) ? 0 : 1;
    return AsFigure(QString::number(percent, 'f', decimals) + QLatin1Char('%'));
}

QString ShareChart::LabelOf(std::size_t series) const {
    return Chart::tr("%1 : %2", "what is counted, its figure")
        .arg(NameOf(Table().series[series]), AsFigure(QString::number(Part(series), 'f', 0)));
}

QString ShareChart::TextOf(std::size_t series) const {
    return Chart::tr("%1 (%2)", "a figure, its part of the whole")
        .arg(LabelOf(series), PercentText(series));
}

QRectF ShareChart::Ring(const QRectF& area) const {
    const double height = area.height() - 1.6 * fontMetrics().height();
    const double size = std::min({area.width(), height, kLargest});
    QRectF ring(0, 0, size, size);
    ring.moveCenter({area.center().x(), area.top() + height / 2});
    return ring;
}

void ShareChart::Draw(QPainter& painter, const QRectF& area) const {
    const QRectF ring = Ring(area);
    const double whole = Whole();
    QPainterPath hole;
    const double radius = ring.width() / 2;
    hole.addEllipse(ring.center(), radius * kHole, radius * kHole);
    double from = kQuarter;
    painter.setPen(Qt::NoPen);
    for (std::size_t i = 0; i < Table().series.size(); ++i) {
        const double span = whole > 0 ? -360 * Part(i) / whole : 0;
        QPainterPath part;
        part.moveTo(ring.center());
        part.arcTo(ring, from, span);
        part.closeSubpath();
        part -= hole;
        painter.fillPath(part, SeriesColour(Table().series[i], palette()));
        if (std::abs(span) > 0 && std::abs(span) < 360) {
            painter.strokePath(part, QPen(PaperColour(palette()), kSeam));
        }
        from += span;
    }
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * kLargeText);
    large.setBold(true);
    painter.setPen(InkColour(palette()));
    if (QFontMetricsF(large).horizontalAdvance(PercentText(0)) < 2 * radius * kHole * 0.9) {
        painter.setFont(large);
        painter.drawText(ring, Qt::AlignCenter, PercentText(0));
        painter.setFont(font());
    }
    const double line = fontMetrics().height();
    DrawLegend(painter, {area.left(), area.bottom() - line, area.width(), line});
}

void ShareChart::DrawLegend(QPainter& painter, const QRectF& line) const {
    const double swatch = line.height() * kSwatch;
    const auto widthOf = [&](std::size_t i) {
        return swatch * 1.5 + QFontMetricsF(font()).horizontalAdvance(LabelOf(i));
    };
    double width = kLegendGap * static_cast<double>(Table().series.size() - 1);
    for (std::size_t i = 0; i < Table().series.size(); ++i) width += widthOf(i);
    double x = line.left() + std::max((line.width() - width) / 2, 0.0);
    for (std::size_t i = 0; i < Table().series.size(); ++i) {
        const double top = line.center().y() - swatch / 2;
        painter.fillRect(OnPixels({x, top, swatch, swatch}),
                         SeriesColour(Table().series[i], palette()));
        painter.setPen(InkColour(palette()));
        painter.drawText(QRectF(x + swatch * 1.5, line.top(), widthOf(i), line.height()),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, LabelOf(i));
        x += widthOf(i) + kLegendGap;
    }
}

QString ShareChart::TipAt(const QPointF& at) const {
    const QRectF ring = Ring(Area());
    const QLineF fromCentre(ring.center(), at);
    const double radius = ring.width() / 2;
    if (fromCentre.length() > radius || fromCentre.length() < radius * kHole) return {};
    const double angle = fromCentre.angleTo(QLineF(0, 0, 0, -1));  // clockwise from the top
    double end = 0;
    for (std::size_t i = 0; i < Table().series.size(); ++i) {
        end += Whole() > 0 ? 360 * Part(i) / Whole() : 0;
        if (angle < end) return TextOf(i);
    }
    return {};
}

QString ShareChart::Figures() const {
    QStringList figures;
    for (std::size_t i = 0; i < Table().series.size(); ++i) figures << TextOf(i);
    return figures.join(QStringLiteral(", "));
}

}  // namespace varnello
