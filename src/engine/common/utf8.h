#pragma once

#include <cstddef>
#include <string_view>

namespace varnello {

/// How many characters a UTF-8 text has.
constexpr std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char byte : text) count += (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    return count;
}

/// The first `count` characters of a UTF-8 text; characters, not bytes.
constexpr std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    while (end < text.size()) {
        const bool continues = (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80;
        if (!continues && count-- == 0) break;
        ++end;
    }
    return text.substr(0, end);
}

}  // namespace varnello
