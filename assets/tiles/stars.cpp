// Night skies.
#include "cells.h"
#include "noise.h"
#include "tile.h"

#include <algorithm>

namespace varnello::tiles {

namespace {

struct Look {
    Colour sky;
    Colour haze;
    Colour star;
    int columns, rows;  // of the grid in which stars are scattered
    double brightest;
};

// No star is so much brighter than the others that the eye would find it again in the next tile.
Surface Sky(QSize size, const Look& look, unsigned seed) {
    const Cells stars(size, look.columns, look.rows, 0.6, seed);
    const Cells dust(size, look.columns * 2, look.rows * 2, 0.9, seed + 1);
    const Field haze(size, 32, 32, 5, seed + 2);
    const Field grain(size, 1.4, 1.4, 1, seed + 3);
    return [=](double x, double y) {
        const Colour ground =
            Shade(Mix(look.sky, look.haze, 0.5 + 0.12 * haze(x, y)), 0.02 * grain(x, y));
        const Cells::Place star = stars.At(x, y);
        const double radius = 0.5 + 0.3 * stars.Mark(star.cell);
        const double glow = (1 - Step(radius - 0.4, radius + 0.5, star.nearest)) * look.brightest *
                            (0.65 + 0.35 * stars.Mark(star.cell, 1));
        const Cells::Place speck = dust.At(x, y);
        const double faint = (1 - Step(0.2, 0.9, speck.nearest)) * 0.22 * dust.Mark(speck.cell);
        // Some stars are warmer than others.
        const Colour light = Mix(look.star, Rgb(0xf2dcb4), stars.Mark(star.cell, 2));
        return Mix(ground, light, std::max(glow, faint));
    };
}

Surface BlueNight(QSize size) {
    return Sky(size, {Rgb(0x14213f), Rgb(0x1d2d52), Rgb(0xcfdcf5), 6, 6, 0.55}, 507);
}

Surface BlackNight(QSize size) {
    return Sky(size, {Rgb(0x17181d), Rgb(0x202127), Rgb(0xdde0e6), 4, 4, 0.65}, 511);
}

Surface VioletNight(QSize size) {
    return Sky(size, {Rgb(0x241d3a), Rgb(0x3d2c52), Rgb(0xdccdf0), 5, 5, 0.70}, 521);
}

}  // namespace

std::vector<Tile> StarTiles() {
    return {
        {41, {125, 129}, BlueNight}, {42, {100, 100}, BlackNight}, {43, {125, 125}, VioletNight}};
}

}  // namespace varnello::tiles
