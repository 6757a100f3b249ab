// Linen, leather, cork, felt and brushed metal.
#include "cells.h"
#include "noise.h"
#include "tile.h"

#include <cmath>
#include <numbers>

namespace varnello::tiles {

namespace {

// Plain weave of uneven yarn.
Surface Linen(QSize size) {
    constexpr double pitch = 2.5;
    const Field warpYarn(size, pitch, 40, 2, 601);
    const Field weftYarn(size, 40, pitch, 2, 602);
    const Field grain(size, 1.2, 1.2, 1, 603);
    return [=](double x, double y) {
        const double column = x / pitch;
        const double row = y / pitch;
        const bool warpAbove = (Floor(column) + Floor(row)) % 2 == 0;
        const double across = warpAbove ? column : row;
        const double round = std::sin(std::numbers::pi * (across - std::floor(across)));
        const double yarn = warpAbove ? warpYarn(x, y) : weftYarn(x, y) + 0.6;
        return Shade(Rgb(0x7f7a6c), 0.10 * (round - 0.6) + 0.040 * yarn + 0.015 * grain(x, y));
    };
}

// Full-grain leather: small pillows between fine creases.
Surface Leather(QSize size) {
    const Cells grain(size, 18, 18, 0.9, 611);
    const Field warp(size, 6, 6, 2, 612);
    const Field tan(size, 22, 22, 4, 613);
    return [=](double x, double y) {
        const auto pillow = [&](double u, double v) {
            const double bend = 0.9 * warp(u, v);
            return Step(-0.4, 2.4, grain.At(u + bend, v - bend).border);
        };
        const Colour hide = Mix(Rgb(0x54301f), Rgb(0x603823), 0.5 + 0.25 * tan(x, y));
        return Shade(hide, -0.16 * Relief(pillow, x, y) + 0.14 * (pillow(x, y) - 0.8));
    };
}

// Pressed granules of bark, a few of them dark.
Surface Cork(QSize size) {
    const Cells granules(size, 22, 22, 0.95, 621);
    const Field warp(size, 5, 5, 3, 622);
    const Field pores(size, 2.2, 2.2, 2, 623);
    return [=](double x, double y) {
        const double bend = 0.8 * warp(x, y);
        const Cells::Place place = granules.At(x + bend, y + 0.8 * warp(y, x));
        const double mark = granules.Mark(place.cell);
        const Colour granule = Shade(Rgb(0x95714c), 0.16 * (granules.Mark(place.cell, 1) - 0.5));
        const Colour bark = Mix(granule, Rgb(0x65462c), mark > 0.90 ? 0.45 : 0.0);
        return Shade(bark, 0.035 * pores(x, y) - 0.10 * (1 - Step(0, 0.8, place.border)));
    };
}

// Wool pressed until its threads lie in all directions.
Surface Felt(QSize size) {
    const Field swirl(size, 14, 14, 2, 631);
    const Field nap(size, 2.2, 2.2, 3, 632);
    const Field fluff(size, 9, 9, 3, 633);
    const Field grain(size, 1.2, 1.2, 1, 634);
    return [=](double x, double y) {
        const double threads = nap(x + 3 * swirl(x, y), y + 3 * swirl(y, x));
        return Shade(Rgb(0x1f5b3c), 0.045 * threads + 0.022 * fluff(x, y) + 0.035 * grain(x, y));
    };
}

// Steel brushed from side to side.
Surface BrushedMetal(QSize size) {
    const Field coarse(size, 100, 2.5, 2, 641);
    const Field fine(size, 33, 1, 2, 642);
    return [=](double x, double y) {
        return Shade(Rgb(0x6f757b), 0.016 * coarse(x, y) + 0.034 * fine(x, y));
    };
}

}  // namespace

std::vector<Tile> SurfaceTiles() {
    constexpr QSize size(100, 100);
    return {{51, size, Linen},
            {52, size, Leather},
            {53, size, Cork},
            {54, size, Felt},
            {55, size, BrushedMetal}};
}

}  // namespace varnello::tiles
