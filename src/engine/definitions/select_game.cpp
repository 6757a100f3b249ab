#include <algorithm>

#include "engine/definitions/catalogue.h"

namespace varnello {
namespace {

void StoreDefaults(cGames& games) {
    games.Res({});
    games.Waste({});
    games.GoalBase(kAce);
}

}  // namespace

const GameRow* FindGame(std::string_view name) {
    const auto row = std::find_if(kCatalogue.begin(), kCatalogue.end(),
                                  [&](const GameRow& game) { return game.Name == name; });
    return row == kCatalogue.end() ? nullptr : &*row;
}

void SelectRow(cGames& games, const GameRow& row) {
    StoreDefaults(games);
    games.Home(row.Home);
    games.Goal(row.Goal);
    games.Res(row.Res);
    games.Stock(row.Stock);
    if (row.Waste) games.Waste(*row.Waste);
    games.Ext(row.Ext);
}

void SelectGame(cGames& games, std::string_view name) {
    if (const GameRow* row = FindGame(name)) {
        SelectRow(games, *row);
    } else {
        StoreDefaults(games);
    }
}

}  // namespace varnello
