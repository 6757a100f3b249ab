#include "engine/rules/stock.h"
#include "board_fixture.h"

// The stock, the waste, and the way back.
namespace varnello::test {
namespace {

class Stock : public BoardTest {
protected:
    void SetUp() override {
        row.Waste = WasteDef{.Piles = 1};
        SelectRow(games, row);
        Autoplay(false);
    }
    void Use(StockMove move, StockNum mark = StockNum::None, StockType type = StockType::Closed) {
        row.Stock.StockMove = move;
        row.Stock.StockNum = mark;
        row.Stock.StockType = type;
        SelectRow(games, row);
    }
    void Undo() {
        std::int16_t speed = 0;
        trans->Undo(speed);
    }
    void Redo() {
        std::int16_t speed = 0;
        trans->Redo(speed);
    }
    std::string Waste() const { return Pile(Cell::Waste, 0); }
    std::string StockPile() const { return Pile(Cell::Stock, 0); }
    GameRow row = Freecells();
};

TEST_F(Stock, ClickTurnsTheTopCardOntoTheWaste) {
    for (const StockMove move : {StockMove::Waste, StockMove::Waste1, StockMove::Waste3}) {
        Use(move);
        array.Clear();
        const PicID lower = Lay(Cell::Stock, 0, "-7H -8H");
        Press(lower);
        EXPECT_EQ(Heard(), "") << "a card below the top doesn't react";
        Press(I16(lower + 1));
        EXPECT_EQ(Waste(), "8H");
        EXPECT_FALSE(gestures.Dragging());
        EXPECT_EQ(Heard(), "move: " + std::to_string(lower + 1) + " 2 0 0 1 3 0 0\n");
        Press(lower);
        EXPECT_EQ(Waste(), "8H 7H");
        EXPECT_EQ(StockPile(), "");
        Undo();
        EXPECT_EQ(StockPile(), "-7H");
        Redo();
        EXPECT_EQ(Waste(), "8H 7H");
    }
}

TEST_F(Stock, RowGoesOnEveryPileWithoutAskingTheRules) {
    Use(StockMove::Row);
    Lay(Cell::Home, 1, "2C");
    Lay(Cell::Home, 3, "KD QS");
    const PicID bottom = Lay(Cell::Stock, 0, "-3C -4D -5H -6S -7H");
    Press(I16(bottom + 4));
    EXPECT_EQ(Tableau(0), "7H");
    EXPECT_EQ(Tableau(1), "2C 6S");
    EXPECT_EQ(Tableau(2), "5H");
    EXPECT_EQ(Tableau(3), "KD QS 4D");
    EXPECT_EQ(StockPile(), "-3C");
    EXPECT_EQ(Heard(),
              "move: 7 0 0 0 1 5 0 0\nmove: 6 0 1 1 1 5 0 0\n"
              "move: 5 0 2 0 1 5 0 0\nmove: 4 0 3 2 1 5 0 0\n");
    Undo();
    EXPECT_EQ(StockPile(), "-3C -4D -5H -6S -7H");
    EXPECT_EQ(Tableau(1) + '/' + Tableau(3), "2C/KD QS");
    EXPECT_EQ(trans->GetTransID(), 0);
    Redo();
    EXPECT_EQ(Tableau(3), "KD QS 4D");
    EXPECT_EQ(trans->GetTransID(), 4);
}

TEST_F(Stock, RowEndsWithTheStock) {
    row.Home.Piles = 8;
    Use(StockMove::Row);
    Press(I16(Lay(Cell::Stock, 0, "-3C -4D -5H -6S -7H") + 4));
    EXPECT_EQ(Tableau(4), "3C");
    EXPECT_EQ(Tableau(5) + Tableau(6) + Tableau(7), "");
    EXPECT_EQ(trans->GetTransID(), 5);
    EXPECT_TRUE(trans->Record(4).InGroup);
    EXPECT_FALSE(trans->Record(5).InGroup) << "the last record ends the step";
}

TEST_F(Stock, RowOfNothingLeavesNoMark) {
    Use(StockMove::Row);
    DealRow(field);
    EXPECT_FALSE(trans->UndoPossible());
    DropOn(Lay(Cell::Home, 0, "9H"), Cell::Res, 0);
    DealRow(field);
    EXPECT_EQ(trans->GetTransID(), 1);
    EXPECT_FALSE(trans->Record(1).InGroup);
    DropOn(Lay(Cell::Home, 1, "8H"), Cell::Res, 1);
    Undo();
    EXPECT_EQ(trans->GetTransID(), 1) << "the bracket is closed again";
}

TEST_F(Stock, RowStepHoldsTheAutoplayMovesBetweenItsCards) {
    Use(StockMove::Row);
    Autoplay(true);
    Lay(Cell::Home, 0, "9C");
    const PicID bottom = Lay(Cell::Stock, 0, "-KD -KS -2H -AH");
    Press(I16(bottom + 3));
    EXPECT_EQ(Heard(),
              "move: 4 0 0 1 1 5 0 0\nmove: 4 3 0 0 0 3 0 0\nsound: AutoPlay\n"
              "move: 3 0 1 0 1 5 0 0\nmove: 3 3 0 1 0 3 0 0\nsound: AutoPlay\n"
              "move: 2 0 2 0 1 5 0 0\nmove: 1 0 3 0 1 5 0 0\n");
    Undo();
    EXPECT_EQ(StockPile(), "-KD -KS -2H -AH");
    EXPECT_EQ(Pile(Cell::Goal, 0), "");
    EXPECT_EQ(trans->GetTransID(), 0);
    Redo();
    EXPECT_EQ(Pile(Cell::Goal, 0), "AH 2H");
    EXPECT_FALSE(trans->RedoPossible());
}

TEST_F(Stock, RedealTurnsTheWasteOver) {
    Use(StockMove::Waste, StockNum::Redeal);
    Lay(Cell::Stock, 0, "-2C");
    Lay(Cell::Waste, 0, "7H 8H 9H");
    Autoplay(true);
    Lay(Cell::Home, 0, "AS");
    gestures.StockClick();
    EXPECT_EQ(StockPile(), "-2C -9H -8H -7H");
    EXPECT_EQ(Waste(), "");
    EXPECT_EQ(Tableau(0), "AS") << "no autoplay";
    EXPECT_EQ(Heard(), "move: 3 1 0 1 2 2 0 1\nmove: 2 1 0 2 2 2 0 1\nmove: 1 1 0 3 2 2 0 1\n");
    Undo();
    EXPECT_EQ(Waste(), "7H 8H 9H");
    EXPECT_EQ(StockPile(), "-2C");
    Redo();
    EXPECT_EQ(StockPile(), "-2C -9H -8H -7H") << "closed again";
    Autoplay(false);
    Press(array.GetTopPicID(Cell::Stock, 0));
    EXPECT_EQ(Waste(), "7H") << "the card that was first on the waste comes first again";
}

TEST_F(Stock, OnlyTheRedealMarkReactsToAClick) {
    Lay(Cell::Waste, 0, "7H");
    for (const StockNum mark : {StockNum::None, StockNum::Stop}) {
        Use(StockMove::Waste, mark);
        gestures.StockClick();
        EXPECT_EQ(Waste(), "7H");
    }
    Use(StockMove::Waste, StockNum::Redeal);
    array.Clear();
    gestures.StockClick();
    EXPECT_FALSE(trans->UndoPossible()) << "nothing to turn over";
}

TEST_F(Stock, OpenStockIsDraggedInsteadOfDealt) {
    Use(StockMove::Waste3, StockNum::Stop, StockType::Open);
    Lay(Cell::Home, 0, "TS");
    const PicID card = Lay(Cell::Stock, 0, "7D 9H");
    DropOn(I16(card + 1), Cell::Home, 0);
    EXPECT_EQ(Tableau(0), "TS 9H");
    EXPECT_EQ(StockPile(), "7D");
    Undo();
    EXPECT_EQ(StockPile(), "7D 9H") << "and comes back open";
}

TEST_F(Stock, WholeWasteGoesBackUnlogged) {
    Lay(Cell::Stock, 0, "-2C");
    Lay(Cell::Waste, 0, "7H 8H");
    array.MoveWasteStock();
    EXPECT_EQ(StockPile(), "-2C -8H -7H");
    EXPECT_FALSE(trans->UndoPossible());
}

}  // namespace
}  // namespace varnello::test
