#include "patterns.h"

#include "colours.h"

namespace varnello::render {

namespace {

// A slim leaf from the origin upward.
QPainterPath Leaf(double length, double width) {
    QPainterPath path;
    path.cubicTo(-width, -length * 0.3, -width * 0.7, -length * 0.7, 0, -length);
    path.cubicTo(width * 0.7, -length * 0.7, width, -length * 0.3, 0, 0);
    return path;
}

void DrawTurnedBy(QPainter& painter, double degrees, const QPainterPath& path) {
    painter.save();
    painter.rotate(degrees);
    painter.drawPath(path);
    painter.restore();
}

}  // namespace

void DrawDaisies(QPainter& painter, const QRectF& area) {
    const QColor ground(0x3f, 0x63, 0x8f);
    const QColor heart(0xe6, 0xb4, 0x3c);
    painter.fillRect(area, ground);
    painter.setPen(Qt::NoPen);
    const QPainterPath petal = Leaf(5.6, 1.9);
    OnHalfDrop(painter, area, 12.6, 11, [&](int column, int row) {
        painter.setBrush(paperColour);
        painter.rotate((column + row) % 2 == 0 ? 0 : 20);
        for (int turn = 0; turn < 9; ++turn) DrawTurnedBy(painter, turn * 40, petal);
        painter.setBrush(heart);
        painter.drawEllipse(QPointF(), 1.8, 1.8);
    });
}

void DrawRoses(QPainter& painter, const QRectF& area) {
    const QColor ground(0xf3, 0xe4, 0xcf);
    const QColor bloom(0xb2, 0x30, 0x48);
    const QColor leaf(0x5d, 0x7d, 0x4a);
    painter.fillRect(area, ground);
    const QPainterPath foliage = Leaf(7.6, 2.6);
    OnHalfDrop(painter, area, 15.75, 11, [&](int, int row) {
        painter.rotate(row % 2 == 0 ? 15 : -15);
        painter.setPen(Qt::NoPen);
        painter.setBrush(leaf);
        for (const double degrees : {70.0, 190.0, 310.0}) DrawTurnedBy(painter, degrees, foliage);
        painter.setBrush(bloom);
        for (int petal = 0; petal < 5; ++petal) {
            const double angle = petal * 1.2566;
            painter.drawEllipse(QPointF(2 * std::cos(angle), 2 * std::sin(angle)), 2.5, 2.5);
        }
        // The rolled heart of the rose.
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(ground, 0.7, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(QRectF(-2.7, -2.7, 5.4, 5.4), 30 * 16, 200 * 16);
        painter.drawArc(QRectF(-1.4, -1.4, 2.8, 2.8), 200 * 16, 250 * 16);
    });
}

void DrawTulips(QPainter& painter, const QRectF& area) {
    const QColor ground(0x4a, 0x2f, 0x5e);
    const QColor bloom(0xe7, 0xbf, 0x52);
    const QColor leaf(0x8d, 0xb0, 0x80);
    painter.fillRect(area, ground);
    const QPainterPath foliage = Leaf(7, 1.8);
    QPainterPath cup(QPointF(0, 2));
    cup.cubicTo(-4, 2, -4.2, -2, -3.4, -5.2);
    cup.lineTo(-1.5, -2.8);
    cup.lineTo(0, -5.8);
    cup.lineTo(1.5, -2.8);
    cup.lineTo(3.4, -5.2);
    cup.cubicTo(4.2, -2, 4, 2, 0, 2);
    OnHalfDrop(painter, area, 12.6, 14.6667, [&](int, int) {
        painter.translate(0, -1.5);
        painter.setPen(QPen(leaf, 0.9));
        painter.drawLine(QPointF(0, 1.5), QPointF(0, 9));
        painter.setPen(Qt::NoPen);
        painter.setBrush(bloom);
        painter.drawPath(cup);
        painter.translate(0, 9);
        painter.setBrush(leaf);
        DrawTurnedBy(painter, -35, foliage);
        DrawTurnedBy(painter, 35, foliage);
    });
}

}  // namespace varnello::render
