#include "card_shape.h"

#include "colours.h"

#include <algorithm>
#include <cmath>

namespace varnello::render {

namespace {

constexpr double cardWidth = 71;
constexpr double cardHeight = 96;
constexpr double cornerRadius = 5;

int RoundHalfUp(double value) { return static_cast<int>(std::floor(value + 0.5)); }

}  // namespace

CardShape::CardShape(double ratioOfPixels)
    : ratio(ratioOfPixels),
      size(RoundHalfUp(cardWidth * ratio), RoundHalfUp(cardHeight * ratio)),
      line(std::max(1, RoundHalfUp(ratio))),
      radius(cornerRadius * ratio) {}

int CardShape::Px(double length) const { return RoundHalfUp(length * ratio); }

QRect CardShape::Snap(double x, double y, double width, double height) const {
    return {Px(x), Px(y), std::max(1, Px(width)), std::max(1, Px(height))};
}

QImage PaintImage(QSize size, const std::function<void(QPainter&)>& paint) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    return image;
}

QImage Turned(const QImage& image) { return image.mirrored(true, true); }

void DrawPaper(QPainter& painter, const CardShape& shape) {
    // One half and its turned copy, so that the soft pixels of opposite corners agree.
    const QImage upper = PaintImage(shape.size, [&](QPainter& half) {
        const QRectF outside = shape.Bounds();
        const double line = shape.line;
        const double innerRadius = shape.radius - line;
        half.setClipRect(0, 0, shape.size.width(), shape.size.height() / 2);
        half.setPen(Qt::NoPen);
        half.setBrush(edgeColour);
        half.drawRoundedRect(outside, shape.radius, shape.radius);
        half.setBrush(paperColour);
        half.drawRoundedRect(outside.adjusted(line, line, -line, -line), innerRadius, innerRadius);
    });
    painter.drawImage(0, 0, upper);
    painter.drawImage(0, 0, Turned(upper));
}

}  // namespace varnello::render
