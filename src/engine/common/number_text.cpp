#include "engine/common/number_text.h"

#include <algorithm>
#include <limits>

namespace varnello {
namespace {

std::size_t CountDigits(std::string_view text) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsDigit) -
                                    text.begin());
}

struct DecimalShape {
    std::string_view whole, fraction, exponent;  // the exponent with its sign, without the letter
};

std::optional<DecimalShape> Split(std::string_view text) {
    DecimalShape shape;
    shape.whole = text.substr(0, CountDigits(text));
    if (shape.whole.empty()) return std::nullopt;
    text.remove_prefix(shape.whole.size());
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        shape.fraction = text.substr(0, CountDigits(text));
        if (shape.fraction.empty()) return std::nullopt;
        text.remove_prefix(shape.fraction.size());
    }
    if (text.starts_with('e') || text.starts_with('E')) {
        text.remove_prefix(1);
        shape.exponent = text;
        if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
        const std::size_t digits = CountDigits(text);
        if (digits == 0) return std::nullopt;
        text.remove_prefix(digits);
    }
    if (!text.empty()) return std::nullopt;
    return shape;
}

/// What a number outside the range of 64-bit floats counts as: the decimal place of its first
/// digit tells whether it is too large or too small.
double OutOfRange(const DecimalShape& shape) {
    const auto notZero = [](char c) { return c != '0'; };
    const auto place = [&](std::string_view digits) {
        return std::find_if(digits.begin(), digits.end(), notZero) - digits.begin();
    };
    const auto wholeSize = static_cast<std::ptrdiff_t>(shape.whole.size());
    std::ptrdiff_t firstPlace = wholeSize - place(shape.whole);
    if (firstPlace == 0) firstPlace = -place(shape.fraction);
    const bool downward = shape.exponent.starts_with('-');
    const auto exponent = shape.exponent.empty() ? 0 : ParseWhole<std::int64_t>(shape.exponent);
    const bool large = exponent ? *exponent > -firstPlace : !downward;
    return large ? std::numeric_limits<double>::infinity() : 0.0;
}

}  // namespace

std::string_view Trim(std::string_view text) {
    constexpr std::string_view kBlanks = " \t";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::optional<double> ParseDecimal(std::string_view text) {
    text = Trim(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    const auto shape = Split(text);
    if (!shape) return std::nullopt;
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) value = OutOfRange(*shape);
    return negative ? -value : value;
}

std::string WholeText(double value) {
    char buffer[512];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 0);
    return std::string(buffer, result.ptr);
}

std::string ShortDecimal(double value) {
    char buffer[64];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
    return std::string(buffer, result.ptr);
}

std::string TwoDigits(std::int64_t value) {
    std::string digits = std::to_string(value);
    if (digits.size() < 2) digits.insert(0, 1, '0');
    return digits;
}

}  // namespace varnello
