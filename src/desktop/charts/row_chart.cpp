#include "desktop/charts/row_chart.h"

#include <algorithm>
#include <cmath>

#include "desktop/charts/colours.h"
#include "desktop/charts/marks.h"
#include "desktop/platform/words.h"

namespace varnello {
namespace {

constexpr double kMarkSize = 6.5;    // pixels
constexpr double kMarkDistance = 9;  // pixels between two marks of a line, at least
constexpr double kLineWidth = 1.6;   // pixels
constexpr double kGap = 6;           // pixels between a text and what it belongs to
constexpr double kPanelGap = 7;      // pixels below a small chart
constexpr double kHeadGap = 5;       // pixels below its heading
constexpr double kMarkLines = 1.9;   // lines of text from one mark of a scale to the next
constexpr double kNameGap = 10;      // pixels between two names of rows

bool CountsGames(Series series) {
    return series == Series::Played || series == Series::Won || series == Series::Lost;
}

/// The smallest of 1, 2, 5, 10, 20, 50 ... that is large enough.
std::size_t RoundStep(double least) {
    for (std::size_t power = 1;; power *= 10) {
        for (const std::size_t factor : {1U, 2U, 5U}) {
            if (static_cast<double>(factor * power) >= least) return factor * power;
        }
    }
}

/// Which points of a line have a mark: all of them while there is room, else peaks, the farthest
/// from 0 first, and points that stand alone.
std::vector<QPointF> Marked(const std::vector<QPointF>& points, double distance, double zero) {
    const auto known = [&](std::size_t i) {
        return i < points.size() && !std::isnan(points[i].y());
    };
    std::vector<std::size_t> candidates;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (!known(i)) continue;
        const double y = points[i].y();
        const double before = i > 0 && known(i - 1) ? points[i - 1].y() : y;
        const double after = known(i + 1) ? points[i + 1].y() : y;
        if (distance >= kMarkDistance || (y - before) * (after - y) <= 0) candidates.push_back(i);
    }
    std::stable_sort(candidates.begin(), candidates.end(), [&](std::size_t a, std::size_t b) {
        return std::abs(points[a].y() - zero) > std::abs(points[b].y() - zero);
    });
    std::vector<QPointF> marked;
    const auto room = [&](std::size_t i) {
        return static_cast<std::size_t>(std::max(points[i].x(), 0.0) / kMarkDistance);
    };
    std::vector<bool> taken(points.empty() ? 0 : room(points.size() - 1) + 2);
    for (const std::size_t i : candidates) {
        if (distance < kMarkDistance) {
            if (taken[room(i)]) continue;
            taken[room(i)] = true;
        }
        marked.push_back(points[i]);
    }
    return marked;
}

}  // namespace

bool RowChart::HasValue(std::size_t row) const {
    return std::any_of(Table().rows[row].begin(), Table().rows[row].end(),
                       [](double value) { return !std::isnan(value); });
}

QString RowChart::RowName(std::size_t row) const {
    QString name = Table().rowNames.value(static_cast<qsizetype>(row));
    if (!name.isEmpty()) return name;
    return HasValue(row) ? AsFigure(Table().firstRow + static_cast<int>(row)) : QString();
}

RowChart::Layout RowChart::LayOut(const QRectF& area) const {
    const auto count = static_cast<double>(Table().series.size());
    const QFontMetricsF metrics(font());
    const double line = metrics.height();
    Layout layout;
    layout.panel = (area.height() - line - kGap) / count;
    const double plot = layout.panel - line - kHeadGap - kPanelGap;
    const auto steps = static_cast<int>(plot / (kMarkLines * line));

    const auto extremes = [&](auto belongs) {
        std::pair<double, double> found{0, 0};
        for (const auto& row : Table().rows) {
            for (std::size_t i = 0; i < row.size(); ++i) {
                if (std::isnan(row[i]) || !belongs(i)) continue;
                found = {std::min(found.first, row[i]), std::max(found.second, row[i])};
            }
        }
        return found;
    };
    double widest = 0;
    for (std::size_t i = 0; i < Table().series.size(); ++i) {
        const Series series = Table().series[i];
        const auto [lowest, highest] = extremes([&](std::size_t other) {
            return other == i || (CountsGames(series) && CountsGames(Table().series[other]));
        });
        layout.scales.push_back(RoundScale(lowest, highest, steps, UnitOf(series)));
        for (const double end : {layout.scales.back().low, layout.scales.back().high}) {
            widest = std::max(widest, metrics.horizontalAdvance(ValueText(series, end)));
        }
    }
    layout.plots = area.adjusted(widest + kGap, 0, 0, -(line + kGap));
    return layout;
}

double RowChart::RowAt(const Layout& layout, std::size_t row) const {
    const double width = layout.plots.width() / static_cast<double>(Table().rows.size());
    return layout.plots.left() + (static_cast<double>(row) + 0.5) * width;
}

void RowChart::Draw(QPainter& painter, const QRectF& area) const {
    const Layout layout = LayOut(area);
    DrawRowNames(painter, layout);
    for (std::size_t i = 0; i < Table().series.size(); ++i) DrawPanel(painter, layout, i);
}

