// Scattered points that repeat with the tile, and the cells around them.
#pragma once

#include <QSize>

#include <cstdint>
#include <vector>

namespace varnello::tiles {

class Cells {
public:
    struct Place {
        double nearest;  // pixels to the nearest point
        double border;   // pixels to the border of the cell, about
        int cell;        // which point is nearest
    };

    // One point for each field of a grid, moved from its middle by up to half the looseness.
    Cells(QSize period, int columns, int rows, double looseness, std::uint64_t seed);

    Place At(double x, double y) const;

    // A number from 0 to 1 that belongs to the cell.
    double Mark(int cell, std::uint64_t kind = 0) const;

private:
    struct Point {
        double x, y;
    };
    double width_, height_;
    int columns_, rows_;
    std::uint64_t seed_;
    std::vector<Point> points_;
};

}  // namespace varnello::tiles
