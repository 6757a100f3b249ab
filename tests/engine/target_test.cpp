#include "board_fixture.h"

// What piles, reserves and foundations take.
namespace varnello::test {
namespace {

class Targets : public BoardTest {
protected:
    void SetUp() override {
        SelectRow(games, row);
        Autoplay(false);
    }
    void Use(const GameRow& changed) { SelectRow(games, changed); }
    GameRow row = Freecells();
};

TEST_F(Targets, EmptyPileTakesWhatTheGameSays) {
    const std::tuple<int, bool, bool> cases[] = {
        {-1, true, true}, {12, true, false}, {11, false, true}, {-10, false, false}};
    for (const auto& [empty, king, queen] : cases) {
        row.Home.EmptyNum = I16(empty);
        Use(row);
        const PicID kings = Lay(Cell::Waste, 0, "KH");
        DropOn(kings, Cell::Home, 0);
        EXPECT_EQ(table.Card(kings).Loc.Cell == Cell::Home, king) << empty;
        const PicID queens = Lay(Cell::Waste, 1, "QS");
        DropOn(queens, Cell::Home, 1);
        EXPECT_EQ(table.Card(queens).Loc.Cell == Cell::Home, queen) << empty;
        array.Clear();
    }
}

TEST_F(Targets, EmptyPileLooksAtTheBottomOfAStack) {
    row.Home.EmptyNum = kKing;
    Use(row);
    const PicID king = Lay(Cell::Home, 0, "2C KH QS JH");
    DropOn(I16(king + 2), Cell::Home, 1);
    EXPECT_EQ(Tableau(1), "");
    DropOn(I16(king + 1), Cell::Home, 1);
    EXPECT_EQ(Tableau(1), "KH QS JH");
    EXPECT_EQ(Tableau(0), "2C");
}

TEST_F(Targets, OwnPileIsSkippedButItsNeighbourIsFound) {
    row.Home.PileWidth = 500;  // neighbours overlap
    row.Home.Order = OrderCode::Anything;
    Use(row);
    Lay(Cell::Home, 1, "2C");
    const PicID card = Lay(Cell::Home, 0, "TS 9H");
    Drop(I16(card + 1), 1000, 3250);
    EXPECT_EQ(Tableau(1), "2C 9H");
    const PicID alone = array.GetTopPicID(Cell::Home, 0);
    Drop(alone, -3000, 9000);
    EXPECT_EQ(table.Card(alone).Left, 1000);
}

TEST_F(Targets, StackNeverLandsOnReserveOrFoundation) {
    const PicID two = Lay(Cell::Home, 0, "2H AS");
    Lay(Cell::Goal, 0, "AH");
    DropOn(two, Cell::Res, 0);
    DropOn(two, Cell::Goal, 0);
    EXPECT_EQ(Tableau(0), "2H AS");
    EXPECT_EQ(Heard(), "");
}

TEST_F(Targets, ReserveTakesOneCardFromAnywhere) {
    const PicID ace = Lay(Cell::Goal, 0, "AH");
    DropOn(ace, Cell::Res, 1);
    EXPECT_EQ(Pile(Cell::Res, 1), "AH");
    const PicID other = Lay(Cell::Home, 0, "9C");
    DropOn(other, Cell::Res, 1);
    EXPECT_EQ(Tableau(0), "9C");
    DropOn(ace, Cell::Res, 2);
    DropOn(other, Cell::Res, 1);
    EXPECT_EQ(Pile(Cell::Res, 1) + Pile(Cell::Res, 2), "9CAH");
}

TEST_F(Targets, EmptyFoundationTakesTheBaseRank) {
    const PicID seven = Lay(Cell::Home, 0, "7H");
    DropOn(seven, Cell::Goal, 3);
    EXPECT_EQ(Pile(Cell::Goal, 3), "");
    games.GoalBase(6);
    DropOn(seven, Cell::Goal, 3);
    EXPECT_EQ(Pile(Cell::Goal, 3), "7H");
}

TEST_F(Targets, FullFoundationIsPassedOver) {
    row.Goal.AK = 1;
    Use(row);
    Lay(Cell::Goal, 0, "AH 2H 3H 4H 5H 6H 7H 8H 9H TH JH QH KH");
    const PicID ace = Lay(Cell::Home, 0, "AH+");
    DropOn(ace, Cell::Goal, 0);
    EXPECT_EQ(Tableau(0), "AH+");
}

TEST_F(Targets, FoundationsOfTwoKindsInOneGame) {
    row.Ext.Tag = Tag::FreecellAK;
    Use(row);
    Lay(Cell::Goal, 0, "AS");
    Lay(Cell::Goal, 2, "KS");
    const PicID queen = Lay(Cell::Home, 0, "QS");
    const PicID two = Lay(Cell::Home, 1, "2S");
    DropOn(queen, Cell::Goal, 0);
    DropOn(two, Cell::Goal, 2);
    EXPECT_EQ(Tableau(0) + Tableau(1), "QS2S");
    DropOn(queen, Cell::Goal, 2);
    DropOn(two, Cell::Goal, 0);
    EXPECT_EQ(Pile(Cell::Goal, 2), "KS QS");
    EXPECT_EQ(Pile(Cell::Goal, 0), "AS 2S");
}

TEST_F(Targets, RunGamesTakeNothingOnFoundations) {
    row.Ext.Tag = Tag::Spider;
    Use(row);
    const PicID ace = Lay(Cell::Home, 0, "AS");
    DropOn(ace, Cell::Goal, 0);
    EXPECT_EQ(Tableau(0), "AS");
}

TEST_F(Targets, StockAndWasteAreNoTargets) {
    row.Home.Order = OrderCode::Anything;
    row.Stock.StartX = 3210;
    row.Stock.StartY = 6000;
    row.Waste = WasteDef{.Piles = 1, .StartX = 3210, .StartY = 8000};
    Use(row);
    const PicID card = Lay(Cell::Home, 0, "9H");
    Drop(card, 5000, 6000);
    Drop(card, 5000, 8000);
    EXPECT_EQ(Tableau(0), "9H");
}

TEST_F(Targets, StackIsOneMoveAndOneRecord) {
    Lay(Cell::Home, 1, "TS");
    const PicID nine = Lay(Cell::Home, 0, "KC 9H 8S 7H");
    DropOn(I16(nine + 1), Cell::Home, 1);
    EXPECT_EQ(Heard(), "move: 2 0 1 1 0 3 2 0\n");
    EXPECT_EQ(Tableau(1), "TS 9H 8S 7H");
    EXPECT_EQ(trans->GetTransID(), 1);
    EXPECT_EQ(trans->Record(1).mCards, 2);
}

}  // namespace
}  // namespace varnello::test
