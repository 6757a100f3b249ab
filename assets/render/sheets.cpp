#include "sheets.h"

#include "back.h"
#include "face.h"
#include "slot.h"

#include <array>
#include <stdexcept>

namespace varnello::render {

namespace {

constexpr std::array ratios{1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0};

void Save(const QImage& image, const QString& path) {
    if (!image.convertToFormat(QImage::Format_ARGB32).save(path, "PNG"))
        throw std::runtime_error("cannot write " + path.toStdString());
}

}  // namespace

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

void WriteSheets(Artwork& artwork, const QString& folder) {
    for (const double ratio : ratios) {
        const CardShape shape(ratio);
        const QString suffix = '@' + QString::number(ratio) + ".png";
        Save(FacesSheet(shape, artwork), folder + "/faces" + suffix);
        Save(SlotsSheet(shape, artwork), folder + "/slots" + suffix);
        for (const int number : BackNumbers()) {
            Save(BackPicture(shape, number), folder + "/back-" + QString::number(number) + suffix);
        }
    }
}

}  // namespace varnello::render
