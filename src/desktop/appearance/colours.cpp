#include "desktop/appearance/colours.h"

#include <QtGlobal>
#include <array>

namespace varnello {
namespace {

struct Row {
    const char* name;
    int red, green, blue;
};

// In the order of their numbers.
constexpr auto kColours = std::to_array<Row>({
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Blue"), 0, 0, 255},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Brown"), 165, 42, 42},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Chocolate"), 210, 105, 30},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Corn Flower"), 100, 149, 237},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Crimson"), 220, 20, 60},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Dark Blue"), 0, 0, 139},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Dark Green"), 0, 100, 0},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Dark Magenta"), 139, 0, 139},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Dark Olive Green"), 85, 107, 47},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Dark Red"), 139, 0, 0},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Dark Slate Blue"), 72, 61, 139},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Dark Slate Gray"), 47, 79, 79},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Dark Violet"), 148, 0, 211},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Deep Pink"), 255, 20, 147},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Deep Sky Blue"), 0, 191, 255},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Forest Green"), 34, 139, 34},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Green"), 0, 128, 0},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Indigo"), 75, 0, 130},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Orange Red"), 255, 69, 0},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Purple"), 128, 0, 128},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Red"), 255, 0, 0},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Saddle Brown"), 139, 69, 19},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Sea Green"), 46, 139, 87},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Sienna"), 160, 82, 45},
    {QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Tomato"), 255, 99, 71},
});
static_assert(kColours.size() >= kOfferedColours);

}  // namespace

std::optional<NamedColour> GetCol(int bgIndex) {
    const int place = bgIndex - kFirstColour;
    if (place < 0 || place >= static_cast<int>(kColours.size())) return std::nullopt;
    const Row& row = kColours[static_cast<std::size_t>(place)];
    return NamedColour{row.name, QColor(row.red, row.green, row.blue)};
}

QColor AccentColour(const QPalette& palette) {
    constexpr int kMiddle = 128;
    const bool dark = palette.color(QPalette::Base).lightness() < kMiddle;
    return dark ? QColor(0xE6, 0xAE, 0x60) : QColor(0x96, 0x5A, 0x0C);
}

std::optional<QColor> ColourOfValue(std::int32_t value) {
    if (value < 0 || value > 0xFFFFFF) return std::nullopt;
    return QColor(value & 0xFF, value >> 8 & 0xFF, value >> 16 & 0xFF);
}

}  // namespace varnello
