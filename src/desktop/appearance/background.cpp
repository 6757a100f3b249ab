#include "desktop/appearance/background.h"

#include <QPainter>

#include "desktop/appearance/colours.h"
#include "engine/common/rounding.h"
#include "tiles/tile.h"

namespace varnello {
namespace {

constexpr int kBands = 256;

QColor ColourOf(const BackgroundChoice& choice) {
    // A value that is no colour has no part above 0.
    if (choice.bgIndex == kCustomBackground) {
        return ColourOfValue(choice.customColor).value_or(Qt::black);
    }
    if (const auto named = GetCol(choice.bgIndex)) return named->colour;
    return GetCol(keys::BGIndex.Default)->colour;
}

}  // namespace

BackgroundChoice StoredBackground(const cData& data) {
    return {.bgIndex = data.Get(keys::BGIndex),
            .fade = data.Get(keys::Fade) == 1,
            .customColor = data.CustomColor()};
}

void SetBG(QImage& surface, double ratio, const BackgroundChoice& choice) {
    if (choice.bgIndex < kCustomBackground && TileFill(surface, ratio, choice.bgIndex)) return;
    FadeFill(surface, ColourOf(choice), choice.fade);
}

QImage TilePicture(double ratio, const BackgroundChoice& choice) {
    if (choice.bgIndex >= kCustomBackground) return {};
    const tiles::Tile* found = tiles::FindTile(choice.bgIndex);
    return found ? tiles::Paint(*found, ratio) : QImage();
}

bool TileFill(QImage& surface, double ratio, int id) {
    const QImage tile = TilePicture(ratio, {.bgIndex = id});
    if (tile.isNull()) return false;
    QPainter painter(&surface);
    for (int y = 0; y < surface.height(); y += tile.height()) {
        for (int x = 0; x < surface.width(); x += tile.width()) painter.drawImage(x, y, tile);
    }
    return true;
}

void FadeFill(QImage& surface, const QColor& colour, bool fade) {
    const auto channel = [&](int start, int band) {
        const double step = fade ? -start / 255.0 : 0.0;
        return static_cast<int>(RoundHalfEven(std::max(band * step + start, 0.0)));
    };
    QPainter painter(&surface);
    for (int band = 0; band < kBands; ++band) {
        const int top = band * surface.height() / kBands;
        const int bottom = (band + 1) * surface.height() / kBands;
        painter.fillRect(0, top, surface.width(), bottom - top,
                         QColor(channel(colour.red(), band), channel(colour.green(), band),
                                channel(colour.blue(), band)));
    }
}

}  // namespace varnello
