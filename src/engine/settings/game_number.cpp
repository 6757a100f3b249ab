#include "engine/settings/game_number.h"

#include <cstdint>

#include "engine/common/number_text.h"

namespace varnello {

std::optional<GameNumber> GameNumber::ParseBare(std::string_view digits) {
    if (digits.empty() || digits.size() > 15 || !IsAllDigits(digits)) return std::nullopt;
    return Number(static_cast<double>(ParseWhole<std::int64_t>(digits).value_or(0)));
}

std::string GameNumber::Shown() const {
    if (const double* number = std::get_if<double>(&value_)) return WholeText(*number);
    return std::get<std::string>(value_);
}

std::string GameNumber::Field() const { return IsText() ? '"' + Shown() + '"' : Shown(); }

double GameNumber::Value() const {
    if (const double* number = std::get_if<double>(&value_)) return *number;
    return ParseDecimal(std::get<std::string>(value_)).value_or(0.0);
}

}  // namespace varnello
