// Noise that repeats with the tile, so that opposite edges continue into each other.
#pragma once

#include <QSize>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace varnello::tiles {

// An evenly spread number from 0 to 1 that depends on nothing but its arguments.
double Chance(std::uint64_t seed, std::uint64_t index);

inline int Floor(double value) {
    const int whole = static_cast<int>(value);
    return value < whole ? whole - 1 : whole;
}

// The rest of a division that is never negative.
inline double Wrap(double value, double period) { return value - period * Floor(value / period); }
inline int WrapIndex(int value, int period) {
    if (value >= 0 && value < period) return value;
    const int rest = value % period;
    return rest < 0 ? rest + period : rest;
}

// Where an entry of a table lies whose rows are stored one after the other.
inline std::size_t TableIndex(int column, int row, int columns) {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
           static_cast<std::size_t>(column);
}

// The signed way to a point from another one, the short way round the tile.
inline double ShortWay(double distance, double period) {
    return distance - period * Floor(distance / period + 0.5);
}

// 0 below the range, 1 above it, smooth in between.
inline double Step(double from, double to, double value) {
    const double share = std::clamp((value - from) / (to - from), 0.0, 1.0);
    return share * share * (3 - 2 * share);
}

// A sum of gradient noises, each twice as fine and a little more than half as strong as the one
// before. Its mean is 0 and its standard deviation 1 over the tile.
class Field {
public:
    // The largest features are about so many pixels wide and high.
    Field(QSize period, double width, double height, int octaves, std::uint64_t seed);

    double operator()(double x, double y) const;

private:
    struct Gradient {
        double x, y;
    };
    struct Octave {
        int columns, rows;
        double right, down;  // keeps the lattices of the octaves apart
        double strength;
        std::vector<Gradient> gradients;
    };
    static double Value(const Octave& octave, double x, double y);
    double Sum(double x, double y) const;

    QSize period_;
    std::vector<Octave> octaves_;
    double mean_ = 0;
    double scale_ = 1;
};

// How much a height seems lit from the top left.
template <typename Height>
double Relief(const Height& height, double x, double y) {
    constexpr double reach = 0.5;
    return height(x + reach, y + reach) - height(x - reach, y - reach);
}

}  // namespace varnello::tiles
