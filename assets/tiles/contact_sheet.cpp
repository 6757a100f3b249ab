#include "contact_sheet.h"

#include "render/sheets.h"
#include "tile.h"

#include <QBrush>
#include <QPainter>

#include <algorithm>
#include <vector>

namespace varnello::tiles {

namespace {

constexpr QSize area(320, 220);
constexpr int gap = 8;
constexpr int cardWidth = 71;
constexpr int cardHeight = 96;

// A corner of a game: a pile fanned down, single cards, and slots between them.
void DrawCards(QPainter& painter, const QImage& faces, const QImage& empties) {
    const auto put = [&](const QImage& sheet, int column, int row, int x, int y) {
        painter.drawImage(QPoint(x, y), sheet,
                          QRect(column * cardWidth, row * cardHeight, cardWidth, cardHeight));
    };
    for (int step = 0; step < 4; ++step) put(faces, 12 - step, step % 2, 8, 8 + 16 * step);
    put(empties, 13, 0, 86, 8);
    put(faces, 0, 1, 164, 8);
    put(empties, 14, 0, 242, 8);
    put(faces, 6, 2, 86, 112);
    put(empties, 4, 0, 164, 112);
    put(empties, 16, 0, 242, 112);
}

}  // namespace

QImage ContactSheet(const QString& cardsFolder) {
    render::Artwork artwork(cardsFolder);
    const render::CardShape shape(1);
    const QImage faces = FacesSheet(shape, artwork);
    const QImage empties = SlotsSheet(shape, artwork);
    const std::vector<TileGroup>& groups = TileGroups();
    std::size_t columns = 0;
    for (const TileGroup& group : groups) columns = std::max(columns, group.tiles.size());
    QImage sheet(static_cast<int>(columns) * (area.width() + gap) + gap,
                 static_cast<int>(groups.size()) * (area.height() + gap) + gap,
                 QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    int y = gap;
    for (const TileGroup& group : groups) {
        int x = gap;
        for (const Tile& tile : group.tiles) {
            painter.save();
            painter.translate(x, y);
            painter.fillRect(QRect(QPoint(0, 0), area), QBrush(Paint(tile, 1)));
            DrawCards(painter, faces, empties);
            painter.restore();
            x += area.width() + gap;
        }
        y += area.height() + gap;
    }
    return sheet;
}

}  // namespace varnello::tiles
