// Shows the pictures that may fill the table.
#include "contact_sheet.h"

#include <QGuiApplication>

#include <cstdio>
#include <exception>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");  // build machines have no display
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    if (words.size() != 4 || words[1] != "sheet") {
        std::fputs("usage: varnello-tiles sheet CARDS_DIR OUT.png\n", stderr);
        return 2;
    }
    try {
        if (varnello::tiles::ContactSheet(words[2]).save(words[3], "PNG")) return 0;
        std::fprintf(stderr, "varnello-tiles: cannot write %s\n", qPrintable(words[3]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "varnello-tiles: %s\n", error.what());
    }
    return 1;
}
