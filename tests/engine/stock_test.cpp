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

TEST(Stock, WholeWasteGoesBackUnlogged) {
    HandBoard board(WithStock(StockMove::Waste), "s0 -2C, w0 7H 8H");
    board.array.MoveWasteStock();
    EXPECT_EQ(board.Text(), "s0 -2C -8H -7H");
    EXPECT_FALSE(board.trans.UndoPossible());
}

}  // namespace
}  // namespace varnello::test
