#include <QtGlobal>

#include "tile.h"

namespace varnello::tiles {

const std::vector<TileGroup>& TileGroups() {
    static const std::vector<TileGroup> groups{
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Bricks"), BrickTiles()},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Marbles"), MarbleTiles()},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Paper"), PaperTiles()},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Rocks"), RockTiles()},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Stars"), StarTiles()},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Surfaces"), SurfaceTiles()},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Water"), WaterTiles()},
        {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Wood"), WoodTiles()},
    };
    return groups;
}

const Tile* FindTile(int id) {
    for (const TileGroup& group : TileGroups()) {
        for (const Tile& tile : group.tiles) {
            if (tile.id == id) return &tile;
        }
    }
    return nullptr;
}

}  // namespace varnello::tiles
