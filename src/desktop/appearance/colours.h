#pragma once

#include <QColor>
#include <QPalette>
#include <QString>
#include <cstdint>
#include <optional>

namespace varnello {

/// The background number that stands for the custom colour; named colours lie above it.
inline constexpr int kCustomBackground = 1000;
/// The named colours that are offered are the first ones; the others paint correctly if stored by
/// hand.
inline constexpr int kFirstColour = kCustomBackground + 1;
inline constexpr int kOfferedColours = 20;

struct NamedColour {
    const char* name;  ///< in English; the dialog that offers it translates it
    QColor colour;
};

/// The named colour of a background number; empty for a number outside the table.
std::optional<NamedColour> GetCol(int bgIndex);

/// The program's accent, as in its icons, in the shade that reads as text on this palette's paper.
QColor AccentColour(const QPalette& palette);

/// A 32-bit colour value is red + 256 x green + 65536 x blue; empty outside 0 to 0xFFFFFF.
std::optional<QColor> ColourOfValue(std::int32_t value);

}  // namespace varnello
