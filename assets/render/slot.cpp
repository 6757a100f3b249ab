#include "slot.h"

#include "colours.h"
#include "face.h"

#include <vector>

namespace varnello::render {

namespace {

// Strengths of 255. A dark and a light line side by side leave no colour on which both fade: lines
// keep 2 to 1 and marks 1.5 to 1 (varnello-slot-contrast measures it).
constexpr int wellDepth = 26;  // a tenth darker than the table
constexpr int darkLineStrength = 122;
constexpr int lightLineStrength = 118;
constexpr int markStrength = 78;
constexpr int contourStrength = 86;
constexpr int signStrength = 180;

constexpr int tenSlot = 9;

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

// A shallow well within its two lines.
void DrawWell(QPainter& painter, const CardShape& shape) {
    const double inset = 2.0 * shape.line;
    const double radius = shape.radius - inset;
    painter.setPen(Qt::NoPen);
    painter.setBrush(WithStrength(Qt::black, wellDepth));
    painter.drawRoundedRect(QRectF(shape.Bounds()).adjusted(inset, inset, -inset, -inset), radius,
                            radius);
    DrawOutline(painter, shape, 0, WithStrength(Qt::black, darkLineStrength));
    DrawOutline(painter, shape, 1, WithStrength(paperColour, lightLineStrength));
}

QRect Centred(const CardShape& shape, double y, double width, double height) {
    int w = shape.Px(width);
    if ((shape.size.width() - w) % 2 != 0) ++w;
    return {(shape.size.width() - w) / 2, shape.Px(y), w, shape.Px(height)};
}

// Where copies of a mark darken the ground around it, in line widths: all around a figure, on one
// side of what has finer parts.
using Offsets = std::vector<QPoint>;
const Offsets& Around() {
    static const Offsets offsets{{-1, -1}, {0, -1}, {1, -1}, {-1, 0},
                                 {1, 0},   {-1, 1}, {0, 1},  {1, 1}};
    return offsets;
}
const Offsets& Below() {
    static const Offsets offsets{{1, 0}, {0, 1}, {1, 1}};
    return offsets;
}

// A light mark and a dark contour: one of the two stands out from any table.
void DrawMark(QPainter& painter, const CardShape& shape, Artwork& artwork, const QString& file,
              const QString& element, const QRect& place, const Offsets& contourAt,
              int strength = markStrength) {
    const QImage mark = PaintImage(shape.size, [&](QPainter& inner) {
        artwork.DrawTinted(inner, file, element, place, Qt::black);
    });
    const QImage contour = PaintImage(shape.size, [&](QPainter& inner) {
        for (const QPoint offset : contourAt) inner.drawImage(offset * shape.line, mark);
        inner.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        inner.drawImage(0, 0, mark);
    });
    painter.setOpacity(contourStrength / 255.0);
    painter.drawImage(0, 0, contour);
    painter.setOpacity(1);
    artwork.DrawTinted(painter, file, element, place, WithStrength(paperColour, strength));
}

}  // namespace

void DrawSlot(QPainter& painter, const CardShape& shape, Artwork& artwork, int slot) {
    const QString ranks = QStringLiteral("ranks.svg");
    const QString emblems = QStringLiteral("emblem.svg");
    const QString signs = QStringLiteral("signs.svg");
    DrawWell(painter, shape);
    if (slot < rankCount) {
        const double width = slot == tenSlot ? 21 : 17;  // two figures
        DrawMark(painter, shape, artwork, ranks, RankName(slot), Centred(shape, 16, width, 23),
                 Around());
        DrawMark(painter, shape, artwork, emblems, "emblem", Centred(shape, 52, 29, 29), Below());
    } else if (slot == emblemSlot) {
        DrawMark(painter, shape, artwork, emblems, "emblem", Centred(shape, 27.5, 41, 41), Below());
    } else if (slot == stopSlot) {
        artwork.Draw(painter, signs, "stop", Centred(shape, 31.5, 33, 33));
    } else if (slot == redealSlot) {
        DrawMark(painter, shape, artwork, signs, "redeal", Centred(shape, 29.5, 37, 37), Around(),
                 signStrength);
    } else if (slot == emptyStockSlot) {
        DrawMark(painter, shape, artwork, signs, "empty-stock", Centred(shape, 29.5, 37, 37),
                 Around());
    }
}

}  // namespace varnello::render
