#pragma once

#include <QColor>
#include <QString>
#include <cstdint>
#include <optional>

namespace varnello {

/// The background number that stands for the custom colour; named colours lie above it.
inline constexpr int kCustomBackground = 1000;

struct NamedColour {
    QString name;
    QColor colour;
};

/// The named colour of a background number; empty for a number outside the table.
std::optional<NamedColour> GetCol(int bgIndex);

/// A 32-bit colour value is red + 256 x green + 65536 x blue; empty outside 0 to 0xFFFFFF.
std::optional<QColor> ColourOfValue(std::int32_t value);

}  // namespace varnello
