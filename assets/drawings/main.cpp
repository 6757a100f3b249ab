// Renders the drawings that keep their size, and the program's icon.
#include "contact_sheet.h"
#include "drawing.h"
#include "program_icon.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <cstdio>
#include <exception>

namespace {

using namespace varnello::drawings;

constexpr const char* usage =
    "usage: varnello-render-drawings drawings OUTPUT_DIR FILE.svg...\n"
    "       varnello-render-drawings icon APP_ICON_DIR OUTPUT_DIR\n"
    "       varnello-render-drawings sheet ICONS_DIR OUT.png\n";

/// At its own size and at two and three times that size: NAME.png, NAME@2x.png and NAME@3x.png.
void WriteDrawing(const QString& source, const QString& output) {
    const Drawing drawing(source);
    const QString target = output + '/' + QFileInfo(source).completeBaseName();
    Save(drawing.Picture(drawing.Size()), target + ".png");
    Save(drawing.Picture(drawing.Size() * 2), target + "@2x.png");
    Save(drawing.Picture(drawing.Size() * 3), target + "@3x.png");
}

/// Whether the words make sense.
bool Run(const QStringList& words) {
    if (words.size() < 4 || (words[1] != "drawings" && words.size() != 4)) return false;
    if (words[1] == "drawings") {
        for (const QString& source : words.mid(3)) WriteDrawing(source, words[2]);
    } else if (words[1] == "icon") {
        WriteProgramIcon(words[2], words[3]);
    } else if (words[1] == "sheet") {
        Save(ContactSheet(words[2]), words[3]);
    } else {
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");  // build machines have no display
    const QGuiApplication application(argc, argv);
    try {
        if (Run(QGuiApplication::arguments())) return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "varnello-render-drawings: %s\n", error.what());
        return 1;
    }
    std::fputs(usage, stderr);
    return 2;
}
