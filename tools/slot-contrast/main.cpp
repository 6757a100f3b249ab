#include <QGuiApplication>
#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

#include "desktop/appearance/background.h"
#include "desktop/appearance/colours.h"
#include "desktop/appearance/looks.h"
#include "desktop/appearance/pictures.h"

// varnello-slot-contrast: how well the outline and the marks of empty slots stand out from every
// background: all tiles, all named colours and all heights of their fades, and a grid of all custom
// colours, at three ratios. Prints the worst case of each and fails below what is wanted.
using namespace varnello;

namespace {

constexpr double kOutlineWanted = 2.0;
constexpr double kMarkWanted = 1.5;
constexpr int kGrid = 15;  // steps of a channel between the custom colours that are tried

constexpr int kFineness = 16;  // steps of a level, so that its light is looked up

double Linear(double level) {
    static const auto light = [] {
        std::array<double, 255 * kFineness + 1> table{};
        for (std::size_t i = 0; i < table.size(); ++i) {
            const double v = static_cast<double>(i) / (255 * kFineness);
            table[i] = v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        }
        return table;
    }();
    return light[static_cast<std::size_t>(std::clamp(level, 0.0, 255.0) * kFineness + 0.5)];
}

double Luminance(double red, double green, double blue) {
    return 0.2126 * Linear(red) + 0.7152 * Linear(green) + 0.0722 * Linear(blue);
}

/// How a pixel of a slot changes what lies under it: `under` x keep + add.
struct Tone {
    explicit Tone(QRgb premultiplied)
        : keep(1 - qAlpha(premultiplied) / 255.0),
          red(qRed(premultiplied)),
          green(qGreen(premultiplied)),
          blue(qBlue(premultiplied)) {}

    double Over(QRgb under) const {
        return Luminance(qRed(under) * keep + red, qGreen(under) * keep + green,
                         qBlue(under) * keep + blue);
    }

    double keep, red, green, blue;
};

/// What a slot is made of, read from its picture.
struct SlotTones {
    Tone well, outlineDark, outlineLight, markDark, markLight;
};

SlotTones Measure(const CardPictures& pictures, int slot) {
    const CardPictures::Part part = pictures.RightPic(slot);
    const auto pixel = [&](int x, int y) {
        return part.sheet->pixel(part.rect.topLeft() + QPoint(x, y));
    };
    const int line = std::max(1, qRound(pictures.Ratio()));
    const int middle = part.rect.height() / 2;
    // The sheet keeps colours multiplied by their alpha. Of all pixels within the well, the ones
    // that darken and lighten most.
    QRgb dark = pixel(3 * line, middle);
    QRgb light = dark;
    const QRgb well = dark;
    for (int y = 4 * line; y < part.rect.height() - 4 * line; ++y) {
        for (int x = 4 * line; x < part.rect.width() - 4 * line; ++x) {
            const QRgb here = pixel(x, y);
            if (qGray(here) > qGray(light)) light = here;
            if (qGray(here) <= qGray(well) && qAlpha(here) > qAlpha(dark)) dark = here;
        }
    }
    return {Tone(well), Tone(pixel(0, middle)), Tone(pixel(line, middle)), Tone(dark), Tone(light)};
}

double Contrast(double one, double other) {
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

struct Worst {
    double contrast = 99;
    QByteArray where;

    void Take(double found, const QByteArray& place) {
        if (found < contrast) *this = {found, place};
    }
};

struct Report {
    Worst outline, mark;

    /// Mean luminances over a few pixels that the eye sees as one: a piece of an outline.
    void Take(const SlotTones& tones, const std::vector<QRgb>& ground, const QByteArray& where) {
        const auto mean = [&](const Tone& tone) {
            double sum = 0;
            for (const QRgb pixel : ground) sum += tone.Over(pixel);
            return sum / static_cast<double>(ground.size());
        };
        const double table = mean(Tone(qRgba(0, 0, 0, 0)));
        const double well = mean(tones.well);
        outline.Take(std::max(Contrast(mean(tones.outlineDark), table),
                              Contrast(mean(tones.outlineLight), table)),
                     where);
        mark.Take(
            std::max(Contrast(mean(tones.markDark), well), Contrast(mean(tones.markLight), well)),
            where);
    }
};

void MeasureColours(const SlotTones& tones, Report& report) {
    for (int id = kFirstColour; const auto named = GetCol(id); ++id) {
        QImage fade(1, 256, QImage::Format_RGB32);
        SetBG(fade, 1, {.bgIndex = id, .fade = true});
        for (int y = 0; y < 256; ++y) {
            report.Take(tones, {fade.pixel(0, y)},
                        QByteArray(named->name) + " at " + QByteArray::number(y) + " of 256");
        }
    }
    for (int red = 0; red <= 255; red += kGrid) {
        for (int green = 0; green <= 255; green += kGrid) {
            for (int blue = 0; blue <= 255; blue += kGrid) {
                const QRgb colour = qRgb(red, green, blue);
                report.Take(tones, {colour}, QColor(colour).name().toLatin1());
            }
        }
    }
}

void MeasureTiles(const SlotTones& tones, double ratio, Report& report) {
    const int piece = 4 * static_cast<int>(ratio);
    for (const LookGroup& group : TileGroups()) {
        for (const int id : group.ids) {
            QImage tile(QSize(200, 140) * ratio, QImage::Format_RGB32);  // the largest fits
            SetBG(tile, ratio, {.bgIndex = id});
            for (int y = 0; y + piece <= tile.height(); y += piece) {
                for (int x = 0; x + piece <= tile.width(); x += piece) {
                    std::vector<QRgb> ground;
                    for (int i = 0; i < piece * piece; ++i)
                        ground.push_back(tile.pixel(x + i % piece, y + i / piece));
                    report.Take(tones, ground, "tile " + QByteArray::number(id));
                }
            }
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    bool good = true;
    for (const double ratio : {1.0, 2.0, 3.0}) {
        const CardPictures pictures(ratio);
        for (const int slot : {6, 13}) {  // a rank and emblem; the emblem alone
            const SlotTones tones = Measure(pictures, slot);
            Report colours;
            MeasureColours(tones, colours);
            Report tiles;
            MeasureTiles(tones, ratio, tiles);
            for (const auto& [kind, report] : {std::pair{"colours", colours}, {"tiles", tiles}}) {
                std::printf("ratio %g, slot %2d, %-7s: outline %.2f (%s), mark %.2f (%s)\n", ratio,
                            slot, kind, report.outline.contrast, report.outline.where.constData(),
                            report.mark.contrast, report.mark.where.constData());
                good = good && report.outline.contrast >= kOutlineWanted &&
                       report.mark.contrast >= kMarkWanted;
            }
        }
    }
    return good ? 0 : 1;
}
