#include "board_fixture.h"

// Where card places lie on the table, in twips.
namespace varnello::test {
namespace {

cGames Game(std::string_view name) {
    cGames games;
    SelectGame(games, name);
    return games;
}

Place At(Cell cell, int pile, int pos) { return {cell, I16(pile), I16(pos)}; }

TEST(Centring, RoundsHalvesToEven) {
    const cGames cone = Game("Cone Freecell");  // its board begins at 2547.5
    EXPECT_EQ(cone.GetCordX(At(Cell::Home, 0, 0), 0), 2548);
    EXPECT_EQ(cone.GetCordX(At(Cell::Home, 1, 0), 0), 3712);
    EXPECT_EQ(cone.GetCordX(At(Cell::Home, 2, 0), 0), 4878);
    const cGames freecell = Game("Freecell");
    for (int pile = 0; pile < 8; ++pile) {
        EXPECT_EQ(freecell.GetCordX(At(Cell::Home, pile, 0), 0), 3130 + 1165 * pile);
    }
    EXPECT_EQ(freecell.GetCordX(At(Cell::Res, 0, 0), 0), 2980);
}

TEST(Fan, EmptyPileLiesOneStepBeforeItsSlot) {
    EXPECT_EQ(Game("Freecell").GetCordY(At(Cell::Home, 0, -1), 0), 200 + 1640 - 250);
    EXPECT_EQ(Game("Avenue").GetCordX(At(Cell::Home, 0, -1), 0), 2530 + 1265 - 180);
}

struct HeapCase {
    int pos, step;
};

class Heap : public ::testing::TestWithParam<HeapCase> {};

TEST_P(Heap, GrowsUpAndLeftEverMoreRarely) {
    const auto [pos, step] = GetParam();
    const cGames games = Game("Cascade");  // stock at (3080, 200), waste at (3080, 1840)
    EXPECT_EQ(games.GetCordX(At(Cell::Stock, 0, pos), 0), 3080 - step);
    EXPECT_EQ(games.GetCordY(At(Cell::Stock, 0, pos), 0), 200 - step);
    EXPECT_EQ(games.GetCordX(At(Cell::Waste, 0, pos), 0), 3080 - step);
    EXPECT_EQ(games.GetCordY(At(Cell::Waste, 0, pos), 0), 1840 - step);
}

INSTANTIATE_TEST_SUITE_P(Steps, Heap,
                         ::testing::Values(HeapCase{0, 0}, HeapCase{2, 0}, HeapCase{3, 30},
                                           HeapCase{12, 30}, HeapCase{13, 60}, HeapCase{30, 60},
                                           HeapCase{31, 90}, HeapCase{56, 90}, HeapCase{57, 120},
                                           HeapCase{90, 120}, HeapCase{91, 150}));

TEST(HangingFoundations, AllButTheFirstCardLieLower) {
    const cGames games = Game("Stalactites");
    EXPECT_EQ(games.GetCordY(At(Cell::Goal, 1, 0), 0), 200);
    EXPECT_EQ(games.GetCordY(At(Cell::Goal, 1, 1), 0), 450);
    EXPECT_EQ(games.GetCordY(At(Cell::Goal, 1, 12), 0), 450);
    EXPECT_EQ(games.GetCordY(At(Cell::Res, 1, 1), 0), 200);
    EXPECT_EQ(Game("Freecell").GetCordY(At(Cell::Goal, 1, 1), 0), 200);
}

TEST(PileOrders, RunRowsAndCardsTheirOwnWay) {
    struct Case {
        const char* game;
        Place place;
        int x, y;
    };
    const Case cases[] = {
        // Down, further rows below.
        {"Carnival", At(Cell::Home, 5, 0), 2830 + 1465 + 5 * 1165, 200},
        {"Carnival", At(Cell::Home, 6, 3), 2830 + 1465, 200 + 4000 + 3 * 250},
        // Down, the second row goes on to the right.
        {"SeaTowers", At(Cell::Goal, 1, 0), 1965 + 1165, 200},
        {"SeaTowers", At(Cell::Goal, 2, 5), 1965 + 9320, 200},
        {"SeaTowers", At(Cell::Goal, 3, 0), 1965 + 9320 + 1165, 200},
        // Rows of piles, cards to the right; the board begins at 2092.5.
        {"Fancell", At(Cell::Home, 2, 1), 2092 + 2 * 3765 + 180, 50 + 1540},
        {"Fancell", At(Cell::Home, 3, 0), 2092, 50 + 1540 + 1490},
        // Columns of piles, cards to the right.
        {"Avenue", At(Cell::Home, 3, 0), 2530 + 1265, 200 + 500 + 3 * 1540},
        {"Avenue", At(Cell::Home, 4, 2), 2530 + 1265 + 5210 + 2 * 180, 200 + 500},
    };
    for (const Case& c : cases) {
        const cGames games = Game(c.game);
        EXPECT_EQ(games.GetCordX(c.place, 0), c.x) << c.game << ' ' << c.place.Pile;
        EXPECT_EQ(games.GetCordY(c.place, 0), c.y) << c.game << ' ' << c.place.Pile;
    }
}

class ClosedFan : public BoardTest {
protected:
    void Play(PileOrder order) {
        GameRow row = Freecells();
        row.Home.PileOrder = order;
        row.Home.Div = 2;
        row.Home.DivWidth = 2000;
        SelectRow(games, row);
        Lay(Cell::Home, 1, "-2H -3H -4H 5H 6H");
    }
    const KesCard& At(int pos) const { return table.Card(array.GetPicID(Cell::Home, 1, pos)); }
};

TEST_F(ClosedFan, ClosedCardsLieCloser) {
    Play(PileOrder::Down);
    EXPECT_EQ(At(2).Top, 3000 + 120);
    EXPECT_EQ(At(3).Top, 3000 + 180);
    EXPECT_EQ(At(4).Top, 3000 + 180 + 250);
    EXPECT_EQ(array.ClosedCards(1), 3);
    EXPECT_EQ(array.ClosedCards(0), 0);
}

TEST_F(ClosedFan, AlsoToTheRightInRows) {
    Play(PileOrder::RightRows);
    EXPECT_EQ(At(4).Left, 2500 + 180 + 250);
    EXPECT_EQ(At(4).Top, 3000);
}

TEST_F(ClosedFan, ButNotInColumnsOrOnOneLine) {
    Play(PileOrder::RightColumns);
    EXPECT_EQ(At(4).Left, 1000 + 4 * 250);
    EXPECT_EQ(At(4).Top, 4500);
    Play(PileOrder::DownOneLine);
    EXPECT_EQ(array.GetCordY({Cell::Home, 1, 4}), 3000 + 4 * 250);
}

TEST_F(ClosedFan, AnOpenedCardMovesNothingAboveIt) {
    Play(PileOrder::Down);
    table.Card(array.GetPicID(Cell::Home, 1, 2)).FaceMode = FaceMode::Open;
    EXPECT_EQ(At(4).Top, 3000 + 180 + 250);
    EXPECT_EQ(array.GetCordY({Cell::Home, 1, 5}), 3000 + 2 * 60 + 3 * 250);
}

}  // namespace
}  // namespace varnello::test
