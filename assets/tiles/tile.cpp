#include "tile.h"

#include "noise.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace varnello::tiles {

namespace {

// How much of the large patches is taken out.
constexpr double evenness = 0.9;

// Samples for each pixel of the plain size, at least, in a row and in a column.
constexpr double density = 2;

// Replaces each value of a closed line of values by the mean of its surroundings.
void Smooth(Colour* first, int count, int step, int reach) {
    std::vector<Colour> line(static_cast<std::size_t>(count));
    for (int index = 0; index < count; ++index)
        line[static_cast<std::size_t>(index)] = first[TableIndex(0, index, step)];
    const auto at = [&](int index) {
        return line[static_cast<std::size_t>(WrapIndex(index, count))];
    };
    Colour sum;
    for (int index = -reach; index <= reach; ++index) sum = sum + at(index);
    for (int index = 0; index < count; ++index) {
        first[TableIndex(0, index, step)] = sum * (1.0 / (2 * reach + 1));
        sum = sum + at(index + reach + 1) + at(index - reach) * -1;
    }
}

// The colours that remain when everything small is smoothed away.
std::vector<Colour> LargeColours(std::vector<Colour> pixels, QSize size) {
    constexpr int rounds = 3;
    for (int round = 0; round < rounds; ++round) {
        for (int row = 0; row < size.height(); ++row)
            Smooth(&pixels[TableIndex(0, row, size.width())], size.width(), 1, size.width() / 12);
        for (int column = 0; column < size.width(); ++column)
            Smooth(&pixels[static_cast<std::size_t>(column)], size.height(), size.width(),
                   size.height() / 12);
    }
    return pixels;
}

int Level(double value) { return std::clamp(static_cast<int>(std::lround(value)), 0, 255); }

// A picture in which each pixel is the mean of a square of so many given ones.
QImage Shrink(const std::vector<Colour>& pixels, QSize size, int square) {
    QImage image(size / square, QImage::Format_RGB32);
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            Colour sum;
            for (int part = 0; part < square * square; ++part) {
                const int x = column * square + part % square;
                const int y = row * square + part / square;
                sum = sum + pixels[TableIndex(x, y, size.width())];
            }
            const Colour mean = sum * (1.0 / (square * square));
            image.setPixel(column, row, qRgb(Level(mean.red), Level(mean.green), Level(mean.blue)));
        }
    }
    return image;
}

}  // namespace

QImage Paint(const Tile& tile, double scale) {
    const Surface surface = tile.make(tile.size);
    const QSize wanted = (QSizeF(tile.size) * scale).toSize();
    const int square = std::clamp(static_cast<int>(std::ceil(density / scale)), 1, 2);
    const QSize size = wanted * square;
    const double across = static_cast<double>(tile.size.width()) / size.width();
    const double down = static_cast<double>(tile.size.height()) / size.height();
    std::vector<Colour> pixels(TableIndex(0, size.height(), size.width()));
    for (int row = 0; row < size.height(); ++row) {
        for (int column = 0; column < size.width(); ++column)
            pixels[TableIndex(column, row, size.width())] =
                surface((column + 0.5) * across, (row + 0.5) * down);
    }
    const std::vector<Colour> large = LargeColours(pixels, size);
    const Colour mean = std::accumulate(large.begin(), large.end(), Colour()) *
                        (1 / static_cast<double>(large.size()));
    for (std::size_t index = 0; index < pixels.size(); ++index)
        pixels[index] = pixels[index] + (mean + large[index] * -1) * evenness;
    return Shrink(pixels, size, square);
}

}  // namespace varnello::tiles
