#include "desktop/appearance/ground.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

namespace varnello {
namespace {

constexpr double kDeepest = 0.42;  // of the light is gone far away from the table
constexpr double kReach = 420;     // pixels of the table at which most of it has gone
constexpr int kOne = 1 << 16;      // fixed point of the light

/// The light left over at a distance, from 0 to `kOne`; level at the table's edge, so that no edge
/// is seen.
int LightAt(double distance, double scale) {
    const double part = distance / (kReach * scale);
    return static_cast<int>(std::lround(kOne * (1 - kDeepest * (1 - std::exp(-part * part)))));
}

/// A number below `kOne` for each pixel without a visible order: between two levels of a channel
/// it decides, so that the darkening shows no bands.
std::uint32_t Noise(std::uint32_t x, std::uint32_t y) {
    std::uint32_t h = x * 0x9E3779B1U ^ y * 0x85EBCA77U;
    h ^= h >> 15U;
    h *= 0x2C1B3C6DU;
    h ^= h >> 12U;
    h *= 0x297A2D39U;
    return (h ^ (h >> 15U)) & 0xFFFFU;
}

QRgb Darkened(QRgb colour, int light, std::uint32_t noise) {
    const auto channel = [&](int value) {
        return static_cast<int>((static_cast<std::uint32_t>(value * light) + noise) >> 16U);
    };
    return qRgb(channel(qRed(colour)), channel(qGreen(colour)), channel(qBlue(colour)));
}

/// Distances from the table in steps of one pixel, apart in x and in y.
int Beyond(int at, int first, int last) { return std::max({first - at, at - last, 0}); }

void Darken(QImage& ground, const QRect& table, double scale) {
    const double far = std::hypot(ground.width(), ground.height());
    std::vector<int> light(static_cast<std::size_t>(far) + 2);
    for (std::size_t i = 0; i < light.size(); ++i) {
        light[i] = LightAt(static_cast<double>(i), scale);
    }
    for (int y = 0; y < ground.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(ground.scanLine(y));
        const int down = Beyond(y, table.top(), table.bottom());
        for (int x = 0; x < ground.width(); ++x) {
            const int across = Beyond(x, table.left(), table.right());
            if (across == 0 && down == 0) {
                x = table.right();  // all of the table's row is as it is
                continue;
            }
            const double away = down == 0 ? across : across == 0 ? down : std::hypot(across, down);
            const auto noise = Noise(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y));
            line[x] = Darkened(line[x], light[static_cast<std::size_t>(away)], noise);
        }
    }
}

/// The table's picture goes on: each row beside it in the row's own colour.
void SpreadRows(QPainter& painter, const QSize& size, const QRect& table, const QImage& picture) {
    for (int y = 0; y < size.height(); ++y) {
        const int row = std::clamp(y - table.top(), 0, picture.height() - 1);
        painter.fillRect(0, y, size.width(), 1, QColor(picture.pixel(0, row)));
    }
}

}  // namespace

QImage GroundPicture(QSize size, const QRect& table, double scale, const BackgroundChoice& choice) {
    QImage ground(size, QImage::Format_RGB32);
    QPainter painter(&ground);
    const QImage tile = TilePicture(scale, choice);
    if (tile.isNull()) {
        QImage column(1, table.height(), QImage::Format_RGB32);
        SetBG(column, scale, choice);
        SpreadRows(painter, size, table, column);
    } else {
        painter.setBrushOrigin(table.topLeft());
        painter.fillRect(ground.rect(), QBrush(tile));
    }
    painter.end();
    Darken(ground, table, scale);
    return ground;
}

}  // namespace varnello
