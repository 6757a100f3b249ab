#include "desktop/modules/charts/colours.h"

#include <cmath>
#include <iterator>

namespace varnello {
namespace {

constexpr QRgb kOnLight[] = {0xFF174A8B, 0xFFCC6600, 0xFF10887D};
constexpr QRgb kOnDark[] = {0xFF4F9BEA, 0xFFF7A23B, 0xFF8CE8D8};

constexpr float kAxisStrength = 0.5F;  // of ink on paper
constexpr float kGridStrength = 0.16F;

/// How much light a colour gives off, 0 to 1.
double Luminance(const QColor& colour) {
    const auto linear = [](double part) { return std::pow(part, 2.2); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor Mixed(const QPalette& palette, float strength) {
    const QColor ink = InkColour(palette);
    const QColor paper = PaperColour(palette);
    const auto mixed = [=](float of, float on) { return strength * of + (1 - strength) * on; };
    return QColor::fromRgbF(mixed(ink.redF(), paper.redF()), mixed(ink.greenF(), paper.greenF()),
                            mixed(ink.blueF(), paper.blueF()));
}

}  // namespace

QColor SeriesColour(qsizetype series, const QPalette& palette) {
    const auto place = static_cast<std::size_t>(series) % std::size(kOnLight);
    const bool dark = Luminance(PaperColour(palette)) < Luminance(InkColour(palette));
    return QColor::fromRgb(dark ? kOnDark[place] : kOnLight[place]);
}

QColor InkColour(const QPalette& palette) { return palette.color(QPalette::Text); }

QColor PaperColour(const QPalette& palette) { return palette.color(QPalette::Base); }

QColor AxisColour(const QPalette& palette) { return Mixed(palette, kAxisStrength); }

QColor GridColour(const QPalette& palette) { return Mixed(palette, kGridStrength); }

QColor TextColourOn(const QColor& fill) {
    return Luminance(fill) > 0.18 ? QColor(Qt::black) : QColor(Qt::white);
}

}  // namespace varnello
