#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/definitions/game_row.h"
#include "engine/definitions/rule_texts.h"

namespace varnello {

/// A fact about a game under its heading.
struct GameFact {
    std::string_view Heading;
    std::vector<Phrase> Sentences;

    std::string English() const;
};

/// The rules of a game in words, worked out from its row so that they can't be wrong: aim, layout,
/// building, groups, empty piles, foundations, stock, autoplay. The row has to be a possible one.
std::vector<GameFact> Describe(const GameRow& row);

}  // namespace varnello
