#pragma once

#include <optional>
#include <string>

#include "engine/settings/game_number.h"

namespace varnello {

/// The deal that a person chose in a dialog. Only the main window starts it.
struct GameChoice {
    std::string Game;
    std::optional<GameNumber> Number = {};   ///< none: one drawn at random
    std::optional<std::string> Player = {};  ///< none: the current one
};

}  // namespace varnello
