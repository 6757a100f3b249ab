#include "tile.h"

namespace varnello::tiles {

const std::vector<TileGroup>& TileGroups() {
    static const std::vector<TileGroup> groups{
        {"Bricks", BrickTiles()}, {"Marbles", MarbleTiles()}, {"Paper", PaperTiles()},
        {"Rocks", RockTiles()},   {"Stars", StarTiles()},     {"Surfaces", SurfaceTiles()},
        {"Water", WaterTiles()},  {"Wood", WoodTiles()},
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
