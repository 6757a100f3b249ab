// Water seen from above.
#include "cells.h"
#include "noise.h"
#include "tile.h"

#include <array>
#include <cmath>
#include <numbers>

namespace varnello::tiles {

namespace {

constexpr double turn = 2 * std::numbers::pi;

// A wide sea under a light wind: small crests that lie across the wind.
Surface Sea(QSize size) {
    const Field swell(size, 34, 11, 2, 701);
    const Field chop(size, 17, 5, 2, 702);
    const Field sway(size, 25, 25, 2, 703);
    return [=](double x, double y) {
        const double v = y + 1.5 * sway(x, y);
        const double crest = std::exp(-2.2 * std::abs(swell(x, v)));
        const double ripple = std::exp(-2.2 * std::abs(chop(x, v)));
        return Mix(Rgb(0x1c4061), Rgb(0x44789a), 0.08 + 0.40 * crest + 0.28 * ripple);
    };
}

// The net of light on the floor of a pool.
Surface Pool(QSize size) {
    const Cells coarse(size, 10, 7, 0.85, 711);
    const Cells fine(size, 15, 10, 0.85, 712);
    const Field warpX(size, 16, 16, 2, 713);
    const Field warpY(size, 16, 16, 2, 714);
    return [=](double x, double y) {
        const double u = x + 1.8 * warpX(x, y);
        const double v = y + 1.8 * warpY(x, y);
        const double net = std::exp(-0.75 * coarse.At(u, v).border);
        const double weak = std::exp(-0.8 * fine.At(u, v).border);
        return Mix(Rgb(0x2a7382), Rgb(0x8cc4c4), 0.40 * net + 0.16 * weak);
    };
}

// Rings of drops on a still pond, each fading as it widens.
Surface Rain(QSize size) {
    constexpr int columns = 4;
    constexpr int rows = 5;
    const Field mirror(size, 30, 16, 3, 721);
    struct Drop {
        double x, y, radius;
    };
    std::vector<Drop> drops;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const auto chance = [&](unsigned kind) {
                return Chance(722 + kind, static_cast<unsigned>(row * columns + column));
            };
            drops.push_back({(column + 0.2 + 0.6 * chance(0)) * size.width() / columns,
                             (row + 0.2 + 0.6 * chance(1)) * size.height() / rows,
                             3 + 8 * chance(2)});
        }
    }
    return [=](double x, double y) {
        double light = 0;
        for (const Drop& drop : drops) {
            const double right = ShortWay(x - drop.x, size.width());
            const double down = ShortWay(y - drop.y, size.height());
            const double distance = std::sqrt(right * right + down * down);
            const double past = (distance - drop.radius) / 4;
            if (std::abs(past) > 2.5) continue;
            light += std::cos(turn * (distance - drop.radius) / 3.8) * std::exp(-past * past) /
                     (1 + 0.08 * drop.radius);
        }
        return Shade(Rgb(0x3d535c), 0.12 * light + 0.02 * mirror(x, y));
    };
}

// A slow river: long threads of current.
Surface River(QSize size) {
    const Field bend(size, 25, 70, 1, 731);
    const Field current(size, 5, 46, 3, 732);
    const Field sheen(size, 3, 14, 2, 733);
    return [=](double x, double y) {
        const double u = x + 2.5 * bend(x, y);
        return Shade(Rgb(0x35594d), 0.055 * current(u, y) + 0.030 * sheen(u, y));
    };
}

// Waves that cross in a fresh breeze. Each fits into the tile a whole number of times; crests are
// narrower than troughs, and bent by the waves that cross them.
Surface Breeze(QSize size) {
    struct Wave {
        int across, down;
        double height;
    };
    constexpr std::array waves{Wave{4, 7, 0.5}, Wave{-5, 6, 0.5}, Wave{9, 5, 0.3},
                               Wave{-3, 12, 0.3}};
    const Field bend(size, 26, 18, 3, 741);
    const Field ripples(size, 7, 4, 2, 742);
    return [=](double x, double y) {
        const double sway = 0.16 * bend(x, y);
        double height = 0;
        for (std::size_t number = 0; number < waves.size(); ++number) {
            const Wave& wave = waves[number];
            const double phase = wave.across * x / size.width() + wave.down * y / size.height() +
                                 Chance(743, number) + sway;
            const double crest = 1 - std::abs(std::sin(turn * phase / 2));
            height += wave.height * (crest * crest * (3 - 2 * crest) - 0.4);
        }
        return Mix(Rgb(0x155059), Rgb(0x3f8487),
                   0.4 + 0.65 * height + 0.06 * ripples(x + 3 * sway, y));
    };
}

}  // namespace

std::vector<Tile> WaterTiles() {
    constexpr QSize tall(100, 140);
    return {{61, tall, Sea},
            {62, {180, 120}, Pool},
            {63, tall, Rain},
            {64, tall, River},
            {65, {125, 125}, Breeze}};
}

}  // namespace varnello::tiles
