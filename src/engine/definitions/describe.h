#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "engine/definitions/game_row.h"
#include "engine/definitions/rule_texts.h"

namespace varnello {

/// What stands in a sentence for %1 or %2: a number, or words that are a text of their own.
using RuleWord = std::variant<int, std::string_view>;

/// One sentence of a game's rules.
struct RuleSentence {
    say::Sentence Text;
    int Count = 0;  ///< stands for %n; 1 takes the sentence for one
    std::vector<RuleWord> Words = {};

    std::string English() const;
};

/// A fact about a game under its heading.
struct GameFact {
    std::string_view Heading;
    std::vector<RuleSentence> Sentences;

    std::string English() const;
};

/// The rules of a game in words, worked out from its row so that they can't be wrong: aim, layout,
/// building, groups, empty piles, foundations, stock, autoplay. The row has to be a possible one.
std::vector<GameFact> Describe(const GameRow& row);

}  // namespace varnello
