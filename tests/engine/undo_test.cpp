#include "board_fixture.h"
#include "engine/rules/stock.h"

// Undo and redo: what comes back, how fast, and with which sound.
namespace varnello::test {
namespace {

class Undos : public BoardTest {
protected:
    void SetUp() override {
        row.Stock.StockMove = StockMove::Row;
        SelectRow(games, row);
        Autoplay(false);
    }
    /// A move, a row of four cards as one step, and another move.
    void PlayWithARow() {
        Lay(Cell::Stock, 0, "-2C -3C -4C -5C");
        const PicID nine = Lay(Cell::Home, 0, "9H 8H");
        DropOn(I16(nine + 1), Cell::Res, 0);
        DealRow(field);
        DropOn(array.GetTopPicID(Cell::Home, 0), Cell::Res, 1);
        out = {};
    }
    /// Speeds of the moves recorded since the last call, and an "s" for each sound before its move.
    std::string Speeds() {
        std::string speeds;
        std::istringstream lines(Heard());
        for (std::string line; std::getline(lines, line);) {
            std::istringstream words(line);
            std::string kind, id, cell, pile, pos, mode, speed;
            words >> kind >> id >> cell >> pile >> pos >> mode >> speed;
            speeds += kind == "sound:" ? "s" : speed + ' ';
        }
        return speeds;
    }
    bool Undo(std::int16_t speed = 0) { return trans->Undo(speed); }
    bool Redo(std::int16_t speed = 0) { return trans->Redo(speed); }
    GameRow row = Freecells();
};

TEST_F(Undos, AboveSpeedFourThereIsASound) {
    DropOn(Lay(Cell::Home, 0, "9H"), Cell::Res, 0);
    out = {};
    Undo(5);
    EXPECT_EQ(Heard(), "sound: Undo\nmove: 0 0 0 0 4 5 0 0\n");
    Redo(5);
    EXPECT_EQ(Heard(), "sound: Redo\nmove: 0 4 0 0 4 5 0 0\n");
    Undo(4);
    EXPECT_EQ(Heard(), "move: 0 0 0 0 4 4 0 0\n");
    Redo(4);
    EXPECT_EQ(Heard(), "move: 0 4 0 0 4 4 0 0\n");
}

TEST_F(Undos, StepOfSeveralRecordsSlowsOnlyItsFirstCard) {
    PlayWithARow();
    Undo(7);
    EXPECT_EQ(Speeds(), "s7 ");
    std::int16_t speed = 7;
    trans->Undo(speed);
    EXPECT_EQ(Speeds(), "s7 4 4 4 ");
    EXPECT_EQ(speed, 4) << "the caller's speed changes too";
    speed = 7;
    trans->Redo(speed);
    EXPECT_EQ(Speeds(), "s7 4 4 4 ");
    EXPECT_EQ(speed, 4);
}

TEST_F(Undos, AllOfThemStayQuickAfterAStepOfSeveralRecords) {
    PlayWithARow();
    trans->UndoAll(7);
    EXPECT_EQ(Speeds(), "s7 s7 4 4 4 4 ");
    trans->RedoAll(7);
    EXPECT_EQ(Speeds(), "s7 s7 4 4 4 4 ");
    trans->UndoAll(2);
    EXPECT_EQ(Speeds(), "2 2 4 4 4 4 ");
    trans->RedoAll(1);
    EXPECT_EQ(Speeds(), "1 1 4 4 4 4 ");
}

TEST_F(Undos, EndsOfTheLogReportThatNothingWasDone) {
    DropOn(Lay(Cell::Home, 0, "9H"), Cell::Res, 0);
    EXPECT_FALSE(Redo());
    EXPECT_TRUE(Undo());
    EXPECT_EQ(trans->GetTransID(), 0);
    EXPECT_FALSE(Undo(7));
    EXPECT_TRUE(Redo());
    EXPECT_FALSE(Redo(7));
    EXPECT_EQ(Heard().find("sound"), std::string::npos);
}

TEST_F(Undos, StackComesBackWhole) {
    Lay(Cell::Home, 1, "KS");
    const PicID queen = Lay(Cell::Home, 0, "2C QH JS TD");
    DropOn(I16(queen + 1), Cell::Home, 1);
    out = {};
    Undo(6);
    EXPECT_EQ(Heard(), "sound: Undo\nmove: 2 0 0 1 4 6 2 0\n");
    EXPECT_EQ(Tableau(0), "2C QH JS TD");
    EXPECT_EQ(Tableau(1), "KS");
    Redo(6);
    EXPECT_EQ(Tableau(1), "KS QH JS TD");
    EXPECT_EQ(Tableau(0), "2C");
}

TEST_F(Undos, CardBelowClosesBeforeTheMovedCardFlies) {
    const PicID below = Lay(Cell::Home, 0, "-2C QH");
    DropOn(I16(below + 1), Cell::Res, 0);
    ASSERT_EQ(table.Card(below).FaceMode, FaceMode::Open);
    int closedSteps = 0;
    surface.onFlight = [&] { closedSteps += table.Card(below).FaceMode == FaceMode::Closed; };
    Undo(3);
    EXPECT_EQ(closedSteps, 3);
    EXPECT_EQ(Tableau(0), "-2C QH");
    EXPECT_EQ(table.Card(I16(below + 1)).Top, 3060);
    Redo(3);
    EXPECT_EQ(Tableau(0), "2C");
}

TEST_F(Undos, TopsAndGridFollow) {
    PlayWithARow();
    trans->UndoAll(0);
    EXPECT_EQ(Pile(Cell::Stock, 0), "-2C -3C -4C -5C");
    EXPECT_EQ(Tableau(0), "9H 8H");
    for (int pile = 1; pile < 4; ++pile) EXPECT_EQ(array.GetTop(Cell::Home, pile), -1);
    for (int pile = 0; pile < 4; ++pile) EXPECT_EQ(array.GetPicID(Cell::Res, pile, 0), kNoCard);
    EXPECT_EQ(trans->TransTop(), 6);
    trans->RedoAll(0);
    EXPECT_EQ(Pile(Cell::Res, 0) + Pile(Cell::Res, 1), "8H5C");
    EXPECT_EQ(Tableau(3), "2C");
}

TEST_F(Undos, CardTakenFromAFoundationGoesBackThere) {
    const PicID ace = Lay(Cell::Goal, 0, "AH 2H");
    DropOn(I16(ace + 1), Cell::Res, 0);
    Undo();
    EXPECT_EQ(Pile(Cell::Goal, 0), "AH 2H");
}

}  // namespace
}  // namespace varnello::test
