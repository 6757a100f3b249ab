// The patterns on the backs. Each covers the area, in card pixels around the origin, which is the
// middle of the card. Only the upper half is kept; the lower half is the same turned by half, so a
// pattern should meet its own turned copy at the line y = 0.
#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <cmath>

namespace varnello::render {

using Pattern = void (*)(QPainter& painter, const QRectF& area);

void DrawDaisies(QPainter& painter, const QRectF& area);
void DrawRoses(QPainter& painter, const QRectF& area);
void DrawTulips(QPainter& painter, const QRectF& area);
void DrawTrellis(QPainter& painter, const QRectF& area);
void DrawHedge(QPainter& painter, const QRectF& area);
void DrawInterlacedCircles(QPainter& painter, const QRectF& area);
void DrawStarLattice(QPainter& painter, const QRectF& area);
void DrawWeave(QPainter& painter, const QRectF& area);
void DrawDiagonalLattice(QPainter& painter, const QRectF& area);
void DrawSunburst(QPainter& painter, const QRectF& area);
void DrawFishScales(QPainter& painter, const QRectF& area);
void DrawWaves(QPainter& painter, const QRectF& area);
void DrawLeaves(QPainter& painter, const QRectF& area);
void DrawFeathers(QPainter& painter, const QRectF& area);
void DrawNightHills(QPainter& painter, const QRectF& area);

// Calls draw(x, y) with the painter moved to each point of a grid through the origin.
template <typename Draw>
void OnGrid(QPainter& painter, const QRectF& area, double stepX, double stepY, Draw draw) {
    const int columns = static_cast<int>(std::ceil(area.width() / 2 / stepX)) + 1;
    const int rows = static_cast<int>(std::ceil(area.height() / 2 / stepY)) + 1;
    for (int row = -rows; row <= rows; ++row) {
        for (int column = -columns; column <= columns; ++column) {
            painter.save();
            painter.translate(column * stepX, row * stepY);
            draw(column, row);
            painter.restore();
        }
    }
}

// Calls draw(column, row) at the places of a half-drop repeat without a row on the seam. Shifting
// rows by a quarter step either way lets the repeat run on across the seam; places below it get
// the turned copy of their counterpart above, since that may reach over the seam.
template <typename Draw>
void OnHalfDrop(QPainter& painter, const QRectF& area, double stepX, double stepY, Draw draw) {
    OnGrid(painter, area, stepX, stepY, [&](int column, int row) {
        painter.translate(row % 2 == 0 ? stepX / 4 : -stepX / 4, stepY / 2);
        if (row >= 0) {
            painter.rotate(180);
            draw(-column, -row - 1);
        } else {
            draw(column, row);
        }
    });
}

}  // namespace varnello::render
