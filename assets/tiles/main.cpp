// Makes the pictures that may fill the table.
#include "contact_sheet.h"
#include "tile.h"

#include <QDir>
#include <QString>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string_view>

namespace {

using namespace varnello::tiles;

constexpr const char* usage =
    "usage: varnello-tiles OUTPUT_DIR\n"
    "       varnello-tiles --sheet OUT.png CARDS_DIR\n";

std::vector<std::vector<Tile>> Groups() {
    return {BrickTiles(), MarbleTiles(),  PaperTiles(), RockTiles(),
            StarTiles(),  SurfaceTiles(), WaterTiles(), WoodTiles()};
}

void Save(const QImage& image, const QString& path) {
    if (!image.save(path, "PNG")) throw std::runtime_error("cannot write " + path.toStdString());
}

void WriteTiles(const QString& folder) {
    if (!QDir().mkpath(folder))
        throw std::runtime_error("cannot make folder " + folder.toStdString());
    for (const std::vector<Tile>& group : Groups()) {
        for (const Tile& tile : group) {
            const QString name = folder + '/' + QString::number(tile.id);
            const Pictures pictures = Paint(tile);
            Save(pictures.plain, name + ".png");
            Save(pictures.dense, name + "@2x.png");
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    const bool sheet = argc == 4 && std::string_view(argv[1]) == "--sheet";
    if (!sheet && (argc != 2 || argv[1][0] == '-')) {
        std::fputs(usage, stderr);
        return 2;
    }
    try {
        if (sheet) {
            Save(ContactSheet(Groups(), QString::fromLocal8Bit(argv[3])),
                 QString::fromLocal8Bit(argv[2]));
        } else {
            WriteTiles(QString::fromLocal8Bit(argv[1]));
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "varnello-tiles: %s\n", error.what());
        return 1;
    }
    return 0;
}
