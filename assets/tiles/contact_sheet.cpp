#include "contact_sheet.h"

#include "tile.h"

#include <QBrush>
#include <QPainter>

#include <algorithm>
#include <stdexcept>

namespace varnello::tiles {

namespace {

constexpr QSize area(320, 220);
constexpr int gap = 8;
constexpr int cardWidth = 71;
constexpr int cardHeight = 96;

QImage Sheet(const QString& path) {
    QImage image(path);
    if (image.isNull()) throw std::runtime_error("cannot read " + path.toStdString());
    return image;
}

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

QImage ContactSheet(const std::vector<std::vector<Tile>>& groups, const QString& cardsFolder) {
    const QImage faces = Sheet(cardsFolder + "/faces@1.png");
    const QImage empties = Sheet(cardsFolder + "/slots@1.png");
    std::size_t columns = 0;
    for (const std::vector<Tile>& group : groups) columns = std::max(columns, group.size());
    QImage sheet(static_cast<int>(columns) * (area.width() + gap) + gap,
                 static_cast<int>(groups.size()) * (area.height() + gap) + gap,
                 QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    int y = gap;
    for (const std::vector<Tile>& group : groups) {
        int x = gap;
        for (const Tile& tile : group) {
            painter.save();
            painter.translate(x, y);
            painter.fillRect(QRect(QPoint(0, 0), area), QBrush(Paint(tile).plain));
            DrawCards(painter, faces, empties);
            painter.restore();
            x += area.width() + gap;
        }
        y += area.height() + gap;
    }
    return sheet;
}

}  // namespace varnello::tiles
