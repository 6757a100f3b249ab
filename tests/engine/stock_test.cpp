#include "hand_board.h"

// The stock, the waste, and the way back.
namespace varnello::test {
namespace {

GameRow WithStock(StockMove move, StockNum mark = StockNum::None,
                  StockType type = StockType::Closed) {
    GameRow row = Freecells();
    row.Waste = WasteDef{.Piles = 1};
    row.Stock.StartY = 6000;
    row.Stock.StockMove = move;
    row.Stock.StockNum = mark;
    row.Stock.StockType = type;
    return row;
}

TEST(Stock, ClickTurnsTheTopCardOntoTheWaste) {
    for (const StockMove move : {StockMove::Waste, StockMove::Waste1, StockMove::Waste3}) {
        ExpectPlays(WithStock(move), {{"s0 -7H -8H", "7H"},
                                      {"s0 -7H -8H", "8H 7H", "w0 8H 7H"},
                                      {"s0 -7H -8H", "8H 7H undo", "s0 -7H, w0 8H"},
                                      {"s0 -7H -8H", "8H undo redo", "s0 -7H, w0 8H"}});
    }
}

TEST(Stock, RowGoesOnEveryPileAsOneStep) {
    const std::string before = "t1 2C, t3 KD QS, s0 -3C -4D -5H -6S -7H";
    const std::string after = "t0 7H, t1 2C 6S, t2 5H, t3 KD QS 4D, s0 -3C";
    const GameRow row = WithStock(StockMove::Row);
    ExpectPlays(row, {{before, "7H", after},
                      {before, "7H undo"},
                      {before, "7H undo redo", after},
                      {before, "7H 3C", "t0 7H 3C, t1 2C 6S, t2 5H, t3 KD QS 4D"},
                      {before, "7H 3C undo", after},
                      // A row of nothing neither is a step nor joins others.
                      {"t0 9H, t1 8H", "row 9H>r0 row 8H>r1 undo", "t1 8H, r0 9H"}});
    // The moves of autoplay between the cards belong to the step.
    ExpectPlays(row,
                {{"t0 9C, s0 -KD -KS -2H -AH", "AH", "t0 9C, t2 KS, t3 KD, g0 AH 2H"},
                 {"t0 9C, s0 -KD -KS -2H -AH", "AH undo"},
                 {"t0 9C, s0 -KD -KS -2H -AH", "AH undo redo", "t0 9C, t2 KS, t3 KD, g0 AH 2H"}},
                true);
}

TEST(Stock, RedealTurnsTheWasteOver) {
    const std::string before = "t0 AS, s0 -2C, w0 7H 8H 9H";
    const std::string after = "t0 AS, s0 -2C -9H -8H -7H";
    ExpectPlays(WithStock(StockMove::Waste, StockNum::Redeal),
                {{before, "slot", after},  // and sets off no autoplay
                 {before, "slot undo"},
                 {before, "slot undo redo", after},
                 {"s0 -2C", "slot"}},
                true);
    for (const StockNum mark : {StockNum::None, StockNum::Stop}) {
        ExpectPlays(WithStock(StockMove::Waste, mark), {{"w0 7H", "slot"}});
    }
}

TEST(Stock, OpenStockIsDraggedInsteadOfDealt) {
    ExpectPlays(WithStock(StockMove::Waste3, StockNum::Stop, StockType::Open),
                {{"t0 TS, s0 7D 9H", "9H"}, {"t0 TS, s0 7D 9H", "9H>t0", "t0 TS 9H, s0 7D"}});
}

TEST(Stock, WholeWasteGoesBackUnlogged) {
    HandBoard board(WithStock(StockMove::Waste), "s0 -2C, w0 7H 8H");
    board.array.MoveWasteStock();
    EXPECT_EQ(board.Text(), "s0 -2C -8H -7H");
    EXPECT_FALSE(board.trans.UndoPossible());
}

}  // namespace
}  // namespace varnello::test
