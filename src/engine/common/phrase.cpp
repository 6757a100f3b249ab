#include "engine/common/phrase.h"

#include "engine/common/calendar.h"
#include "engine/common/number_text.h"

namespace varnello {
namespace {

/// Plain digits in groups of three; nothing for 0.
std::string InGroups(double number) {
    if (number == 0) return {};
    std::string text = WholeText(number);
    for (auto at = static_cast<std::ptrdiff_t>(text.size()) - 3; at > 0; at -= 3) {
        text.insert(static_cast<std::size_t>(at), 1, ',');
    }
    return text;
}

struct ToEnglish {
    std::string operator()(int number) const { return std::to_string(number); }
    std::string operator()(double number) const { return ShortDecimal(number); }
    std::string operator()(Duration time) const { return FormatTime(time.Seconds); }
    std::string operator()(Grouped number) const { return InGroups(number.Value); }
    std::string operator()(std::string_view text) const { return std::string(text); }
};

}  // namespace

std::string English(const PhraseWord& word) { return std::visit(ToEnglish{}, word); }

std::string Phrase::English() const {
    std::string english;
    const auto place = [&](int number) {
        english += number == 0 ? std::to_string(Count)
                               : varnello::English(Words.at(static_cast<std::size_t>(number - 1)));
    };
    Compose(
        Count == 1 ? Text.One : Text.Many, [&](std::string_view piece) { english += piece; },
        place);
    return english;
}

}  // namespace varnello
