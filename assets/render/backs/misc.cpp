#include "patterns.h"

#include "colours.h"

#include <numbers>

namespace varnello::render {

namespace {

QPolygonF Lozenge(double halfWidth, double halfHeight) {
    return QPolygonF({QPointF(0, -halfHeight), QPointF(halfWidth, 0), QPointF(0, halfHeight),
                      QPointF(-halfWidth, 0)});
}

// A small letter V with feet, its point at the origin.
QPainterPath Letter() {
    QPainterPath path;
    path.addPolygon(QPolygonF({{-9, -15},
                               {-1, -15},
                               {-1, -13.4},
                               {-3, -13.4},
                               {0.9, -4},
                               {4.2, -13.4},
                               {2.2, -13.4},
                               {2.2, -15},
                               {9, -15},
                               {9, -13.4},
                               {6.8, -13.4},
                               {1.5, 0},
                               {-1.3, 0},
                               {-7, -13.4},
                               {-9, -13.4},
                               {-9, -15}}));
    return path;
}

}  // namespace

void DrawDiagonalLattice(QPainter& painter, const QRectF& area) {
    const QColor deep(0x1f, 0x3a, 0x78);
    const QColor pale(0xc4, 0xd2, 0xe8);
    painter.fillRect(area, deep);

    // The border: a pale line one pixel inside the ground.
    painter.setPen(QPen(pale, 1));
    painter.drawRect(area.adjusted(1.5, 1.5, -1.5, -1.5));
    painter.setClipRect(area.adjusted(3, 3, -3, -3), Qt::IntersectClip);

    constexpr double mesh = 9;  // odd: the lines then run through corners of pixels
    const double reach = area.width() + area.height();
    painter.setPen(QPen(pale, 0.8));
    for (double offset = mesh / 2; offset < reach; offset += mesh) {
        for (const double c : {offset, -offset}) {
            painter.drawLine(QPointF(c - reach, -reach), QPointF(c + reach, reach));
            painter.drawLine(QPointF(c - reach, reach), QPointF(c + reach, -reach));
        }
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(pale);
    OnGrid(painter, area, mesh / 2, mesh / 2, [&](int column, int row) {
        if ((row + column) % 2 == 0) painter.drawPolygon(Lozenge(1.3, 1.3));
    });

    // The letter in an oval; its turned twin stands below the seam.
    painter.setBrush(deep);
    painter.setPen(QPen(pale, 1));
    painter.drawEllipse(QPointF(), 18, 24);
    painter.setPen(QPen(pale, 0.6));
    painter.drawEllipse(QPointF(), 15.8, 21.8);
    painter.setPen(Qt::NoPen);
    painter.fillPath(Letter().translated(0, -2.6), paperColour);
    painter.setBrush(paperColour);
    painter.drawPolygon(Lozenge(1.5, 1.5));
}

void DrawSunburst(QPainter& painter, const QRectF& area) {
    const QColor rust(0xa3, 0x3d, 0x24);
    const QColor gold(0xe0, 0xa8, 0x3e);
    painter.fillRect(area, rust);

    // An even number of ray pairs keeps the burst the same when turned.
    constexpr int rays = 32;
    constexpr double step = std::numbers::pi / rays;
    const double reach = area.width() + area.height();
    painter.setPen(Qt::NoPen);
    painter.setBrush(gold);
    for (int ray = 0; ray < rays; ++ray) {
        const double from = (2 * ray - 0.5) * step;
        const double to = from + step;
        painter.drawPolygon(
            QPolygonF({QPointF(0, 0), QPointF(reach * std::cos(from), reach * std::sin(from)),
                       QPointF(reach * std::cos(to), reach * std::sin(to))}));
    }
    // Rings of beads break up the long rays.
    painter.setPen(QPen(rust, 1));
    for (const double radius : {22.0, 36.0, 50.0}) {
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QPointF(), radius - 2.4, radius - 2.4);
        painter.drawEllipse(QPointF(), radius + 2.4, radius + 2.4);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(rust);
    painter.drawEllipse(QPointF(), 12, 12);
    painter.setBrush(gold);
    painter.drawEllipse(QPointF(), 10, 10);
    painter.setBrush(rust);
    painter.drawEllipse(QPointF(), 6.5, 6.5);
    painter.setBrush(paperColour);
    painter.drawEllipse(QPointF(), 3, 3);
}

void DrawFishScales(QPainter& painter, const QRectF& area) {
    const QColor deep(0x1d, 0x58, 0x5c);
    const QColor pale(0xb9, 0xd8, 0xcf);
    painter.fillRect(area, deep);
    const double width = area.width() / 5;
    const double rise = area.height() / 12;
    // From the far edge to the seam, so that nearer scales lie on top.
    for (int row = 7; row >= 0; --row) {
        for (int column = -3; column <= 3; ++column) {
            const double shift = row % 2 == 0 ? 0 : width / 2;
            const QPointF centre(column * width + shift, -row * rise);
            painter.setPen(QPen(pale, 1.3));
            painter.setBrush(deep);
            painter.drawEllipse(centre, width / 2, width / 2 + 1);
            painter.setPen(Qt::NoPen);
            painter.setBrush(pale);
            painter.drawEllipse(centre - QPointF(0, row == 0 ? 0 : 1.6), 2, 2);
        }
    }
}

}  // namespace varnello::render
