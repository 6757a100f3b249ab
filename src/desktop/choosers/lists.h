#pragma once

#include <QComboBox>

#include "engine/settings/data.h"

namespace varnello {

/// Fills a combo with all games, the one called `selected` selected, else the first.
void FillGames(QComboBox& combo, const cData& data, const std::string& selected);

/// The names of all players, in the order of the list.
QStringList PlayerNames(const cData& data);

/// Fills a combo with all players, the current one selected, else the first.
void FillPlayers(QComboBox& combo, const cData& data);

}  // namespace varnello
