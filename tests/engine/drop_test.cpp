#include "board_fixture.h"

// Where a dropped card goes. Tableau piles lie at x 1000, 2500, 4000, 5500 and y 3000, reserves at
// the same x and y 0, foundations at x 7000 and on and y 0. A card is 1065 by 1440.
namespace varnello::test {
namespace {

class Drops : public BoardTest {
protected:
    void SetUp() override {
        SelectRow(games, row);
        Autoplay(false);
    }
    void Use(const GameRow& changed) { SelectRow(games, changed); }
    GameRow row = Freecells();
};

TEST_F(Drops, RedNineGoesOnBlackTenOnly) {
    Lay(Cell::Home, 0, "TS");
    Lay(Cell::Home, 1, "TD");
    const PicID nine = Lay(Cell::Home, 2, "9H");
    DropOn(nine, Cell::Home, 1);
    EXPECT_EQ(Tableau(2), "9H");
    EXPECT_EQ(table.Card(nine).Left, 4000) << "it goes back";
    DropOn(nine, Cell::Home, 0);
    EXPECT_EQ(Tableau(0), "TS 9H");
    EXPECT_EQ(table.Card(nine).Top, 3250);
}

TEST_F(Drops, CentreBeatsOverlap) {
    Lay(Cell::Home, 0, "TS");
    Lay(Cell::Home, 1, "TC");
    const PicID nine = Lay(Cell::Home, 2, "9H");
    Drop(nine, 2000, 3000);  // overlaps pile 0 by 65, its centre lies on pile 1
    EXPECT_EQ(Tableau(1), "TC 9H");
}

TEST_F(Drops, LowerPileWinsAmongOverlaps) {
    Lay(Cell::Home, 0, "TS");
    Lay(Cell::Home, 1, "TC");
    const PicID nine = Lay(Cell::Home, 2, "9H");
    Drop(nine, 1750, 3000);  // centre at 2282, between the piles, and both are reached
    EXPECT_EQ(Tableau(0), "TS 9H");
}

TEST_F(Drops, NarrowTargetOfALaterKindBeatsWideTableau) {
    row.Home.StartY = 1400;  // the tableau's top row overlaps the reserves
    Use(row);
    Lay(Cell::Home, 0, "TS");
    const PicID nine = Lay(Cell::Home, 2, "9H");
    Drop(nine, 1000, 100);
    EXPECT_EQ(Pile(Cell::Res, 0), "9H");
}

TEST_F(Drops, TableauBeatsReserveBeatsFoundationInOnePass) {
    row.Home.StartY = 0;
    row.Goal.StartX = row.Res.StartX;
    Use(row);
    const PicID two = Lay(Cell::Waste, 0, "2H");
    Lay(Cell::Home, 0, "3S");
    Lay(Cell::Goal, 0, "AH");
    Drop(two, 1000, 0);
    EXPECT_EQ(Tableau(0), "3S 2H");
    Lay(Cell::Goal, 1, "AD");
    DropOn(Lay(Cell::Waste, 0, "2D"), Cell::Goal, 1, 0, 300);  // pile 1 is empty and takes it
    EXPECT_EQ(Tableau(1), "2D");
    Lay(Cell::Home, 2, "9H");
    Lay(Cell::Goal, 2, "AC");
    const PicID third = Lay(Cell::Waste, 0, "2C");
    DropOn(third, Cell::Goal, 2);
    EXPECT_EQ(Pile(Cell::Res, 2), "2C");
    Drop(third, 4000, 40);  // from the reserve, which holds the card itself
    EXPECT_EQ(Pile(Cell::Goal, 2), "AC 2C");
}

struct EdgeCase {
    int reserveX, pileX, pileY, left, top;
    bool narrow;
};

void PrintTo(const EdgeCase& edge, std::ostream* out) { *out << edge.left << ' ' << edge.top; }

// The card overlaps both a reserve, with its top at 3000, and a tableau pile that its centre isn't
// on. Only a narrow hit takes it to the reserve.
class NarrowEdges : public Drops, public ::testing::WithParamInterface<EdgeCase> {};

TEST_P(NarrowEdges, AreStrictAndTheCentreRoundsToEven) {
    const EdgeCase c = GetParam();
    row.Res = {.Piles = 1, .StartX = I16(c.reserveX - 1790), .StartY = 3000};
    row.Home.Piles = 1;
    row.Home.StartX = I16(c.pileX - 1790);
    row.Home.StartY = I16(c.pileY);
    Use(row);
    Lay(Cell::Home, 0, "TS");
    Drop(Lay(Cell::Waste, 0, "9H"), c.left, c.top);
    EXPECT_EQ(Pile(Cell::Res, 0), c.narrow ? "9H" : "");
    EXPECT_EQ(Tableau(0), c.narrow ? "TS" : "TS 9H");
}

INSTANTIATE_TEST_SUITE_P(Left, NarrowEdges,
                         ::testing::Values(EdgeCase{3000, 3100, 3800, 2467, 3000, false},
                                           EdgeCase{3000, 3100, 3800, 2468, 3000, false},
                                           EdgeCase{3000, 3100, 3800, 2469, 3000, true}));
INSTANTIATE_TEST_SUITE_P(Right, NarrowEdges,
                         ::testing::Values(EdgeCase{3001, 2500, 3800, 3532, 3000, true},
                                           EdgeCase{3001, 2500, 3800, 3533, 3000, false},
                                           EdgeCase{3001, 2500, 3800, 3534, 3000, false}));
INSTANTIATE_TEST_SUITE_P(TopAndBottom, NarrowEdges,
                         ::testing::Values(EdgeCase{3000, 3000, 3600, 3000, 2280, false},
                                           EdgeCase{3000, 3000, 3600, 3000, 2281, true},
                                           EdgeCase{3000, 3000, 2500, 3000, 3719, true},
                                           EdgeCase{3000, 3000, 2500, 3000, 3720, false}));

TEST_F(Drops, OverlapIsStrict) {
    row.Home.Piles = 1;
    row.Home.StartX = 4000 - 1790;
    row.Res = {};
    Use(row);
    Lay(Cell::Home, 0, "TS");
    const PicID nine = Lay(Cell::Waste, 0, "9H");
    const std::pair<int, int> touching[] = {{2935, 3000}, {5065, 3000}, {4000, 1560}, {4000, 4440}};
    for (const auto& [left, top] : touching) {
        Drop(nine, left, top);
        EXPECT_EQ(Tableau(0), "TS") << left << ' ' << top;
    }
    const std::pair<int, int> inside[] = {{2936, 3000}, {5064, 3000}, {4000, 1561}, {4000, 4439}};
    for (const auto& [left, top] : inside) {
        Drop(nine, left, top);
        EXPECT_EQ(Tableau(0), "TS 9H") << left << ' ' << top;
        std::int16_t speed = 0;
        trans->Undo(speed);
    }
}

TEST_F(Drops, EmptyPileIsReachedOneStepBeforeItsSlot) {
    row.Home.Piles = 1;
    Use(row);
    const PicID card = Lay(Cell::Waste, 0, "9H");
    Drop(card, 1000, 4190);  // on the slot, but below a card at position -1
    EXPECT_EQ(Tableau(0), "");
    Drop(card, 1000, 4189);
    EXPECT_EQ(Tableau(0), "9H");
}

}  // namespace
}  // namespace varnello::test
