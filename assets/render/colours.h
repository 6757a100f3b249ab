// The few colours that all card pictures share.
#pragma once

#include <QColor>

namespace varnello::render {

inline constexpr QColor paperColour{0xff, 0xfd, 0xf6};
inline constexpr QColor edgeColour{0x8e, 0x88, 0x7a};
inline constexpr QColor redInk{0xd0, 0x20, 0x1b};
inline constexpr QColor blackInk{0x16, 0x18, 0x1d};

}  // namespace varnello::render
