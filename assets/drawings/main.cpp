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
    "usage: varnello-render-drawings drawings RATIO... -- OUTPUT_DIR FILE.svg...\n"
    "       varnello-render-drawings icon APP_ICON_DIR OUTPUT_DIR SIZE...\n"
    "       varnello-render-drawings sheet ICONS_DIR OUT.png\n";

/// NAME.png at its own size, NAME@2x.png at twice that size, and so on.
void WriteDrawing(const QString& source, const QString& output, const QStringList& ratios) {
    const Drawing drawing(source);
    const QString target = output + '/' + QFileInfo(source).completeBaseName();
    for (const QString& ratio : ratios) {
        const QString suffix = ratio == "1" ? QString() : '@' + ratio + 'x';
        Save(drawing.Picture(drawing.Size() * ratio.toInt()), target + suffix + ".png");
    }
}

/// Whether the words make sense.
bool Run(const QStringList& words) {
    const QString mode = words.value(1);
    if (mode == "drawings") {
        const qsizetype end = words.indexOf("--");
        if (end < 3 || words.size() < end + 3) return false;
        for (const QString& source : words.mid(end + 2))
            WriteDrawing(source, words[end + 1], words.mid(2, end - 2));
    } else if (mode == "icon" && words.size() > 4) {
        for (const QString& size : words.mid(4)) WriteProgramIcon(words[2], words[3], size.toInt());
    } else if (mode == "sheet" && words.size() == 4) {
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
