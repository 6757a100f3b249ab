#include "engine/definitions/game_record.h"

namespace varnello {

void cGames::Home(const HomeDef& def) {
    Def(Cell::Home) = {.Piles = def.Piles,
                       .Cards = def.Cards,
                       .Order = def.Order,
                       .AK = def.AK,
                       .StartX = def.StartX,
                       .StartY = def.StartY,
                       .PileWidth = def.PileWidth,
                       .PosWidth = def.PosWidth,
                       .Div = def.Div,
                       .DivWidth = def.DivWidth,
                       .PileOrder = def.PileOrder};
    emptyNum_ = def.EmptyNum;
    multiMove_ = def.MultiMove;
    homeType_ = def.HomeType;
    multiOrder_ = def.MultiOrder;
    suitType_ = def.SuitType;
    cardsOpen_ = def.CardsOpen;
}

void cGames::Stock(const StockDef& def) {
    Def(Cell::Stock) = {
        .Piles = def.Piles, .StartX = def.StartX, .StartY = def.StartY, .PosWidth = def.PosWidth};
    stockMove_ = def.StockMove;
    stockNum_ = def.StockNum;
    stockType_ = def.StockType;
}

void cGames::Waste(const WasteDef& def) {
    Def(Cell::Waste) = {.Piles = def.Piles,
                        .Cards = def.Cards,
                        .StartX = def.StartX,
                        .StartY = def.StartY,
                        .PileWidth = def.PileWidth,
                        .PosWidth = def.PosWidth};
}

void cGames::Goal(const GoalDef& def) {
    Def(Cell::Goal) = {.Piles = def.Piles,
                       .Cards = def.Cards,
                       .Order = def.Order,
                       .AK = def.AK,
                       .StartX = def.StartX,
                       .StartY = def.StartY,
                       .PileWidth = def.PileWidth,
                       .PosWidth = def.PosWidth,
                       .Div = def.Div,
                       .DivWidth = def.DivWidth,
                       .PileOrder = def.PileOrder};
    goalType_ = def.GoalType;
}

void cGames::Res(const ResDef& def) {
    Def(Cell::Res) = {.Piles = def.Piles,
                      .Cards = def.Cards,
                      .StartX = def.StartX,
                      .StartY = def.StartY,
                      .PileWidth = def.PileWidth,
                      .PosWidth = def.PosWidth,
                      .Div = def.Div,
                      .DivWidth = def.DivWidth,
                      .PileOrder = def.PileOrder};
}

void cGames::Ext(const ExtDef& def) { ext_ = def; }

OrderCode cGames::Order(Cell cell, std::int16_t pile) const {
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
