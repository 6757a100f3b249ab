#pragma once

#include <string>
#include <vector>

#include "engine/definitions/catalogue.h"

namespace varnello {

/// A fact about a game in plain English, under its heading.
struct GameFact {
    std::string Heading;
    std::string Text;
};

/// The rules of a game in words, worked out from its row so that they can't be wrong: aim, layout,
/// building, groups, empty piles, foundations, stock, autoplay.
std::vector<GameFact> Describe(const GameRow& row);

/// Cards that stay on the stock after the deal.
int CardsLeftOnStock(const GameRow& row);

}  // namespace varnello
