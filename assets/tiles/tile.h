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
    QSize size;
    Surface (*make)(QSize size);
};

struct Pictures {
    QImage plain;
    QImage dense;  // twice the size, for dense screens
};

// What is left of large light and dark patches, which would show as a grid on the table, is taken
// out.
Pictures Paint(const Tile& tile);

std::vector<Tile> BrickTiles();
std::vector<Tile> MarbleTiles();
std::vector<Tile> PaperTiles();
std::vector<Tile> RockTiles();
std::vector<Tile> StarTiles();
std::vector<Tile> SurfaceTiles();
std::vector<Tile> WaterTiles();
std::vector<Tile> WoodTiles();

}  // namespace varnello::tiles
