#include "board_checks.h"
#include "board_fixture.h"

// The mouse holds a card while a replay's tick, a shortcut or a click on the stock moves cards. The
// board must stay whole, whatever becomes of the drag.
namespace varnello::test {
namespace {

class HeldCard : public BoardTest {
protected:
    void Use(int cards) {
        row.Ext.TotalCards = I16(cards);
        SelectRow(games, row);
        Autoplay(false);
    }
    void Undo() {
        std::int16_t speed = 0;
        trans->Undo(speed);
    }
    void Redo() {
        std::int16_t speed = 0;
        trans->Redo(speed);
    }
    std::string Fault() const { return BoardFault(array, table, games); }
    GameRow row = Freecells();
};

TEST_F(HeldCard, IsCoveredMeanwhile) {
    Use(3);
    const PicID ten = Lay(Cell::Home, 0, "TS");
    Lay(Cell::Home, 1, "JD");
    DropOn(Lay(Cell::Res, 0, "9H"), Cell::Home, 0);
    Undo();
    Press(ten);
    Redo();
    Drag(ten, 2500, 3000);
    gestures.MouseUp(ten);
    EXPECT_EQ(Fault(), "");
}

TEST_F(HeldCard, IsMovedMeanwhile) {
    Use(3);
    Lay(Cell::Home, 0, "TS");
    Lay(Cell::Home, 1, "TC");
    const PicID nine = Lay(Cell::Home, 2, "9H");
    DropOn(nine, Cell::Home, 0);
    Press(nine);
    Undo();
    Drag(nine, 2500, 3000);
    gestures.MouseUp(nine);
    EXPECT_EQ(Fault(), "");
}

TEST_F(HeldCard, LosesTheCardsAboveIt) {
    Use(3);
    const PicID queen = Lay(Cell::Home, 0, "QS");
    Lay(Cell::Home, 1, "KD");
    DropOn(Lay(Cell::Res, 0, "JH"), Cell::Home, 0);
    Press(queen);
    ASSERT_TRUE(gestures.Dragging());
    Undo();
    Drag(queen, 2500, 3000);
    gestures.MouseUp(queen);
    EXPECT_EQ(Fault(), "");
}

TEST_F(HeldCard, IsTurnedBackIntoTheStock) {
    row.Waste = WasteDef{.Piles = 1, .StartY = 6000};
    row.Stock.StockNum = StockNum::Redeal;
    Use(3);
    Lay(Cell::Home, 0, "TS");
    const PicID eight = Lay(Cell::Waste, 0, "8C 9H");
    Press(I16(eight + 1));
    gestures.StockClick();
    Drag(I16(eight + 1), 1000, 3000);
    gestures.MouseUp(I16(eight + 1));
    EXPECT_EQ(Fault(), "");
}

}  // namespace
}  // namespace varnello::test
