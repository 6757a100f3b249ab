// Rough and polished stone.
#include "cells.h"
#include "noise.h"
#include "tile.h"

#include <array>
#include <cmath>

namespace varnello::tiles {

namespace {

// Rough hewn limestone.
Surface HewnStone(QSize size) {
    const Field lumps(size, 18, 14, 5, 401);
    const Field tint(size, 20, 20, 3, 402);
    return [=](double x, double y) {
        const Colour stone = Mix(Rgb(0x746f66), Rgb(0x7d7360), 0.5 + 0.13 * tint(x, y));
        return Shade(stone, -0.13 * std::tanh(1.1 * Relief(lumps, x, y)));
    };
}

// Polished granite: crystals of feldspar, quartz and mica.
Surface Granite(QSize size) {
    const Cells crystals(size, 52, 52, 0.95, 411);
    const Field warp(size, 4, 4, 2, 412);
    const Field veil(size, 14, 14, 3, 413);
    constexpr std::array minerals{Rgb(0x7c564e), Rgb(0x8a655b), Rgb(0x6d4c46), Rgb(0x76645f),
                                  Rgb(0x564745), Rgb(0x815c50), Rgb(0x98786d)};
    return [=](double x, double y) {
        const Cells::Place place = crystals.At(x + 0.6 * warp(x, y), y + 0.6 * warp(y, x));
        const auto kind =
            static_cast<std::size_t>(crystals.Mark(place.cell) * double(minerals.size()));
        const Colour crystal = Shade(minerals[kind], 0.10 * (crystals.Mark(place.cell, 1) - 0.5));
        return Shade(Mix(Rgb(0x755650), crystal, 0.62), 0.02 * veil(x, y));
    };
}

// Cleft slate: thin layers that break off along wandering lines.
Surface Slate(QSize size) {
    const Field height(size, 42, 24, 4, 421);
    const Field tint(size, 30, 18, 3, 422);
    const Field grain(size, 3, 1.5, 2, 423);
    return [=](double x, double y) {
        const auto layers = [&](double u, double v) {
            const double level = 2.6 * height(u, v);
            const double whole = std::floor(level);
            return whole + Step(0.55, 1, level - whole) + 0.25 * level;
        };
        const Colour stone = Mix(Rgb(0x3d4a50), Rgb(0x46504f), 0.5 + 0.15 * tint(x, y));
        return Shade(stone, -0.11 * std::tanh(1.2 * Relief(layers, x, y)) + 0.025 * grain(x, y));
    };
}

// A bed of small worn pebbles in grit.
Surface Pebbles(QSize size) {
    const Cells bed(size, 10, 10, 0.8, 437);
    const Field warp(size, 8, 8, 2, 432);
    const Field grain(size, 2, 2, 2, 433);
    constexpr std::array stones{Rgb(0x636059), Rgb(0x686359), Rgb(0x60615e), Rgb(0x665e56)};
    return [=](double x, double y) {
        const double bend = 0.4 * warp(x, y);
        const auto dome = [&](const Cells::Place& place) {
            return Step(0.2, 3.2, place.border) * (1 - Step(3.2, 7.2, place.nearest));
        };
        const auto height = [&](double u, double v) { return dome(bed.At(u + bend, v - bend)); };
        const Cells::Place place = bed.At(x + bend, y - bend);
        const auto kind = static_cast<std::size_t>(bed.Mark(place.cell) * double(stones.size()));
        const Colour grit = Shade(Rgb(0x55524b), 0.06 * grain(x, y));
        const Colour stone = Shade(stones[kind], 0.02 * grain(x, y));
        return Shade(Mix(grit, stone, Step(0, 0.5, dome(place))), -0.13 * Relief(height, x, y));
    };
}

}  // namespace

std::vector<Tile> RockTiles() {
    return {{31, {128, 128}, HewnStone},
            {32, {125, 125}, Granite},
            {33, {125, 125}, Slate},
            {34, {96, 96}, Pebbles}};
}

}  // namespace varnello::tiles
