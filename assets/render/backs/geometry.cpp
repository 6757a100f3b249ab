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
    constexpr double stepX = 10.5;
    constexpr double stepY = 11;

    // Where two circles overlap, the even-odd rule makes a petal of the ground colour.
    QPainterPath rings;
    rings.setFillRule(Qt::OddEvenFill);
    for (int row = -5; row <= 5; ++row) {
        for (int column = -4; column <= 4; ++column)
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
    constexpr double stepX = 15.75;
    constexpr double stepY = 14.6667;
    const QPainterPath star = EightPointedStar(8.2);
    const QPainterPath inner = EightPointedStar(4.6);
    OnGrid(painter, area, stepX, stepY, [&](int, int) {
        painter.setPen(QPen(gold, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(star);
        painter.setPen(Qt::NoPen);
        painter.setBrush(gold);
        painter.drawPath(inner);
        painter.setBrush(wine);
        painter.drawEllipse(QPointF(), 1.5, 1.5);
        painter.translate(stepX / 2, stepY / 2);
        painter.setBrush(gold);
        painter.drawPolygon(QPolygonF({{0, -2.4}, {2.4, 0}, {0, 2.4}, {-2.4, 0}}));
    });
}

void DrawWeave(QPainter& painter, const QRectF& area) {
    const QColor gap(0x4a, 0x31, 0x1f);
    const QColor light(0xdb, 0xb6, 0x7f);
    const QColor dark(0xb9, 0x8a, 0x52);
    painter.fillRect(area, gap);
    constexpr double cellX = 7.875;
    constexpr double cellY = 8;
    OnGrid(painter, area, cellX, cellY, [&](int column, int row) {
        // Three strands a cell, lying across in every second one.
        const bool across = (row + column) % 2 == 0;
        painter.translate(cellX / 2, cellY / 2);
        for (int strand = -1; strand <= 1; ++strand) {
            const QRectF band =
                across ? QRectF(-cellX / 2 - 0.4, strand * cellY / 3 - 1.05, cellX + 0.8, 2.1)
                       : QRectF(strand * cellX / 3 - 1.05, -cellY / 2 - 0.4, 2.1, cellY + 0.8);
            painter.setPen(Qt::NoPen);
            painter.setBrush(across ? light : dark);
            painter.drawRoundedRect(band, 0.9, 0.9);
        }
    });
}

}  // namespace varnello::render
