#include "board_checks.h"
#include "hand_board.h"

// Press, drag and release.
namespace varnello::test {
namespace {

// A replay's tick, a shortcut or a click on the stock may move cards while the mouse holds one. The
// board must stay whole, whatever becomes of the drag.
TEST(HeldCards, MayBeMovedCoveredOrUncoveredMeanwhile) {
    GameRow row = Freecells();
    row.Ext.TotalCards = 3;
    row.Home.Order = OrderCode::DownAny;
    row.Home.MultiOrder = OrderCode::DownSuit;
    row.Waste = WasteDef{.Piles = 1, .StartY = 6000};
    row.Stock.StockNum = StockNum::Redeal;
    const struct {
        std::string piles, before, held, meanwhile, target, after;
    } cases[] = {
        {"t0 TS, t1 JD, r0 9H", "9H>t0 undo", "TS", "redo", "2500,3000", "t0 TS 9H, t1 JD"},
        {"t0 TS, t1 TC, t2 9H", "9H>t0", "9H", "undo", "2500,3000", "t0 TS, t1 TC, t2 9H"},
        {"t0 QS, t1 KD, r0 JS", "JS>t0", "QS", "undo", "2500,3000", "t0 QS, t1 KD, r0 JS"},
        {"t0 TS, w0 8C 9H", "", "9H", "slot", "1000,3000", "t0 TS, s0 -9H -8C"},
        // What was a group no longer is one.
        {"t0 QS JH, t1 JS, t2 KC", "JH>r0 JS>t0", "QS", "undo undo", "4000,3000",
         "t0 QS JH, t1 JS, t2 KC"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.piles);
        HandBoard board(row, c.piles);
        board.games.Ext(
            {.BaseX = 11900, .TotalCards = I16(int(board.table.VisibleCards().size()))});
        board.Do(c.before);
        board.Press(c.held);
        EXPECT_TRUE(board.gestures.Dragging());
        board.Do(c.meanwhile);
        const std::size_t comma = c.target.find(',');
        board.Drag(c.held, std::stod(c.target), std::stod(c.target.substr(comma + 1)));
        board.Release(c.held);
        EXPECT_EQ(board.Text(), c.after);
        EXPECT_EQ(BoardFault(board.array, board.table, board.games), "");
    }
}

}  // namespace
}  // namespace varnello::test
