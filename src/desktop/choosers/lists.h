#pragma once

#include <QComboBox>

#include "engine/settings/data.h"

namespace varnello {

/// Fills a combo with all games, the one called `selected` selected, else the first.
void FillGames(QComboBox& combo, const cData& data, const std::string& selected);

/// Fills a combo with all players, the current one selected, else the first.
void FillPlayers(QComboBox& combo, const cData& data);

}  // namespace varnello
