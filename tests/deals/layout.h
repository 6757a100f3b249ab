#pragma once

#include <string>

#include "dealer.h"

namespace varnello::test {

/// What is wrong with a fresh deal of a game of the catalogue, or nothing: pile sizes, faces,
/// starting cards of the foundations and slots are those of the game's row. Worked out from the
/// row in another way than the deal does.
std::string LayoutFault(const Dealer& deal);

}  // namespace varnello::test
