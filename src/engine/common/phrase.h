#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// What a person reads. The engine says it in English, as whole sentences with places for names and
/// numbers, and keeps it as a value: a desktop shows it in the user's language and digits, while
/// scripts and files take the English text. An English text is the key to its translations, so it
/// stands in the code as one literal, in a `Sentence`, a `Text` or a `Say`:
/// `tools/update-translations.sh` collects the texts there.
namespace varnello {

namespace say {

/// A text; one that depends on a number has %n in the place of it, and an English text for one.
struct Sentence {
    std::string_view Many;
    std::string_view One = Many;
};

/// Marks a text that is a word in a sentence, a heading, or a caption by itself.
constexpr std::string_view Text(std::string_view english) { return english; }

}  // namespace say

/// Seconds, shown as h:mm:ss.
struct Duration {
    std::int32_t Seconds = 0;
};

/// A whole number shown with its digits in groups of three, and as nothing if it is 0.
struct Grouped {
    double Value = 0;
};

/// What stands in a place of a sentence: a number, a text that has its own translation, or one of a
/// person's own, such as a name, that never changes.
using PhraseWord = std::variant<int, double, Duration, Grouped, std::string_view, std::string>;

std::string English(const PhraseWord& word);

struct Phrase {
    say::Sentence Text = {};
    int Count = 0;                       ///< stands for %n; 1 takes the sentence for one
    std::vector<PhraseWord> Words = {};  ///< stand for %1, %2 and on

    std::string English() const;
};

/// A sentence without a count.
inline Phrase Say(std::string_view english, std::vector<PhraseWord> words = {}) {
    return {.Text = {english}, .Words = std::move(words)};
}

/// Puts together what a sentence says: `add` gets its pieces, and for each place in it `place` is
/// called with 0 for %n, 1 for %1 and on. A "%" before anything else is one.
template <typename Add, typename Place>
void Compose(std::string_view text, const Add& add, const Place& place) {
    while (!text.empty()) {
        const std::size_t next = text.find('%');
        add(text.substr(0, next));
        if (next == std::string_view::npos) return;
        text.remove_prefix(next + 1);
        const char kind = text.empty() ? ' ' : text.front();
        if (kind == 'n' || (kind >= '1' && kind <= '9')) {
            place(kind == 'n' ? 0 : kind - '0');
            text.remove_prefix(1);
        } else {
            add("%");
        }
    }
}

}  // namespace varnello
