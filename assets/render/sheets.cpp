#include "sheets.h"

#include "back.h"
#include "face.h"
#include "slot.h"

namespace varnello::render {

QImage FacesSheet(const CardShape& shape, Artwork& artwork) {
    const QSize cell = shape.size;
    return PaintImage({cell.width() * rankCount, cell.height() * suitCount}, [&](QPainter& sheet) {
        for (int suit = 0; suit < suitCount; ++suit) {
            for (int rank = 0; rank < rankCount; ++rank) {
                const QImage face = PaintImage(cell, [&](QPainter& painter) {
                    DrawFace(painter, shape, artwork, {suit, rank});
                });
                sheet.drawImage(rank * cell.width(), suit * cell.height(), face);
            }
        }
    });
}

QImage SlotsSheet(const CardShape& shape, Artwork& artwork) {
    const QSize cell = shape.size;
    return PaintImage({cell.width() * slotCount, cell.height()}, [&](QPainter& sheet) {
        for (int slot = 0; slot < slotCount; ++slot) {
            const QImage picture = PaintImage(
                cell, [&](QPainter& painter) { DrawSlot(painter, shape, artwork, slot); });
            sheet.drawImage(slot * cell.width(), 0, picture);
        }
    });
}

QImage BackPicture(const CardShape& shape, int number) {
    return PaintImage(shape.size, [&](QPainter& painter) { DrawBack(painter, shape, number); });
}

}  // namespace varnello::render
