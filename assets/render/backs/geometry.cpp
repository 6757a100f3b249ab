#include "patterns.h"

#include "colours.h"

#include <numbers>

namespace varnello::render {

namespace {

// A star of two squares, one turned by an eighth.
QPainterPath EightPointedStar(double radius) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const double start : {0.0, std::numbers::pi / 4}) {
        QPolygonF square;
        for (int corner = 0; corner <= 4; ++corner) {
            const double angle = start + corner * std::numbers::pi / 2;
            square << QPointF(radius * std::cos(angle), radius * std::sin(angle));
        }
        path.addPolygon(square);
    }
    return path.simplified();
}

}  // namespace

void DrawInterlacedCircles(QPainter& painter, const QRectF& area) {
    const QColor teal(0x1e, 0x5c, 0x63);
    const QColor pale(0xd3, 0xe2, 0xd6);
    painter.fillRect(area, teal);
    const double stepX = area.width() / 4;
    const double stepY = area.height() / 6;

    // Where two circles overlap, the even-odd rule makes a petal of the ground colour.
    QPainterPath rings;
    rings.setFillRule(Qt::OddEvenFill);
    for (int row = -4; row <= 4; ++row) {
        for (int column = -3; column <= 3; ++column)
            rings.addEllipse(QPointF(column * stepX, row * stepY), stepX * 0.7, stepY * 0.7);
    }
    painter.fillPath(rings, pale);
    painter.setPen(Qt::NoPen);
    painter.setBrush(teal);
    OnGrid(painter, area, stepX, stepY, [&](int, int) { painter.drawEllipse(QPointF(), 2, 2); });
}

void DrawStarLattice(QPainter& painter, const QRectF& area) {
    const QColor wine(0x6c, 0x1f, 0x33);
    const QColor gold(0xd8, 0xb0, 0x5a);
    painter.fillRect(area, wine);
    const double stepX = area.width() / 3;
    const double stepY = area.height() / 4;
    const QPainterPath star = EightPointedStar(8.6);
    OnGrid(painter, area, stepX, stepY, [&](int, int) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(gold);
        painter.drawPath(star);
        painter.setBrush(wine);
        painter.drawEllipse(QPointF(), 4, 4);
        painter.setBrush(gold);
        painter.drawEllipse(QPointF(), 1.7, 1.7);
        painter.translate(stepX / 2, stepY / 2);
        painter.drawPolygon(QPolygonF({{0, -4.5}, {4.5, 0}, {0, 4.5}, {-4.5, 0}}));
    });
}

void DrawWeave(QPainter& painter, const QRectF& area) {
    const QColor gap(0x5a, 0x3c, 0x26);
    const QColor light(0xdb, 0xb6, 0x7f);
    const QColor dark(0xb9, 0x8a, 0x52);
    painter.fillRect(area, gap);
    // Whole cells from edge to edge, in each a ribbon that passes over the one across it.
    const double cellX = area.width() / 6;
    const double cellY = area.height() / 8;
    constexpr double slit = 1;
    painter.setPen(Qt::NoPen);
    OnGrid(painter, area, cellX, cellY, [&](int column, int row) {
        const bool across = (row + column) % 2 == 0;
        const QRectF cell(0, 0, cellX, cellY);
        painter.setBrush(across ? dark : light);  // what passes under shows at the edges
        painter.drawRect(across ? cell.adjusted(slit, 0, -slit, 0)
                                : cell.adjusted(0, slit, 0, -slit));
        painter.setBrush(gap);
        painter.drawRect(across ? cell.adjusted(0, slit, 0, -slit)
                                : cell.adjusted(slit, 0, -slit, 0));
        painter.setBrush(across ? light : dark);
        painter.drawRect(across ? cell.adjusted(0, 2 * slit, 0, -2 * slit)
                                : cell.adjusted(2 * slit, 0, -2 * slit, 0));
    });
}

}  // namespace varnello::render
