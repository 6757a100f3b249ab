// Laid and handmade papers.
#include "noise.h"
#include "tile.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varnello::tiles {

namespace {

// A thread in the pulp: a short bow.
struct Fibre {
    double x, y;
    double across, down;  // its direction
    double half;          // half its length
    double bend;
    double reach;  // it lies within so many pixels of its middle, each way
};

// One fibre in each square of a grid, so that they do not heap up.
std::vector<Fibre> Fibres(QSize size, int squares, double longest, unsigned seed) {
    std::vector<Fibre> fibres;
    for (int row = 0; row < squares; ++row) {
        for (int column = 0; column < squares; ++column) {
            const auto chance = [&](unsigned kind) {
                return Chance(seed + kind, static_cast<unsigned>(row * squares + column));
            };
            const double angle = std::numbers::pi * chance(2);
            const double half = longest / 2 * (0.35 + 0.65 * chance(3));
            fibres.push_back({(column + chance(0)) * size.width() / squares,
                              (row + chance(1)) * size.height() / squares, std::cos(angle),
                              std::sin(angle), half, (chance(4) - 0.5) * 1.1 / half,
                              1.3 * half + 2});
        }
    }
    return fibres;
}

// How much of a thread of this width lies at a place, from 0 to 1.
double Cover(const std::vector<Fibre>& fibres, QSize size, double width, double x, double y) {
    double cover = 0;
    for (const Fibre& fibre : fibres) {
        const double down = ShortWay(y - fibre.y, size.height());
        if (std::abs(down) > fibre.reach) continue;
        const double right = ShortWay(x - fibre.x, size.width());
        if (std::abs(right) > fibre.reach) continue;
        const double along = right * fibre.across + down * fibre.down;
        if (std::abs(along) > fibre.half) continue;
        const double aside = down * fibre.across - right * fibre.down - fibre.bend * along * along;
        const double end = Step(0, 3, fibre.half - std::abs(along));
        cover = std::max(cover, end * (1 - Step(width / 2, width / 2 + 0.7, std::abs(aside))));
    }
    return cover;
}

// Fine lines from the wires of the mould, and wider chain lines across them.
Surface LaidPaper(QSize size) {
    const Field pulp(size, 6, 6, 3, 301);
    const Field grain(size, 1.3, 1.3, 1, 302);
    return [=](double x, double y) {
        const double wire = std::cos(2 * std::numbers::pi * (y + 0.15 * pulp(x, y)) / 4);
        const double chain = std::abs(ShortWay(x - 10 + 0.2 * pulp(x, y), 20));
        return Shade(Rgb(0x66788c), 0.030 * wire - 0.05 * (1 - Step(0.3, 1.6, chain)) +
                                        0.020 * pulp(x, y) + 0.022 * grain(x, y));
    };
}

// Long pale fibres in a thin sheet.
Surface FibrePaper(QSize size) {
    const Field pulp(size, 10, 10, 4, 311);
    const Field wander(size, 14, 14, 2, 391);
    const Field grain(size, 1.3, 1.3, 1, 312);
    const std::vector<Fibre> thick = Fibres(size, 6, 44, 381);
    const std::vector<Fibre> thin = Fibres(size, 10, 30, 320);
    return [=](double x, double y) {
        const double u = x + 0.7 * wander(x, y);
        const double v = y + 0.7 * wander(y, x);
        const Colour sheet = Shade(Rgb(0xb7a98c), 0.016 * pulp(x, y) + 0.016 * grain(x, y));
        const Colour under = Mix(sheet, Rgb(0x9a8b6e), 0.35 * Cover(thin, size, 0.3, u, v));
        return Mix(under, Rgb(0xd8cdb4), 0.42 * Cover(thick, size, 0.6, u, v));
    };
}

// Brown wrapping paper, with faint ribs and dark and light specks of straw.
Surface WrappingPaper(QSize size) {
    const Field pulp(size, 7, 7, 3, 331);
    const Field ribs(size, 40, 2.2, 2, 332);
    const Field grain(size, 1.2, 1.2, 1, 333);
    const std::vector<Fibre> straw = Fibres(size, 8, 7, 334);
    const std::vector<Fibre> chaff = Fibres(size, 7, 6, 341);
    return [=](double x, double y) {
        const Colour sheet =
            Shade(Rgb(0x8f7250), 0.018 * pulp(x, y) + 0.020 * ribs(x, y) + 0.020 * grain(x, y));
        const Colour under = Mix(sheet, Rgb(0x6c5336), 0.50 * Cover(chaff, size, 0.4, x, y));
        return Mix(under, Rgb(0xb0946e), 0.45 * Cover(straw, size, 0.4, x, y));
    };
}

// Heavy watercolour paper with its rounded tooth.
Surface RoughPaper(QSize size) {
    const Field tooth(size, 5, 5, 2, 351);
    const Field grain(size, 1.3, 1.3, 1, 352);
    return [=](double x, double y) {
        const auto height = [&](double u, double v) { return std::tanh(0.8 * tooth(u, v)); };
        return Shade(Rgb(0x6f8570), -0.09 * Relief(height, x, y) + 0.014 * grain(x, y));
    };
}

// Dark handmade paper with petals and gold threads beaten into it.
Surface PetalPaper(QSize size) {
    const Field pulp(size, 8, 8, 4, 361);
    const Field grain(size, 1.3, 1.3, 1, 362);
    const std::vector<Fibre> petals = Fibres(size, 6, 7, 363);
    const std::vector<Fibre> threads = Fibres(size, 6, 16, 370);
    return [=](double x, double y) {
        const Colour sheet = Shade(Rgb(0x54343f), 0.035 * pulp(x, y) + 0.025 * grain(x, y));
        const Colour under = Mix(sheet, Rgb(0x7d4a58), 0.55 * Cover(petals, size, 2.0, x, y));
        return Mix(under, Rgb(0xa98a5c), 0.42 * Cover(threads, size, 0.2, x, y));
    };
}

}  // namespace

std::vector<Tile> PaperTiles() {
    constexpr QSize size(80, 80);
    return {{21, size, LaidPaper},
            {22, {125, 125}, FibrePaper},
            {23, size, WrappingPaper},
            {24, size, RoughPaper},
            {25, size, PetalPaper}};
}

}  // namespace varnello::tiles
