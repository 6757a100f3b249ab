// A picture that fills the table by repetition.
#pragma once

#include "colour.h"

#include <QImage>
#include <QSize>

#include <functional>
#include <vector>

namespace varnello::tiles {

// The colour at a place given in pixels of the plain size. It repeats with the size of the tile.
using Surface = std::function<Colour(double x, double y)>;

struct Tile {
    int id;
    QSize size;  // in pixels at scale 1
    Surface (*make)(QSize size);
};

struct TileGroup {
    const char* name;
    std::vector<Tile> tiles;
};

// All tiles, in groups as a person chooses them.
const std::vector<TileGroup>& TileGroups();

// Null for a number that no tile has.
const Tile* FindTile(int id);

// The tile at a scale: 1 gives its own size, 2 twice as many pixels each way, with finer detail.
// What is left of large light and dark patches, which would show as a grid on the table, is taken
// out.
QImage Paint(const Tile& tile, double scale);

std::vector<Tile> BrickTiles();
std::vector<Tile> MarbleTiles();
std::vector<Tile> PaperTiles();
std::vector<Tile> RockTiles();
std::vector<Tile> StarTiles();
std::vector<Tile> SurfaceTiles();
std::vector<Tile> WaterTiles();
std::vector<Tile> WoodTiles();

}  // namespace varnello::tiles
