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

    const QPointF moon(14, -33);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shine);
    painter.drawEllipse(moon, 5.5, 5.5);
    painter.setBrush(night);
    painter.drawEllipse(moon - QPointF(2.6, 1), 4.6, 4.6);
    painter.setBrush(shine);
    for (const QPointF star : {QPointF(-26, -38), QPointF(-15, -31), QPointF(-4, -39),
                               QPointF(27, -40), QPointF(-27, -25), QPointF(3, -28)})
        painter.drawEllipse(star, 0.9, 0.9);

    // Far hills in moonlight, each a broad back of its own.
    QPainterPath far(QPointF(-40, 4));
    far.lineTo(-40, -13);
    far.cubicTo(-33, -13, -27, -23, -19, -23);
    far.cubicTo(-11, -23, -8, -15, -2, -14);
    far.cubicTo(5, -15, 9, -20, 17, -20);
    far.cubicTo(26, -20, 32, -12, 40, -11);
    far.lineTo(40, 4);
    painter.setBrush(hill);
    painter.drawPath(far);

    // A dark slope before them, wooded with firs. It meets its turned copy at the seam.
    const auto slope = [](double x) { return -5.5 + 0.09 * x - 0.0022 * x * x; };
    QPainterPath near(QPointF(-40, 4));
    for (double x = -40; x <= 40; x += 1) near.lineTo(x, slope(x));
    near.lineTo(40, 4);
    painter.setBrush(night);
    painter.drawPath(near);
    for (const auto& [x, height] : {std::pair{-29.0, 9.0},
                                    {-23.5, 7.0},
                                    {-8.0, 8.0},
                                    {-2.5, 10.5},
                                    {3.0, 7.5},
                                    {21.0, 8.5},
                                    {27.0, 11.0}}) {
        const double foot = slope(x) + 1.5;
        QPainterPath fir(QPointF(x, foot - height));
        for (const double tier : {0.45, 0.75, 1.0}) {
            fir.moveTo(x, foot - height * (1.45 - tier));
            fir.lineTo(x - 3.4 * tier, foot - height * (1 - tier));
            fir.lineTo(x + 3.4 * tier, foot - height * (1 - tier));
            fir.closeSubpath();
        }
        fir.setFillRule(Qt::WindingFill);
        painter.drawPath(fir);
    }
}

}  // namespace varnello::render
