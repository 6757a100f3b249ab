#include "contact_sheet.h"

#include "back.h"
#include "sheets.h"

#include <QLinearGradient>

#include <algorithm>

namespace varnello::render {

namespace {

constexpr int gap = 12;

// Faces, slots and backs below each other on a transparent ground.
QImage Column(const CardShape& shape, Artwork& artwork) {
    const QImage faces = FacesSheet(shape, artwork);
    const QImage empties = SlotsSheet(shape, artwork);
    std::vector<int> numbers;
    for (const BackGroup& group : BackGroups())
        numbers.insert(numbers.end(), group.numbers.begin(), group.numbers.end());
    const int step = shape.size.width() + gap / 2;
    const int width = std::max(empties.width(), step * static_cast<int>(numbers.size()));
    const int height = faces.height() + empties.height() + shape.size.height() + 2 * gap;
    return PaintImage({width, height}, [&](QPainter& painter) {
        painter.drawImage(0, 0, faces);
        painter.drawImage(0, faces.height() + gap, empties);
        int x = 0;
        for (const int number : numbers) {
            painter.drawImage(x, faces.height() + empties.height() + 2 * gap,
                              BackPicture(shape, number));
            x += step;
        }
    });
}

}  // namespace

QImage ContactSheet(Artwork& artwork) {
    const QImage small = Column(CardShape(1), artwork);
    const QImage large = Column(CardShape(2), artwork);
    const int width = std::max(2 * small.width() + gap, large.width()) + 2 * gap;
    const int split = small.height() + 2 * gap;
    return PaintImage({width, split + large.height() + 2 * gap}, [&](QPainter& painter) {
        const QSize size(painter.device()->width(), painter.device()->height());
        QLinearGradient felt(0, 0, 0, size.height());
        felt.setColorAt(0, QColor(0, 0x64, 0));
        felt.setColorAt(1, Qt::black);
        painter.fillRect(QRect(QPoint(0, 0), size), felt);
        painter.fillRect(QRect(small.width() + 3 * gap / 2, 0, size.width(), split),
                         QColor(0xd8, 0xd4, 0xc8));
        painter.drawImage(gap, gap, small);
        painter.drawImage(small.width() + 2 * gap, gap, small);
        painter.drawImage(gap, split + gap, large);
    });
}

}  // namespace varnello::render
