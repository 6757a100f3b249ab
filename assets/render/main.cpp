// Shows the card pictures that are drawn from assets/cards.
#include "artwork.h"
#include "contact_sheet.h"

#include <QGuiApplication>

#include <cstdio>
#include <exception>

int main(int argc, char** argv) {
    // Pictures are made without a display, also on build machines.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    if (words.size() != 4 || words[1] != "sheet") {
        std::fputs("usage: varnello-render sheet SOURCE_DIR OUT.png\n", stderr);
        return 2;
    }
    try {
        varnello::render::Artwork artwork(words[2]);
        if (varnello::render::ContactSheet(artwork).save(words[3], "PNG")) return 0;
        std::fprintf(stderr, "varnello-render: cannot write %s\n", qPrintable(words[3]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "varnello-render: %s\n", error.what());
    }
    return 1;
}
