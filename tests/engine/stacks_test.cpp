#include "engine/rules/stacks.h"
#include "board_fixture.h"

// Which cards can be picked up, and how many at once.
namespace varnello::test {
namespace {

struct LimitCase {
    int freeReserves, emptyPiles, extra;
};

class StackLimit : public BoardTest, public ::testing::WithParamInterface<LimitCase> {};

TEST_P(StackLimit, GoesByFreePlaces) {
    const auto [freeReserves, emptyPiles, extra] = GetParam();
    SelectRow(games, Freecells(emptyPiles + 1));
    for (int i = freeReserves; i < 4; ++i) Lay(Cell::Res, i, "2C");
    // A run one card longer than the limit, and a broken one below it.
    const PicID first = Lay(Cell::Home, 0, "9S KH QS JH TS 9H 8S 7H 6S 5H 4S 3H 2S AH");
    const PicID king = I16(first + 1);
    EXPECT_EQ(MaxExtraCards(field), extra);
    const int carried = 12;  // above the king
    for (int pos = 0; pos <= carried; ++pos) {
        EXPECT_EQ(PicksUp(I16(king + pos)), carried - pos <= extra) << pos;
    }
    EXPECT_FALSE(PicksUp(first)) << "a broken run";
}

INSTANTIATE_TEST_SUITE_P(Table, StackLimit,
                         ::testing::Values(LimitCase{0, 0, 0}, LimitCase{1, 0, 1},
                                           LimitCase{0, 3, 3}, LimitCase{4, 1, 9},
                                           LimitCase{4, 2, 14}, LimitCase{4, 0, 4},
                                           LimitCase{2, 2, 8}));

class Stacks : public BoardTest {
protected:
    void SetUp() override { SelectRow(games, row); }
    void FillReserves() {
        for (int i = 0; i < 4; ++i) Lay(Cell::Res, i, "2C");
    }
    GameRow row = Freecells(1);
};

TEST_F(Stacks, OnlyThreeFamiliesAreLimited) {
    FillReserves();
    const PicID king = Lay(Cell::Home, 0, "KH QS JH TS");
    const std::pair<Tag, bool> families[] = {{Tag::Freecell, true},
                                             {Tag::FreecellAK, true},
                                             {Tag::Penguin, true},
                                             {Tag::Spider, false},
                                             {Tag::Stala, false}};
    for (const auto& [tag, limited] : families) {
        row.Ext.Tag = tag;
        SelectRow(games, row);
        EXPECT_EQ(PicksUp(king), !limited) << static_cast<int>(tag);
    }
}

TEST_F(Stacks, GameWithoutReservesHasNoFreePlaces) {
    row.Res = {};
    SelectRow(games, row);
    Lay(Cell::Home, 0, "KH");
    EXPECT_EQ(EmptyPiles(field, Cell::Res), 0);
    EXPECT_EQ(MaxExtraCards(field), 0);
}

TEST_F(Stacks, GroupsMayFollowAnOrderOfTheirOwn) {
    row.Home.Order = OrderCode::DownAny;
    row.Home.MultiOrder = OrderCode::DownSuit;
    SelectRow(games, row);
    const PicID king = Lay(Cell::Home, 0, "KH QS JS TS");
    EXPECT_EQ(games.MultiOrder(), OrderCode::DownSuit);
    EXPECT_FALSE(PicksUp(king));
    EXPECT_TRUE(PicksUp(I16(king + 1)));
    row.Home.MultiOrder = OrderCode::Nothing;
    SelectRow(games, row);
    EXPECT_TRUE(PicksUp(king)) << "without one the tableau's order counts";
}

TEST_F(Stacks, RanksGoRoundInTheTableauOnlyIfItSaysSo) {
    row.Home.Order = OrderCode::DownSuit;
    SelectRow(games, row);
    const PicID two = Lay(Cell::Home, 0, "2H AH KH");
    EXPECT_FALSE(PicksUp(two));
    row.Home.AK = kTrue;
    SelectRow(games, row);
    EXPECT_TRUE(PicksUp(two));
}

TEST_F(Stacks, ClosedCardIsNotPickedUpButForTheTop) {
    const PicID queen = Lay(Cell::Home, 0, "-QS JH");
    EXPECT_FALSE(PicksUp(queen));
    const PicID closedTop = Lay(Cell::Home, 0, "-TS");
    EXPECT_TRUE(PicksUp(closedTop));
}

TEST_F(Stacks, GameMayForbidGroups) {
    row.Home.MultiMove = 0;
    SelectRow(games, row);
    const PicID queen = Lay(Cell::Home, 0, "QS JH");
    EXPECT_FALSE(PicksUp(queen));
    EXPECT_TRUE(PicksUp(I16(queen + 1)));
}

TEST_F(Stacks, WasteAndFoundationsGiveTheirTopOnly) {
    for (const Cell cell : {Cell::Waste, Cell::Goal}) {
        const PicID lower = Lay(cell, 0, "AH 2H");
        EXPECT_FALSE(PicksUp(lower));
        EXPECT_TRUE(PicksUp(I16(lower + 1)));
    }
}

TEST_F(Stacks, ReserveAlwaysGivesItsCard) { EXPECT_TRUE(PicksUp(Lay(Cell::Res, 2, "7D"))); }

TEST_F(Stacks, OpenStockGivesItsTop) {
    row.Stock.StockType = StockType::Open;
    SelectRow(games, row);
    const PicID lower = Lay(Cell::Stock, 0, "7D 8D");
    EXPECT_FALSE(PicksUp(lower));
    EXPECT_TRUE(PicksUp(I16(lower + 1)));
    EXPECT_EQ(Pile(Cell::Stock, 0), "7D 8D") << "a press alone moves nothing";
}

TEST_F(Stacks, StackComesToTheFrontInItsOrder) {
    const PicID queen = Lay(Cell::Home, 0, "QS JH TS");
    const PicID other = Lay(Cell::Res, 0, "2C");
    Press(queen);
    const auto front = table.VisibleCards();
    EXPECT_EQ(front, (std::vector<PicID>{queen, other, I16(queen + 1), I16(queen + 2)}));
}

}  // namespace
}  // namespace varnello::test
