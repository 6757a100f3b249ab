#pragma once

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varnello {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Whether all of `text` is decimal digits, which is so for an empty one.
constexpr bool IsAllDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), IsDigit);
}

/// A whole number in plain decimal: an optional sign and digits, nothing around them. Empty when
/// `text` is anything else or the number doesn't fit. Never looks at the locale.
template <typename Integer>
std::optional<Integer> ParseWhole(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return std::nullopt;
    }
    Integer value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

/// A decimal number as a player types it: optional sign, digits, an optional fraction (a point with
/// at least one digit on both sides), an optional exponent, blanks around it. Hexadecimal, "inf",
/// a comma and digits of other scripts don't read as numbers, whatever the locale. The result is
/// the nearest 64-bit float; numbers beyond its range give an infinity or a zero.
std::optional<double> ParseDecimal(std::string_view text);

/// `text` without the blanks and tabs at both ends.
std::string_view Trim(std::string_view text);

/// A whole-valued float in plain digits, without exponent.
std::string WholeText(double value);

/// A float in plain decimal with at most 15 significant digits and no trailing zeros: 50, 33.33.
std::string ShortDecimal(double value);

/// Two digits at least, padded with a zero.
std::string TwoDigits(std::int64_t value);

}  // namespace varnello
