#include "cells.h"

#include "noise.h"

#include <cmath>
#include <utility>

namespace varnello::tiles {

Cells::Cells(QSize period, int columns, int rows, double looseness, std::uint64_t seed)
    : width_(static_cast<double>(period.width()) / columns),
      height_(static_cast<double>(period.height()) / rows),
      columns_(columns),
      rows_(rows),
      seed_(seed) {
    for (unsigned index = 0; index < static_cast<unsigned>(columns * rows); ++index) {
        const auto place = [&](unsigned kind) {
            return 0.5 + looseness * (Chance(seed * 8 + kind, index) - 0.5);
        };
        points_.push_back({place(0), place(1)});
    }
}

Cells::Place Cells::At(double x, double y) const {
    const int left = Floor(x / width_);
    const int top = Floor(y / height_);
    double nearest = 1e9;
    double second = 1e9;
    double apart = 1;
    int cell = 0;
    Point best{};
    for (int row = top - 1; row <= top + 1; ++row) {
        for (int column = left - 1; column <= left + 1; ++column) {
            const int index = WrapIndex(row, rows_) * columns_ + WrapIndex(column, columns_);
            const Point& point = points_[static_cast<std::size_t>(index)];
            const Point way{(column + point.x) * width_ - x, (row + point.y) * height_ - y};
            const double distance = way.x * way.x + way.y * way.y;
            if (distance < nearest) {
                second = std::exchange(nearest, distance);
                apart = std::hypot(way.x - best.x, way.y - best.y);
                best = way;
                cell = index;
            } else if (distance < second) {
                second = distance;
                apart = std::hypot(way.x - best.x, way.y - best.y);
            }
        }
    }
    return {std::sqrt(nearest), (second - nearest) / (2 * apart), cell};
}

double Cells::Mark(int cell, std::uint64_t kind) const {
    return Chance(seed_ * 8 + 2 + kind, static_cast<unsigned>(cell));
}

}  // namespace varnello::tiles
