#include "court.h"

#include "colours.h"

#include <QRegion>

namespace varnello::render {

namespace {

// Below this ratio the fine strokes of a figure would only dirty its colours.
constexpr double detailRatio = 1.5;

// The frame of one half in device pixels. Its upper left corner steps back for rank and suit mark,
// so far down that the step stays hidden while another card covers all but the strip with the
// index.
struct Frame {
    explicit Frame(const CardShape& shape)
        : left(shape.Px(15)),
          top(shape.Px(5)),
          right(shape.size.width() - left),
          bottom(shape.size.height() / 2),
          stepX(shape.Px(26)),
          stepY(shape.Px(18)),
          line(shape.line) {}

    QRect Outside() const { return {left, top, right - left, bottom - top}; }

    QRegion Inside() const {
        const QRegion whole(left + line, top + line, right - left - 2 * line, bottom - top - line);
        return whole - QRegion(left, top, stepX + line - left, stepY + line - top);
    }

    // The border as a region of whole pixels, hence sharp at every ratio.
    QRegion Border() const {
        const QRegion whole(Outside());
        const QRegion step(left, top, stepX - left, stepY - top);
        return whole - step - Inside();
    }

    int left;
    int top;
    int right;
    int bottom;
    int stepX;
    int stepY;
    int line;
};

QImage PaintHalf(const CardShape& shape, Artwork& artwork, const QString& file) {
    const Frame frame(shape);
    return PaintImage(shape.size, [&](QPainter& painter) {
        painter.setClipRegion(frame.Inside());
        artwork.DrawOnPage(painter, file, QStringLiteral("figure"), frame.Outside());
        if (shape.ratio >= detailRatio)
            artwork.DrawOnPage(painter, file, QStringLiteral("detail"), frame.Outside());
        painter.setClipRegion(frame.Border());
        painter.fillRect(shape.Bounds(), blackInk);
    });
}

}  // namespace

void DrawCourt(QPainter& painter, const CardShape& shape, Artwork& artwork, const QString& suit,
               const QString& rank) {
    const QImage half = PaintHalf(shape, artwork, "courts/" + suit + '-' + rank + ".svg");
    painter.drawImage(0, 0, half);
    painter.drawImage(0, 0, Turned(half));
}

}  // namespace varnello::render
