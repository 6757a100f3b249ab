#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

// varnello-render-drawings OUTPUT_DIR FILE.svg...: renders each drawing at its own size and at two
// and three times that size, as NAME.png, NAME@2x.png and NAME@3x.png.
namespace {

bool Render(QSvgRenderer& drawing, const QString& file, int ratio) {
    QImage image(drawing.defaultSize() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    return image.save(file, "PNG");
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");  // build machines have no display
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    if (words.size() < 3) {
        std::fputs("usage: varnello-render-drawings OUTPUT_DIR FILE.svg...\n", stderr);
        return 2;
    }
    for (const QString& source : words.mid(2)) {
        QSvgRenderer drawing(source);
        const QString target = words[1] + '/' + QFileInfo(source).completeBaseName();
        const bool done = drawing.isValid() && Render(drawing, target + ".png", 1) &&
                          Render(drawing, target + "@2x.png", 2) &&
                          Render(drawing, target + "@3x.png", 3);
        if (!done) {
            std::fprintf(stderr, "varnello-render-drawings: %s fails\n", qPrintable(source));
            return 1;
        }
    }
    return 0;
}
