#include "slot.h"

#include "colours.h"
#include "face.h"

namespace varnello::render {

namespace {

// Strengths of 255.
constexpr int wellDepth = 26;  // a tenth darker than the table
constexpr int outlineStrength = 90;
constexpr int glintStrength = 28;
constexpr int markStrength = 85;  // a third of full strength
constexpr int shadowStrength = 70;
constexpr int signStrength = 180;

QColor WithStrength(QColor colour, int strength) {
    colour.setAlpha(strength);
    return colour;
}

void DrawOutline(QPainter& painter, const CardShape& shape, double inset, const QColor& colour) {
    const double distance = (inset + 0.5) * shape.line;
    const double radius = shape.radius - distance;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, shape.line));
    painter.drawRoundedRect(
        QRectF(shape.Bounds()).adjusted(distance, distance, -distance, -distance), radius, radius);
}

// A shallow well. Its dark outline shows on light and coloured tables, the faint light within it
// on black ones.
void DrawWell(QPainter& painter, const CardShape& shape) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(WithStrength(Qt::black, wellDepth));
    painter.drawRoundedRect(shape.Bounds(), shape.radius, shape.radius);
    DrawOutline(painter, shape, 0, WithStrength(Qt::black, outlineStrength));
    DrawOutline(painter, shape, 1, WithStrength(paperColour, glintStrength));
}

QRect Centred(const CardShape& shape, double y, double width, double height) {
    int w = shape.Px(width);
    if ((shape.size.width() - w) % 2 != 0) ++w;
    return {(shape.size.width() - w) / 2, shape.Px(y), w, shape.Px(height)};
}

// A light mark over a dark shadow: one of the two stands out from any table.
void DrawMark(QPainter& painter, const CardShape& shape, Artwork& artwork, const QString& file,
              const QString& element, const QRect& place, int strength = markStrength) {
    artwork.DrawTinted(painter, file, element, place.translated(0, shape.line),
                       WithStrength(Qt::black, shadowStrength));
    artwork.DrawTinted(painter, file, element, place, WithStrength(paperColour, strength));
}

}  // namespace

void DrawSlot(QPainter& painter, const CardShape& shape, Artwork& artwork, int slot) {
    const QString ranks = QStringLiteral("ranks.svg");
    const QString emblems = QStringLiteral("emblem.svg");
    const QString signs = QStringLiteral("signs.svg");
    DrawWell(painter, shape);
    if (slot < rankCount) {
        DrawMark(painter, shape, artwork, ranks, RankName(slot), Centred(shape, 16, 17, 23));
        DrawMark(painter, shape, artwork, emblems, "emblem", Centred(shape, 52, 29, 29));
    } else if (slot == emblemSlot) {
        DrawMark(painter, shape, artwork, emblems, "emblem", Centred(shape, 27.5, 41, 41));
    } else if (slot == stopSlot) {
        artwork.Draw(painter, signs, "stop", Centred(shape, 31.5, 33, 33));
    } else if (slot == redealSlot) {
        DrawMark(painter, shape, artwork, signs, "redeal", Centred(shape, 29.5, 37, 37),
                 signStrength);
    } else if (slot == emptyStockSlot) {
        DrawMark(painter, shape, artwork, signs, "empty-stock", Centred(shape, 29.5, 37, 37));
    }
}

}  // namespace varnello::render
