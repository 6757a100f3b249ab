#include "desktop/charts/marks.h"

#include <algorithm>

namespace varnello {

ScaleUnit UnitOf(Series series) {
    return series == Series::Time ? ScaleUnit::Seconds : ScaleUnit::Count;
}

void AxisTexts::Draw(const QString& text, double x) {
    constexpr double kGap = 3;  // pixels at either side
    const QFontMetricsF metrics(painter_.font());
    const double width = metrics.horizontalAdvance(text);
    const double left = std::max(std::min(x - width / 2, line_.right() - width), line_.left());
    const QRectF room(left - kGap, line_.top(), width + 2 * kGap, line_.height());
    for (const QRectF& other : taken_) {
        if (other.intersects(room)) return;
    }
    taken_.push_back(room);
    painter_.drawText(QPointF(left, line_.top() + metrics.ascent()), text);
}

void DrawMark(QPainter& painter, Series series, const QPointF& at, double size) {
    const double half = size / 2;
    switch (series) {
        case Series::Score:
        case Series::Won: painter.drawEllipse(at, half, half); return;
        case Series::Moves:
        case Series::Played:
            painter.drawRect(
                QRectF(at.x() - half * 0.9, at.y() - half * 0.9, size * 0.9, size * 0.9));
            return;
        case Series::Time:
        case Series::Lost: break;
    }
    painter.drawPolygon(QPolygonF({{at.x(), at.y() - half * 1.1},
                                   {at.x() + half * 1.1, at.y() + half * 0.8},
                                   {at.x() - half * 1.1, at.y() + half * 0.8}}));
}

}  // namespace varnello
