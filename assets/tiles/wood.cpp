// Planks and parquet.
#include "noise.h"
#include "tile.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varnello::tiles {

namespace {

// A piece of wood and a place on it: along the grain and across it.
struct Board {
    double along, across;
    double edge;  // pixels to the nearest edge
    unsigned number;
};

struct Look {
    Colour early;
    Colour late;
    double rings;   // growth rings for each pixel across
    double spread;  // how far boards differ from each other
    double gap;     // how dark the gaps are
};

// The grain of boards that are cut from different places of the same trunk.
class Grain {
public:
    Grain(QSize size, const Look& look, unsigned seed)
        : look_(look),
          seed_(seed),
          figure_(size, 70, 9, 2, seed),
          pores_(size, 24, 1.3, 2, seed + 1),
          streaks_(size, 80, 4, 2, seed + 2) {}

    Colour At(const Board& board) const {
        const double cut = 200 * Chance(seed_ + 3, board.number);
        const double along = board.along + cut;
        const double across = board.across + 3 * cut;
        const double ring = look_.rings * board.across + 0.75 * figure_(along, across);
        // Late wood is a narrow dark line at the end of each year.
        const double year = ring - std::floor(ring);
        const double late = Step(0.2, 0.85, year) * (1 - Step(0.85, 1, year));
        const double tone = look_.spread * (2 * Chance(seed_ + 4, board.number) - 1);
        const Colour wood =
            Mix(look_.early, look_.late, 0.15 + 0.55 * late + 0.10 * streaks_(along, across));
        const double gap = look_.gap * (1 - Step(0.2, 1.1, board.edge));
        return Shade(wood, tone + 0.028 * pores_(along, across) - gap);
    }

private:
    Look look_;
    unsigned seed_;
    Field figure_, pores_, streaks_;
};

// Wide floor boards, with one joint in each row.
Surface OakFloor(QSize size) {
    const Grain grain(size, {Rgb(0x8a6742), Rgb(0x6c4d2f), 0.16, 0.045, 0.38}, 801);
    return [=](double x, double y) {
        constexpr std::array tops{0, 27, 54, 82, 109};
        constexpr std::array joints{30, 140, 85, 185};
        const auto next = std::upper_bound(tops.begin(), tops.end(), y);
        const auto row = static_cast<std::size_t>(next - tops.begin() - 1);
        const double down = y - tops[row];
        const double along = Wrap(x - joints[row], size.width());
        const double edge = std::min({down, tops[row + 1] - y, along, size.width() - along});
        return grain.At({along, down, edge, static_cast<unsigned>(row)});
    };
}

// Narrow upright boards of walnut.
Surface WalnutPanel(QSize size) {
    const Grain grain(size, {Rgb(0x4f382a), Rgb(0x38271d), 0.20, 0.05, 0.40}, 811);
    return [=](double x, double y) {
        constexpr int width = 24;
        const int column = static_cast<int>(x / width);
        const double right = x - column * width;
        return grain.At({y, right, std::min(right, width - right), static_cast<unsigned>(column)});
    };
}

// Squares of four staves, lying and standing in turn.
Surface MahoganyParquet(QSize size) {
    const Grain grain(size, {Rgb(0x74412f), Rgb(0x5a2f22), 0.22, 0.06, 0.30}, 821);
    return [=](double x, double y) {
        constexpr int square = 48;
        constexpr int stave = 12;
        const int column = static_cast<int>(x / square);
        const int row = static_cast<int>(y / square);
        double along = x - column * square;
        double across = y - row * square;
        if ((column + row) % 2 == 1) std::swap(along, across);
        const int number = static_cast<int>(across / stave);
        const double within = across - number * stave;
        const double edge = std::min({along, square - along, within, stave - within});
        return grain.At(
            {along, within, edge, static_cast<unsigned>((row * 2 + column) * 4 + number)});
    };
}

}  // namespace

std::vector<Tile> WoodTiles() {
    return {
        {71, {200, 109}, OakFloor}, {72, {96, 96}, WalnutPanel}, {73, {96, 96}, MahoganyParquet}};
}

}  // namespace varnello::tiles
