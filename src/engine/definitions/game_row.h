#pragma once

#include <optional>
#include <string_view>

#include "engine/definitions/game_record.h"

namespace varnello {

/// One game: its name and the values that `SelectGame` stores.
struct GameRow {
    std::string_view Name;
    ExtDef Ext = {};
    HomeDef Home = {};
    GoalDef Goal = {};
    ResDef Res = {};
    StockDef Stock = {};
    std::optional<WasteDef> Waste = std::nullopt;
};

}  // namespace varnello
