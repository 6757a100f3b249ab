// Polished marble with veins.
#include "noise.h"
#include "tile.h"

#include <algorithm>
#include <cmath>

namespace varnello::tiles {

namespace {

// Veins that run through the stone side by side. They cross the tile a whole number of times.
struct Veins {
    int across, down;
    double width;
    double strength;
};

struct Look {
    Colour stone;
    Colour cloud;
    Colour vein;
    double wander;  // pixels that veins stray from their course
    std::vector<Veins> veins;
};

Surface Marble(QSize size, const Look& look, unsigned seed) {
    const Field clouds(size, 32, 26, 5, seed);
    std::vector<Field> courses;
    std::vector<Field> swells;
    for (unsigned number = 1; number <= look.veins.size(); ++number) {
        courses.emplace_back(size, 42, 42, 3, seed + number);
        swells.emplace_back(size, 24, 24, 2, seed + 20 + number);
    }
    return [=](double x, double y) {
        const Colour stone = Mix(look.stone, look.cloud, 0.5 + 0.25 * clouds(x, y));
        double vein = 0;
        for (std::size_t number = 0; number < look.veins.size(); ++number) {
            const Veins& veins = look.veins[number];
            const double right = static_cast<double>(veins.across) / size.width();
            const double down = static_cast<double>(veins.down) / size.height();
            const double apart = 1 / std::hypot(right, down);
            const double aside = ShortWay((x * right + y * down + 0.37 * double(number)) * apart +
                                              look.wander * courses[number](x, y),
                                          apart);
            // Each vein swells and fades on its way, with a soft halo in the stone around it.
            const double swell = Step(-1.7, 1.5, swells[number](x, y));
            const double core = std::exp(-std::abs(aside) / (veins.width * (0.5 + swell)));
            const double halo = std::exp(-std::abs(aside) / (7 * veins.width));
            vein = std::max(vein, veins.strength * swell * (0.8 * core + 0.2 * halo));
        }
        return Mix(stone, look.vein, vein);
    };
}

Surface GreenMarble(QSize size) {
    return Marble(size,
                  {Rgb(0x1d4034),
                   Rgb(0x2b5546),
                   Rgb(0x86ab98),
                   3.0,
                   {{1, 2, 0.8, 0.36}, {2, -1, 0.6, 0.32}, {3, 1, 0.5, 0.24}, {1, -3, 0.5, 0.24}}},
                  201);
}

Surface BlackMarble(QSize size) {
    return Marble(size,
                  {Rgb(0x292a2e),
                   Rgb(0x333439),
                   Rgb(0xb5ad9f),
                   1.6,
                   {{2, 3, 0.5, 0.25},
                    {3, 4, 0.4, 0.22},
                    {1, 4, 0.4, 0.20},
                    {4, 3, 0.4, 0.20},
                    {-3, 1, 0.4, 0.12}}},
                  235);
}

Surface RoseMarble(QSize size) {
    return Marble(size,
                  {Rgb(0xa07c71),
                   Rgb(0xb3948a),
                   Rgb(0x6d4844),
                   3.0,
                   {{2, 1, 0.9, 0.38}, {-1, 2, 0.8, 0.36}, {3, 2, 0.5, 0.30}, {1, -3, 0.5, 0.30}}},
                  273);
}

}  // namespace

std::vector<Tile> MarbleTiles() {
    return {
        {11, {96, 96}, GreenMarble}, {12, {128, 128}, BlackMarble}, {13, {128, 128}, RoseMarble}};
}

}  // namespace varnello::tiles
