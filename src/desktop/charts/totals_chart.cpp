#include "desktop/charts/totals_chart.h"

#include <algorithm>
#include <cmath>

#include "desktop/charts/colours.h"
#include "desktop/charts/marks.h"
#include "desktop/charts/scale.h"

namespace varnello {
namespace {

constexpr double kBarPart = 0.75;    // of a line's height
constexpr double kGap = 3;           // pixels between a bar and its texts
constexpr double kTextWidths = 1.6;  // of a text's width from one mark to the next, at least
constexpr int kMostSteps = 10;
constexpr double kMostStrip = 4.6;  // lines of text; more would tear the bars apart
constexpr float kOtherStrength = 0.45F;

}  // namespace

double TotalsChart::Value(std::size_t series) const {
    const double value = Table().rows.front()[series];
    return std::isnan(value) ? 0 : value;
}

void TotalsChart::Draw(QPainter& painter, const QRectF& area) const {
    const auto count = static_cast<double>(Table().series.size());
    const double height = std::min(area.height() / count, kMostStrip * fontMetrics().height());
    const double top = area.top() + (area.height() - height * count) / 2;
    for (std::size_t i = 0; i < Table().series.size(); ++i) {
        DrawBar(painter, i,
                {area.left(), top + static_cast<double>(i) * height, area.width(), height});
    }
}

void TotalsChart::DrawBar(QPainter& painter, std::size_t series, const QRectF& strip) const {
    const Series kind = Table().series[series];
    const QColor colour = SeriesColour(kind, palette());
    const QFontMetricsF metrics(font());
    const double line = metrics.height();
    const bool withAxis = strip.height() >= (2 + kBarPart) * line + 2 * kGap;

    double most = 0;
    for (const auto& row : Table().rows) most = std::fmax(most, row[series]);
    const double widest = metrics.horizontalAdvance(ValueText(kind, std::max(most, 1.0) * 1.5));
    const auto steps = static_cast<int>(strip.width() / (widest * kTextWidths));
    const Scale scale =
        RoundScale(std::min(Value(series), 0.0), most, std::min(steps, kMostSteps), UnitOf(kind));
    const auto at = [&](double value) {
        return strip.left() + (value - scale.low) / (scale.high - scale.low) * strip.width();
    };

    const double used = (withAxis ? 2 : 1) * line + kBarPart * line + kGap;
    double y = strip.top() + std::max((strip.height() - used) / 2, 0.0);
    const QRectF head(strip.left(), y, strip.width(), line);
    painter.setPen(InkColour(palette()));
    painter.drawText(head, Qt::AlignLeft | Qt::AlignVCenter, NameOf(kind));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawText(head, Qt::AlignRight | Qt::AlignVCenter, ValueText(kind, Value(series)));
    painter.setFont(font());

    y += line + kGap;
    const double height = kBarPart * line;
    painter.fillRect(OnPixels({strip.left(), y, strip.width(), height}), GridColour(palette()));
    const double zero = at(0);
    const double end = at(Value(series));
    if (end != zero) {
        painter.fillRect(OnPixels({std::min(zero, end), y, std::abs(end - zero), height}), colour);
    }
    QColor other = InkColour(palette());
    other.setAlphaF(kOtherStrength);
    for (std::size_t row = 1; row < Table().rows.size(); ++row) {
        const double value = Table().rows[row][series];
        if (value >= scale.low) painter.fillRect(OnPixels({at(value) - 1, y, 1, height}), other);
    }
    if (!withAxis) return;
    painter.setPen(AxisColour(palette()));
    AxisTexts texts(painter, {strip.left(), y + height, strip.width(), line});
    texts.Draw(ValueText(kind, scale.low), at(scale.low));
    texts.Draw(ValueText(kind, scale.high), at(scale.high));
    for (double mark = scale.low; mark < scale.high; mark += scale.step) {
        texts.Draw(ValueText(kind, mark), at(mark));
    }
}

QString TotalsChart::TipAt(const QPointF& at) const {
    const QRectF area = Area();
    const auto count = static_cast<double>(Table().series.size());
    const double height = std::min(area.height() / count, kMostStrip * fontMetrics().height());
    const double top = area.top() + (area.height() - height * count) / 2;
    const double place = std::floor((at.y() - top) / height);
    if (place < 0 || place >= count || at.x() < area.left() || at.x() > area.right()) return {};
    const auto series = static_cast<std::size_t>(place);
    QString value = NamedValue(Table().series[series], Value(series));
    if (Table().rows.size() == 1) return value;
    return value + '\n' + Chart::tr("The thin lines are your other wins.");
}

QString TotalsChart::Figures() const { return ValuesText(0, QStringLiteral(", ")); }

}  // namespace varnello
