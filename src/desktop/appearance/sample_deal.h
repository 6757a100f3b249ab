#pragma once

#include <string>

#include "engine/board/table.h"

namespace varnello {

/// The table of a game just dealt, the same deal for every picture that is made of it.
Table SampleDeal(const std::string& game);

}  // namespace varnello
