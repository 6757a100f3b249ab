#include "engine/definitions/game_record.h"

namespace varnello {

namespace {

/// A cell on which cards build.
template <typename PileDef>
CellDef BuildingCellOf(const PileDef& def) {
    CellDef cell = CellOf(def);
    cell.Order = def.Order;
    cell.AK = def.AK;
    return cell;
}

}  // namespace

void cGames::Home(const HomeDef& def) {
    Def(Cell::Home) = BuildingCellOf(def);
    emptyNum_ = def.EmptyNum;
    multiMove_ = def.MultiMove;
    homeType_ = def.HomeType;
    multiOrder_ = def.MultiOrder;
    suitType_ = def.SuitType;
    cardsOpen_ = def.CardsOpen;
}

void cGames::Stock(const StockDef& def) {
    Def(Cell::Stock) = CellOf(def);
    stockMove_ = def.StockMove;
    stockNum_ = def.StockNum;
    stockType_ = def.StockType;
}

void cGames::Waste(const WasteDef& def) { Def(Cell::Waste) = CellOf(def); }

void cGames::Goal(const GoalDef& def) {
    Def(Cell::Goal) = BuildingCellOf(def);
    goalType_ = def.GoalType;
}

void cGames::Res(const ResDef& def) { Def(Cell::Res) = CellOf(def); }

void cGames::Ext(const ExtDef& def) { ext_ = def; }

OrderCode cGames::Order(Cell cell, int pile) const {
    if (Tag() == Tag::FreecellAK && cell == Cell::Goal && pile >= 2) return OrderCode::DownSuit;
    return Def(cell).Order;
}

OrderCode cGames::MultiOrder() const {
    return multiOrder_ == OrderCode::Nothing ? Def(Cell::Home).Order : multiOrder_;
}

bool cGames::FansRight() const {
    return HomePileOrder() == PileOrder::RightRows || HomePileOrder() == PileOrder::RightColumns;
}

}  // namespace varnello
