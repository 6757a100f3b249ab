#include <QApplication>
#include <QPainter>
#include <cstdio>

#include "desktop/appearance/preview.h"
#include "desktop/platform/text.h"
#include "engine/definitions/catalogue.h"

// varnello-previews OUT.png [RATIO]: the previews of all games in one picture, for people to look
// at, at one device pixel a pixel or more.
using namespace varnello;

namespace {

constexpr int kColumns = 5;
constexpr int kGap = 10;         // pixels
constexpr int kTextHeight = 20;  // pixels

QImage Sheet(double ratio) {
    const int step = kPreviewSize.width() + kGap;
    const int line = kPreviewSize.height() + kTextHeight + kGap;
    const int rows = (static_cast<int>(kCatalogue.size()) + kColumns - 1) / kColumns;
    const QSize size(kColumns * step + kGap, rows * line + kGap);
    QImage sheet((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    Previews previews;
    int index = 0;
    for (const auto& game : kCatalogue) {
        const QPoint at(kGap + index % kColumns * step, kGap + index / kColumns * line);
        painter.drawText(QRect(at, QSize(kPreviewSize.width(), kTextHeight)), ToQt(game.Name));
        painter.drawPixmap(at + QPoint(0, kTextHeight), previews.Of(std::string(game.Name), ratio));
        ++index;
    }
    return sheet;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList words = QApplication::arguments();
    const double ratio = words.value(2, QStringLiteral("1")).toDouble();
    if (words.size() < 2 || words.size() > 3 || ratio < 1 || ratio > 3) {
        std::fputs("usage: varnello-previews OUT.png [RATIO]\n", stderr);
        return 2;
    }
    if (Sheet(ratio).save(words[1], "PNG")) return 0;
    std::fprintf(stderr, "varnello-previews: cannot write %s\n", qPrintable(words[1]));
    return 1;
}
