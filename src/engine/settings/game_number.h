#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace varnello {

/// The number of a deal. It is either a drawn number, a whole value of at most 15 digits, or the
/// text that a player typed or picked, kept as it stood. Files show the difference.
class GameNumber {
public:
    GameNumber() = default;
    /// A drawn number; `value` is whole and 0 to 999,999,999,999,999.
    static GameNumber Number(double value) { return GameNumber(value); }
    static GameNumber Text(std::string text) { return GameNumber(std::move(text)); }

    /// A bare number of 1 to 15 digits; empty for anything else.
    static std::optional<GameNumber> ParseBare(std::string_view digits);

    bool IsText() const { return std::holds_alternative<std::string>(value_); }
    /// The number as windows show it: plain digits, or the text as it stands.
    std::string Shown() const;
    /// The field of a score or favorites line: bare digits, or the text in double quotes.
    std::string Field() const;
    /// What the deal uses: the nearest 64-bit float; 0 for a text that doesn't read as a number.
    double Value() const;

    bool operator==(const GameNumber&) const = default;

private:
    explicit GameNumber(double value) : value_(value) {}
    explicit GameNumber(std::string text) : value_(std::move(text)) {}

    std::variant<std::string, double> value_;
};

}  // namespace varnello
