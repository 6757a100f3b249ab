#include "patterns.h"

#include "colours.h"

#include <numbers>

namespace varnello::render {

void DrawWaves(QPainter& painter, const QRectF& area) {
    const QColor deep(0x1f, 0x4a, 0x74);
    const QColor crest(0xb6, 0xd2, 0xe2);
    painter.fillRect(area, deep);
    constexpr double length = 15.75;
    constexpr double height = 2.1;
    constexpr double spacing = 4;
    painter.setBrush(Qt::NoBrush);
    // A sine is the same when turned about a zero on the seam; strong and fine lines alternate.
    for (int row = -13; row <= 13; ++row) {
        QPainterPath wave;
        for (double x = area.left() - 1; x <= area.right() + 1; x += 0.5) {
            const double y = row * spacing + height * std::sin(2 * std::numbers::pi * x / length);
            if (wave.elementCount() == 0)
                wave.moveTo(x, y);
            else
                wave.lineTo(x, y);
        }
        painter.setPen(QPen(crest, row % 2 == 0 ? 1.5 : 0.6));
        painter.drawPath(wave);
    }
}

void DrawLeaves(QPainter& painter, const QRectF& area) {
    const QColor ground(0x6e, 0x35, 0x1f);
    const QColor leaf(0xdd, 0x98, 0x40);
    painter.fillRect(area, ground);
    QPainterPath blade(QPointF(0, 5));
    blade.cubicTo(-5, 2.5, -4, -3, 0, -6.5);
    blade.cubicTo(4, -3, 5, 2.5, 0, 5);
    OnHalfDrop(painter, area, 12.6, 11, [&](int, int row) {
        painter.rotate(row % 2 == 0 ? 35 : -35);
        painter.setPen(Qt::NoPen);
        painter.setBrush(leaf);
        painter.drawPath(blade);
        painter.setPen(QPen(leaf, 0.8));
        painter.drawLine(QPointF(0, 4), QPointF(0, 7.5));
        painter.setPen(QPen(ground, 0.6));
        painter.drawLine(QPointF(0, 5), QPointF(0, -4.5));
        for (const double y : {2.8, 0.4, -2.0}) {
            painter.drawLine(QPointF(0, y), QPointF(-2.4, y - 1.8));
            painter.drawLine(QPointF(0, y), QPointF(2.4, y - 1.8));
        }
    });
}

void DrawFeathers(QPainter& painter, const QRectF& area) {
    const QColor ground(0x34, 0x41, 0x50);
    const QColor vane(0xd2, 0xd6, 0xd0);
    const QColor eye(0xa5, 0x5a, 0x3a);
    painter.fillRect(area, ground);
    QPainterPath outline(QPointF(0, 8));
    outline.cubicTo(-4.2, 4, -4.6, -5, 0, -9);
    outline.cubicTo(4.6, -5, 4.2, 4, 0, 8);
    OnHalfDrop(painter, area, 10.5, 14.6667, [&](int, int) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(vane);
        painter.drawPath(outline);
        painter.setBrush(eye);
        painter.drawEllipse(QPointF(0, -4.2), 1.7, 2.1);
        painter.setPen(QPen(ground, 0.55));
        for (int barb = 0; barb < 4; ++barb) {
            const double y = barb * 2.2;
            painter.drawLine(QPointF(0, y), QPointF(-3.4, y - 2.6));
            painter.drawLine(QPointF(0, y), QPointF(3.4, y - 2.6));
        }
        painter.setPen(QPen(eye, 0.7));
        painter.drawLine(QPointF(0, -2.4), QPointF(0, 9.5));
    });
}

void DrawNightHills(QPainter& painter, const QRectF& area) {
    const QColor night(0x16, 0x1f, 0x42);
    const QColor hill(0x3a, 0x5c, 0x86);
    const QColor shine(0xe9, 0xe2, 0xbe);
    painter.fillRect(area, night);

    const QPointF moon(15, -34);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shine);
    painter.drawEllipse(moon, 4, 4);
    painter.setBrush(night);
    painter.drawEllipse(moon - QPointF(1.8, 0.6), 3.5, 3.5);

    painter.setBrush(shine);
    for (int row = 0; row < 4; ++row) {
        for (int column = -3; column <= 3; ++column) {
            const QPointF star(column * 9.5 + (row % 2 == 0 ? 0 : 4.7), -41 + row * 5);
            const QPointF apart = star - moon;
            const double radius = (column + 2 * row) % 3 == 0 ? 0.85 : 0.5;
            if (std::hypot(apart.x(), apart.y()) > 6) painter.drawEllipse(star, radius, radius);
        }
    }

    // Ranges of hills, each before the last; the nearest meets its turned copy at the seam.
    for (int range = 0; range < 5; ++range) {
        const double base = -22 + range * 4.6;
        const double length = range % 2 == 0 ? 31.5 : 25;
        const double phase = range * 2.3;
        QPainterPath ridge(QPointF(area.left() - 1, 10));
        for (double x = area.left() - 1; x <= area.right() + 1; x += 0.5)
            ridge.lineTo(x, base - 2.8 * std::cos(2 * std::numbers::pi * x / length + phase));
        ridge.lineTo(area.right() + 1, 10);
        painter.setPen(QPen(shine, 0.5));
        painter.setBrush(range % 2 == 0 ? hill : night);
        painter.drawPath(ridge);
    }
}

}  // namespace varnello::render
