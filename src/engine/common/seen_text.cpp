#include "engine/common/seen_text.h"

#include <algorithm>
#include <array>

namespace varnello {
namespace {

struct Range {
    char32_t first, last;
};

constexpr std::array kBlanks{Range{0x20, 0x20},     Range{0xA0, 0xA0},     Range{0x1680, 0x1680},
                             Range{0x2000, 0x200A}, Range{0x202F, 0x202F}, Range{0x205F, 0x205F},
                             Range{0x2800, 0x2800}, Range{0x3000, 0x3000}};

// Controls, marks of direction, joiners, fillers, selectors of variants, tags, noncharacters.
constexpr std::array kUnseen{
    Range{0, 0x1F},          Range{0x7F, 0x9F},       Range{0xAD, 0xAD},
    Range{0x34F, 0x34F},     Range{0x61C, 0x61C},     Range{0x115F, 0x1160},
    Range{0x17B4, 0x17B5},   Range{0x180B, 0x180F},   Range{0x200B, 0x200F},
    Range{0x2028, 0x202E},   Range{0x2060, 0x206F},   Range{0x3164, 0x3164},
    Range{0xD800, 0xDFFF},   Range{0xFE00, 0xFE0F},   Range{0xFEFF, 0xFEFF},
    Range{0xFFA0, 0xFFA0},   Range{0xFFF0, 0xFFFB},   Range{0xFFFE, 0xFFFF},
    Range{0x1D173, 0x1D17A}, Range{0xE0000, 0xE0FFF}, Range{0x110000, 0xFFFFFFFF}};

template <std::size_t N>
constexpr bool Holds(const std::array<Range, N>& ranges, char32_t character) {
    return std::any_of(ranges.begin(), ranges.end(), [character](const Range& range) {
        return range.first <= character && character <= range.last;
    });
}

constexpr char32_t kBroken = 0xFFFFFFFF;

/// Takes the first character off; `kBroken` where the text isn't sound.
char32_t TakeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const int more = lead < 0x80 ? 0 : lead < 0xC2 ? -1 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    if (more < 0 || lead > 0xF4 || text.size() <= static_cast<std::size_t>(more)) return kBroken;
    char32_t character = more == 0 ? lead : lead & (0x3FU >> more);
    for (int i = 1; i <= more; ++i) {
        const auto byte = static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
        if ((byte & 0xC0) != 0x80) return kBroken;
        character = character << 6 | (byte & 0x3FU);
    }
    text.remove_prefix(static_cast<std::size_t>(more) + 1);
    return character;
}

}  // namespace

bool IsSeenText(std::string_view text) {
    bool seen = false;
    while (!text.empty()) {
        const char32_t character = TakeCharacter(text);
        if (Holds(kUnseen, character)) return false;
        seen = seen || !Holds(kBlanks, character);
    }
    return seen;
}

}  // namespace varnello
