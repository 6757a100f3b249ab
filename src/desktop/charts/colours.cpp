#include "desktop/charts/colours.h"

#include <array>

namespace varnello {
namespace {

struct Shades {
    QRgb onLight;
    QRgb onDark;
};
/// In the order of `Series`.
constexpr std::array<Shades, 6> kShades{{{0xFF174A8B, 0xFF4F9BEA},
                                         {0xFFCC6600, 0xFFF7A23B},
                                         {0xFF10887D, 0xFF8CE8D8},
                                         {0xFF6D7480, 0xFF9AA2AE},
                                         {0xFF1E6B43, 0xFF63D297},
                                         {0xFFE0B04E, 0xFFA8741F}}};

constexpr float kAxisStrength = 0.55F;  // of ink on paper
constexpr float kGridStrength = 0.13F;

QColor Mixed(const QPalette& palette, float strength) {
    const QColor ink = InkColour(palette);
    const QColor paper = PaperColour(palette);
    const auto mixed = [=](float of, float on) { return strength * of + (1 - strength) * on; };
    return QColor::fromRgbF(mixed(ink.redF(), paper.redF()), mixed(ink.greenF(), paper.greenF()),
                            mixed(ink.blueF(), paper.blueF()));
}

}  // namespace

QColor SeriesColour(Series series, const QPalette& palette) {
    const Shades& shades = kShades.at(static_cast<std::size_t>(series));
    const bool dark = PaperColour(palette).lightness() < InkColour(palette).lightness();
    return QColor::fromRgb(dark ? shades.onDark : shades.onLight);
}

QColor InkColour(const QPalette& palette) { return palette.color(QPalette::Text); }

QColor PaperColour(const QPalette& palette) { return palette.color(QPalette::Base); }

QColor AxisColour(const QPalette& palette) { return Mixed(palette, kAxisStrength); }

QColor GridColour(const QPalette& palette) { return Mixed(palette, kGridStrength); }

}  // namespace varnello
