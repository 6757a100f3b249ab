// The measures of a card at one ratio of device pixels to card pixels.
#pragma once

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QSize>

#include <functional>

namespace varnello::render {

struct CardShape {
    explicit CardShape(double ratio);

    // Rounds a length in card pixels to whole device pixels, halves up.
    int Px(double length) const;
    // Moves a rectangle in card pixels onto the device grid.
    QRect Snap(double x, double y, double width, double height) const;
    QRect Bounds() const { return {QPoint(0, 0), size}; }

    double ratio;
    QSize size;     // in device pixels
    int line;       // width of the edge and of frame lines, in device pixels
    double radius;  // of the corners, in device pixels
};

// A transparent picture of the given size with antialiasing painted by `paint`.
QImage PaintImage(QSize size, const std::function<void(QPainter&)>& paint);

// The picture turned by half. Exact: every pixel keeps its value.
QImage Turned(const QImage& image);

// The blank card: edge on whole pixels, paper inside it.
void DrawPaper(QPainter& painter, const CardShape& shape);

}  // namespace varnello::render
