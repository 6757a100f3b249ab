#include <regex.h>

#include <bit>
#include <cerrno>
#include <limits>

#include "engine/common/calendar.h"
#include "engine/common/number_text.h"
#include "engine/flow/engine.h"
#include "engine/null_desktop.h"
#include "target.h"

// Texts that are, or nearly are, numbers and dates, compared with what the C library reads.
namespace varnello::test {
namespace {

bool Matches(const char* pattern, const std::string& text) {
    regex_t compiled;
    Require(regcomp(&compiled, pattern, REG_EXTENDED) == 0, pattern);
    regmatch_t whole{};
    whole.rm_eo = static_cast<regoff_t>(text.size());
    const bool matches = regexec(&compiled, text.c_str(), 1, &whole, REG_STARTEND) == 0;
    regfree(&compiled);
    return matches;
}

void CheckDecimal(const std::string& text) {
    const auto value = ParseDecimal(text);
    const bool valid = Matches("^[ \t]*[+-]?[0-9]+([.][0-9]+)?([eE][+-]?[0-9]+)?[ \t]*$", text);
    Require(value.has_value() == valid, "whether it is a number");
    const double expected = valid ? std::strtod(text.c_str(), nullptr) : 0.0;
    if (valid) {
        Require(std::bit_cast<std::uint64_t>(*value) == std::bit_cast<std::uint64_t>(expected),
                "the number's value");
    }
    const GameNumber number = GameNumber::Text(text);
    Require(number.Shown() == text, "the text of a game number");
    Require(number.Value() == expected, "the value of a game number");
}

template <typename Integer>
void CheckWhole(const std::string& text) {
    const auto value = ParseWhole<Integer>(text);
    errno = 0;
    const long long expected = std::strtoll(text.c_str(), nullptr, 10);
    using Limits = std::numeric_limits<Integer>;
    const bool fits = Matches("^[+-]?[0-9]+$", text) && errno == 0 && expected >= Limits::min() &&
                      expected <= Limits::max();
    Require(value.has_value() == fits, "whether it is a whole number");
    Require(!value || *value == expected, "the whole number's value");
}

void CheckBare(const std::string& text) {
    const auto number = GameNumber::ParseBare(text);
    Require(number.has_value() == Matches("^[0-9]{1,15}$", text), "whether it is a bare number");
    if (!number) return;
    Require(number->Shown() == std::to_string(std::strtoll(text.c_str(), nullptr, 10)),
            "a bare number as shown");
    Require(GameNumber::ParseBare(number->Shown()) == number, "a bare number read again");
}

void CheckChoosable(const std::string& text) {
    NullDesktop nothing;
    const Engine engine(nothing.Interfaces({}));
    const auto value = ParseDecimal(text);
    const float tested = value ? static_cast<float>(*value) : 0.0F;
    const bool inside = tested > 0.0F && static_cast<double>(tested) < 999'999'999'999'999.0;
    Require(engine.choosing().IsChoosable(text) == inside, "whether it can be chosen");
}

void CheckDate(const std::string& text) {
    const auto date = ParseDateText(text);
    if (!date) return;
    Require(IsValid(*date), "the date's fields");
    Require(date->year < 1000 || DateText(*date) == text, "the date's text");
    Require(FromSecondsSinceEpoch(SecondsSinceEpoch(*date)) == *date, "the date's seconds");
}

}  // namespace
}  // namespace varnello::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varnello::test;
    constexpr std::size_t kMostBytes = 1024;
    if (size > kMostBytes) return 0;
    const std::string text(reinterpret_cast<const char*>(data), size);
    CheckDecimal(text);
    CheckWhole<std::int16_t>(text);
    CheckWhole<std::int32_t>(text);
    CheckWhole<std::int64_t>(text);
    CheckBare(text);
    CheckChoosable(text);
    CheckDate(text);
    return 0;
}
