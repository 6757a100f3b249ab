#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "engine/common/number_text.h"

namespace varnello {

/// Takes the fields of a line from left to right, as views into it. A quoted field begins with a
/// double quote and runs to the next one; there is no escape. Nothing may stand between a field and
/// its comma. Each taker is false, and what was taken then means nothing, when the line goes on in
/// another way.
class FieldReader {
public:
    explicit FieldReader(std::string_view line) : rest_(line) {}

    bool Comma() {
        if (!rest_.starts_with(',')) return false;
        rest_.remove_prefix(1);
        return true;
    }
    bool AtEnd() const { return rest_.empty(); }

    bool Quoted(std::string_view& text) {
        if (!rest_.starts_with('"')) return false;
        const std::size_t end = rest_.find('"', 1);
        if (end == std::string_view::npos) return false;
        text = rest_.substr(1, end - 1);
        rest_.remove_prefix(end + 1);
        return true;
    }
    /// A bare whole number: 1 to 15 digits.
    bool Digits(std::int64_t& number) {
        constexpr std::size_t kMost = 15;
        const std::size_t size = TakeDigits(number, kMost);
        return size >= 1 && size <= kMost;
    }
    /// A bare whole number that fits the type: an optional minus and digits.
    template <typename Integer>
    bool Whole(Integer& number) {
        using Limits = std::numeric_limits<Integer>;
        const bool negative = rest_.starts_with('-');
        if (negative) rest_.remove_prefix(1);
        while (rest_.starts_with('0') && rest_.size() > 1 && IsDigit(rest_[1])) {
            rest_.remove_prefix(1);
        }
        constexpr std::size_t kMost = Limits::digits10 + 1;
        std::int64_t value = 0;
        const std::size_t size = TakeDigits(value, kMost);
        if (negative) value = -value;
        number = static_cast<Integer>(value);
        return size >= 1 && size <= kMost && number == value;
    }

private:
    /// Stops behind `most` + 1 digits; the result is how many there were.
    std::size_t TakeDigits(std::int64_t& number, std::size_t most) {
        const std::size_t limit = std::min(rest_.size(), most + 1);
        std::size_t size = 0;
        std::int64_t value = 0;
        for (; size < limit && IsDigit(rest_[size]); ++size)
            value = value * 10 + (rest_[size] - '0');
        rest_.remove_prefix(size);
        number = value;
        return size;
    }

    std::string_view rest_;
};

/// `text` in double quotes; there is no escape, so it must hold none.
std::string QuotedField(std::string_view text);

}  // namespace varnello