void RowChart::DrawRowNames(QPainter& painter, const Layout& layout) const {
    const QFontMetricsF metrics(font());
    const std::size_t rows = Table().rows.size();
    const bool named = !Table().rowNames.isEmpty();
    double widest = 0;
    if (named) {
        for (const QString& name : Table().rowNames) {
            widest = std::max(widest, metrics.horizontalAdvance(name));
        }
    } else {
        widest = metrics.horizontalAdvance(
            QString::number(Table().firstRow + static_cast<int>(rows) - 1));
    }
    const double distance = layout.plots.width() / static_cast<double>(rows);
    const double least = std::max(std::ceil((widest + kNameGap) / distance), 1.0);
    const std::size_t step = named ? static_cast<std::size_t>(least) : RoundStep(least);
    painter.setPen(InkColour(palette()));
    AxisTexts names(
        painter, {Area().left(), layout.plots.bottom() + kGap, Area().width(), metrics.height()});
    for (std::size_t row = rows; row-- > 0;) {
        // Numbers are shown where they are round, names so that the last row has its own.
        const std::size_t from =
            named ? rows - 1 - row : row + static_cast<std::size_t>(Table().firstRow);
        if (from % step == 0) names.Draw(RowName(row), RowAt(layout, row));
    }
}

void RowChart::DrawPanel(QPainter& painter, const Layout& layout, std::size_t series) const {
    const Series kind = Table().series[series];
    const double line = QFontMetricsF(font()).height();
    const double top = layout.plots.top() + static_cast<double>(series) * layout.panel;
    const QRectF plot(layout.plots.left(), top + line + kHeadGap, layout.plots.width(),
                      layout.panel - line - kHeadGap - kPanelGap);
    const QColor colour = SeriesColour(kind, palette());

    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    DrawMark(painter, kind, {plot.left() + kMarkSize / 2, top + line / 2}, kMarkSize);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(InkColour(palette()));
    painter.drawText(QRectF(plot.left() + 2 * kMarkSize, top, plot.width(), line),
                     Qt::AlignLeft | Qt::AlignVCenter, NameOf(kind));
    painter.setFont(font());

    const Scale& scale = layout.scales[series];
    DrawScale(painter, kind, scale, plot);
    std::vector<QPointF> points;
    points.reserve(Table().rows.size());
    for (std::size_t row = 0; row < Table().rows.size(); ++row) {
        const double part = (Table().rows[row][series] - scale.low) / (scale.high - scale.low);
        points.emplace_back(RowAt(layout, row), plot.bottom() - part * plot.height());
    }
    const double zero = plot.bottom() + scale.low / (scale.high - scale.low) * plot.height();
    painter.setPen(QPen(colour, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (std::size_t i = 0; i < points.size();) {  // runs of known points
        QPolygonF run;
        for (; i < points.size() && !std::isnan(points[i].y()); ++i) run << points[i];
        if (run.size() > 1) painter.drawPolyline(run);
        if (run.isEmpty()) ++i;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    const double distance = plot.width() / static_cast<double>(points.size());
    for (const QPointF& at : Marked(points, distance, zero)) {
        DrawMark(painter, kind, at, kMarkSize);
    }
}

void RowChart::DrawScale(QPainter& painter, Series series, const Scale& scale,
                         const QRectF& plot) const {
    const QFontMetricsF metrics(font());
    const auto at = [&](double value) {
        return plot.bottom() - (value - scale.low) / (scale.high - scale.low) * plot.height();
    };
    const int steps = static_cast<int>(std::lround((scale.high - scale.low) / scale.step));
    std::vector<double> texts;
    const auto mark = [&](double value) {
        const double y = at(value);
        const double thick = value == 0 && scale.low < 0 ? 2 : 1;
        painter.fillRect(OnPixels({plot.left(), y - thick / 2, plot.width(), thick}),
                         value == 0 ? AxisColour(palette()) : GridColour(palette()));
        for (const double other : texts) {
            if (std::abs(other - y) < metrics.ascent() + 1) return;
        }
        texts.push_back(y);
        painter.setPen(AxisColour(palette()));
        const QString text = ValueText(series, value);
        painter.drawText(QPointF(plot.left() - kGap - metrics.horizontalAdvance(text),
                                 y + metrics.capHeight() / 2),
                         text);
    };
    mark(0);  // the ends come next, the rest where there is room
    if (scale.high > 0) mark(scale.high);
    if (scale.low < 0) mark(scale.low);
    for (int i = 1; i < steps; ++i) {
        const double value = scale.low + i * scale.step;
        if (value != 0) mark(value);
    }
}

QString RowChart::TipAt(const QPointF& at) const {
    if (!Area().contains(at) || Table().rows.empty()) return {};
    const Layout layout = LayOut(Area());
    const double place = std::floor((at.x() - layout.plots.left()) / layout.plots.width() *
                                    static_cast<double>(Table().rows.size()));
    if (place < 0 || place >= static_cast<double>(Table().rows.size())) return {};
    const auto row = static_cast<std::size_t>(place);
    if (!HasValue(row)) return {};
    const QString tip = Table().rowTips.value(static_cast<qsizetype>(row));
    return (tip.isEmpty() ? RowName(row) : tip) + QLatin1Char('\n') +
           ValuesText(row, QStringLiteral("\n"));
}

QString RowChart::Figures() const {
    QStringList rows;
    for (std::size_t row = 0; row < Table().rows.size(); ++row) {
        if (!HasValue(row)) continue;
        rows << Chart::tr("%1: %2", "a row of a chart, its figures")
                    .arg(RowName(row), ValuesText(row, QStringLiteral(", ")));
    }
    return rows.join(QLatin1Char('\n'));
}

}  // namespace varnello
