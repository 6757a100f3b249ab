#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnello {

/// A field of a line: its text without quotes.
struct Field {
    std::string_view text;
    bool quoted = false;
};

/// Splits a line at its commas. A field that begins with a double quote runs to the next one, and
/// nothing may stand between that and the comma. Empty for a line that breaks this; a bare field
/// must not hold a quote.
std::optional<std::vector<Field>> SplitFields(std::string_view line);

/// `text` in double quotes; there is no escape, so it must hold none.
std::string QuotedField(std::string_view text);

}  // namespace varnello
