#include "contact_sheet.h"

#include "drawing.h"
#include "program_icon.h"

#include <QDir>
#include <QPainter>

#include <array>

namespace varnello::drawings {

namespace {

constexpr int gap = 12;
constexpr int zoom = 4;  // of what is enlarged, each pixel as a square
constexpr int columns = 4;
constexpr QSize cell(190, 92);  // a small icon in three ways, its name below
constexpr int textHeight = 16;
constexpr std::array smallSizes{16, 22, 24, 32, 48, 64};  // of the program's icon
constexpr std::array enlargedSizes{16, 22, 24, 32, 48};
constexpr std::array largeSizes{128, 256};

struct Ground {
    QColor paper;
    QColor ink;
};
const Ground grounds[] = {{QColor(0xef, 0xef, 0xef), Qt::black},
                          {QColor(0x2a, 0x2a, 0x2c), Qt::white}};

void DrawEnlarged(QPainter& painter, QPoint at, const QImage& picture, int factor) {
    painter.drawImage(QRect(at, picture.size() * factor), picture);
}

void DrawSmallIcon(QPainter& painter, QPoint at, const QString& file) {
    const Drawing drawing(file);
    const QImage once = drawing.Picture(drawing.Size());
    int x = at.x();
    DrawEnlarged(painter, {x, at.y()}, once, zoom);
    x += once.width() * zoom + gap;
    painter.drawImage(x, at.y(), once);
    x += once.width() + gap;
    painter.drawImage(x, at.y(), drawing.Picture(drawing.Size() * 2));
    painter.drawText(QRect(at.x(), at.y() + once.height() * zoom, cell.width(), textHeight),
                     QFileInfo(file).completeBaseName());
}

/// Draws the program's icon and returns the height it took. A painter without a device that shows
/// anything will do to learn that height.
int DrawProgramIcon(QPainter& painter, QPoint at, const QString& folder) {
    int x = at.x();
    int row = 0;
    for (const int size : smallSizes) {
        const QImage icon = ProgramIcon(folder, size);
        painter.drawImage(x, at.y(), icon);
        x += icon.width() + gap;
        row = icon.height();
    }
    int y = at.y() + row + gap;
    x = at.x();
    for (const int size : enlargedSizes) {
        const QImage icon = ProgramIcon(folder, size);
        DrawEnlarged(painter, {x, y}, icon, zoom);
        x += icon.width() * zoom + gap;
        row = icon.height() * zoom;
    }
    y += row + gap;
    x = at.x();
    for (const int size : largeSizes) {
        painter.drawImage(x, y, ProgramIcon(folder, size));
        x += size + gap;
        row = size;
    }
    return y + row + gap - at.y();
}

/// Draws everything on one ground and returns the height it took.
int DrawColumn(QPainter& painter, QPoint at, const QStringList& icons, const QString& folder) {
    for (qsizetype i = 0; i < icons.size(); ++i) {
        const QPoint place(static_cast<int>(i % columns) * cell.width(),
                           static_cast<int>(i / columns) * cell.height());
        DrawSmallIcon(painter, at + place, icons[i]);
    }
    const int rows = static_cast<int>((icons.size() + columns - 1) / columns);
    const int height = rows * cell.height() + gap;
    return height + DrawProgramIcon(painter, at + QPoint(0, height), folder + "/app");
}

}  // namespace

QImage ContactSheet(const QString& folder) {
    QStringList icons;
    const QDir files(folder);
    for (const QString& name : files.entryList({"*.svg"})) icons << files.filePath(name);

    QImage nothing(1, 1, QImage::Format_RGB32);
    QPainter measure(&nothing);
    const QSize half(columns * cell.width() + gap,
                     DrawColumn(measure, {0, 0}, icons, folder) + gap);

    QImage sheet(half.width() * 2, half.height(), QImage::Format_RGB32);
    QPainter painter(&sheet);
    QPoint corner;
    for (const Ground& ground : grounds) {
        painter.fillRect(QRect(corner, half), ground.paper);
        painter.setPen(ground.ink);
        DrawColumn(painter, corner + QPoint(gap, gap), icons, folder);
        corner += QPoint(half.width(), 0);
    }
    return sheet;
}

}  // namespace varnello::drawings
