#include "patterns.h"

#include <algorithm>

namespace varnello::render {

void DrawTrellis(QPainter& painter, const QRectF& area) {
    const QColor ground(0x24, 0x4f, 0x38);
    const QColor wood(0xdc, 0xd2, 0xae);
    const QColor leaf(0x86, 0xb4, 0x62);
    painter.fillRect(area, ground);
    const double meshX = area.width() / 3;
    const double meshY = area.height() / 4;

    // A sprig of three leaves in every mesh, upright in the upper half.
    QPainterPath blade(QPointF(0, 1.5));
    blade.cubicTo(-3.4, -0.5, -2.8, -4.6, 0, -7);
    blade.cubicTo(2.8, -4.6, 3.4, -0.5, 0, 1.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(leaf);
    OnGrid(painter, area, meshX / 2, meshY / 2, [&](int column, int row) {
        if ((row + column) % 2 == 0) return;
        painter.translate(0, row == 0 ? 0 : 1);
        for (const double degrees : {0.0, -90.0, 90.0}) {
            painter.save();
            painter.rotate(degrees);
            painter.drawPath(blade);
            painter.restore();
        }
        if (row == 0) painter.drawPath(QTransform::fromScale(1, -1).map(blade));
    });

    painter.setPen(QPen(wood, 2));
    for (int line = -8; line <= 8; ++line) {
        const double x = line * meshX;
        painter.drawLine(QPointF(x - 4 * meshX, -4 * meshY), QPointF(x + 4 * meshX, 4 * meshY));
        painter.drawLine(QPointF(x - 4 * meshX, 4 * meshY), QPointF(x + 4 * meshX, -4 * meshY));
    }
}

void DrawHedge(QPainter& painter, const QRectF& area) {
    const QColor box(0x2c, 0x62, 0x38);
    const QColor sprig(0x4f, 0x86, 0x49);
    const QColor gravel(0xe2, 0xd7, 0xb8);
    painter.fillRect(area, box);

    // Clipped leaves.
    painter.setPen(Qt::NoPen);
    painter.setBrush(sprig);
    OnHalfDrop(painter, area, 3, 1.6, [&](int, int) { painter.drawEllipse(QPointF(), 0.7, 0.5); });

    // The paths of a maze run around each other; steps between them and plugs across them
    // alternate from side to side.
    constexpr double spacing = 6;
    constexpr double width = 1.8;
    const QPen path(gravel, width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    painter.setBrush(Qt::NoBrush);
    for (int round = 0; round < 5; ++round) {
        const double inset = 3.5 + round * spacing;
        const QRectF walk = area.adjusted(inset, inset, -inset, -inset);
        painter.setPen(path);
        painter.drawRoundedRect(walk, 2, 2);
        const double side = round % 2 == 0 ? 1 : -1;
        const double reach = std::max(walk.width() / 2 - 5.5, 0.0);
        painter.drawLine(QPointF(side * reach, walk.top() - spacing),
                         QPointF(side * reach, walk.top()));
        painter.setPen(QPen(box, 2 * width, Qt::SolidLine, Qt::FlatCap));
        const double plug = side * (reach - 4);
        painter.drawLine(QPointF(plug - 1.2, walk.top()), QPointF(plug + 1.2, walk.top()));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(gravel);
    painter.drawEllipse(QPointF(), 1.6, 1.6);
}

}  // namespace varnello::render
