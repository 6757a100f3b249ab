// Renders the card pictures from the drawings under assets/cards.
#include "contact_sheet.h"
#include "sheets.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace {

constexpr const char* usage =
    "usage: varnello-render cards SOURCE_DIR OUTPUT_DIR\n"
    "       varnello-render sheet SOURCE_DIR OUT.png\n";

void Run(const QString& mode, const QString& source, const QString& output) {
    varnello::render::Artwork artwork(source);
    if (mode == "cards") {
        if (!QDir().mkpath(output))
            throw std::runtime_error("cannot make folder " + output.toStdString());
        varnello::render::WriteSheets(artwork, output);
    } else if (!varnello::render::ContactSheet(artwork).save(output, "PNG")) {
        throw std::runtime_error("cannot write " + output.toStdString());
    }
}

}  // namespace

int main(int argc, char** argv) {
    // Pictures are made without a display, also on build machines.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments();
    if (words.size() != 4 || (words[1] != "cards" && words[1] != "sheet")) {
        std::fputs(usage, stderr);
        return 2;
    }
    try {
        Run(words[1], words[2], words[3]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "varnello-render: %s\n", error.what());
        return 1;
    }
    return 0;
}
