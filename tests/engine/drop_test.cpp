#include "engine/rules/stacks.h"
#include "hand_board.h"

// Which cards can be picked up, and where a dropped card goes. Tableau piles lie at x 1000, 2500,
// 4000, 5500 and y 3000, reserves at the same x and y 0, foundations at x 7000 and on and y 0. A
// card is 1065 by 1440.
namespace varnello::test {
namespace {

TEST(Drops, GoWhereTheRulesAllow) {
    ExpectPlays(Freecells(),
                {{"t0 TS, t1 9H", "9H>t0", "t0 TS 9H"},
                 {"t0 TD, t1 9H", "9H>t0"},
                 {"t0 TS, w0 9H", "9H>t0", "t0 TS 9H"},
                 {"t0 KC 9H 8S 7H, t1 TS", "9H>t1", "t0 KC, t1 TS 9H 8S 7H"},
                 {"t0 9H", "9H>t2", "t2 9H"},
                 // A reserve takes one card, from anywhere.
                 {"t0 9C, g0 AH", "AH>r1 9C>r1 AH>r2 9C>r1", "r1 9C, r2 AH"},
                 {"t0 2H AS, g0 AH", "2H>r0 2H>g0"},
                 {"t0 AS 2S, g1 AD", "2S>g1 2S>g0 2S>r0 AS>g2 2S>g2", "g1 AD, g2 AS 2S"},
                 {"g0 AH 2H", "2H>r0", "g0 AH, r0 2H"}});
}

TEST(Drops, OnFoundationsAreUpToTheGame) {
    GameRow row = Freecells();
    row.Goal.AK = 1;
    ExpectPlays(row, {{"t0 AH+, g0 " + Cards(kUp, "H"), "AH+>g0"}});
    row.Ext.Tag = Tag::FreecellAK;
    ExpectPlays(row, {{"t0 QS, t1 2S, g0 AS, g2 KS", "QS>g0 2S>g2"},
                      {"t0 QS, t1 2S, g0 AS, g2 KS", "QS>g2 2S>g0", "g0 AS 2S, g2 KS QS"}});
    row.Ext.Tag = Tag::Spider;
    ExpectPlays(row, {{"t0 AS", "AS>g0"}});
    HandBoard board(Freecells(), "t0 7H");
    board.games.GoalBase(6);
    board.Do("7H>g3");
    EXPECT_EQ(board.Text(), "g3 7H");
}

TEST(Drops, CentreBeatsOverlapAndTheLowerPileTheHigher) {
    ExpectPlays(Freecells(), {{"t0 TS, t1 TC, t2 9H", "9H@2000,3000", "t0 TS, t1 TC 9H"},
                              {"t0 TS, t1 TC, t2 9H", "9H@1750,3000", "t0 TS 9H, t1 TC"}});
    GameRow row = Freecells();
    row.Home.StartY = 1400;  // the tableau's top row overlaps the reserves
    ExpectPlays(row, {{"t0 TS, t2 9H", "9H@1000,100", "t0 TS, r0 9H"}});
    row.Home.StartY = 0;  // all of them in one place
    row.Goal.StartX = row.Res.StartX;
    ExpectPlays(row, {{"t0 3S, w0 2H, g0 AH", "2H>r0", "t0 3S 2H, g0 AH"},
                      {"t2 9H, w0 2C, g2 AC", "2C>g2", "t2 9H, g2 AC, r2 2C"},
                      {"t2 9H, g2 AC, r2 2C", "2C@4000,40", "t2 9H, g2 AC 2C"}});
    row = Freecells();
    row.Home.PileWidth = 500;  // a card's own pile is no target, but its neighbour is
    row.Home.Order = OrderCode::Anything;
    ExpectPlays(row, {{"t0 TS 9H, t1 2C", "9H@1000,3250", "t0 TS, t1 2C 9H"}});
}

TEST(Drops, OverlapIsStrict) {
    GameRow row = Freecells(1);
    row.Home.StartX = 4000 - 1790;
    row.Res = {};
    for (const char* touching : {"@2935,3000", "@5065,3000", "@4000,1560", "@4000,4440"}) {
        ExpectPlays(row, {{"t0 TS, w0 9H", std::string("9H") + touching}});
    }
    for (const char* inside : {"@2936,3000", "@5064,3000", "@4000,1561", "@4000,4439"}) {
        ExpectPlays(row, {{"t0 TS, w0 9H", std::string("9H") + inside, "t0 TS 9H"}});
    }
    // An empty pile is looked for where a card at position -1 would lie, one step before its slot.
    row.Home.StartX = -790;
    ExpectPlays(row, {{"w0 9H", "9H@1000,4190"}, {"w0 9H", "9H@1000,4189", "t0 9H"}});
}

TEST(Drops, CentreIsStrictAndRoundsToEven) {
    // The card overlaps a reserve, with its top at 3000, and a tableau pile that its centre isn't
    // on. Only a hit of the centre takes it to the reserve.
    const struct {
        int reserveX, pileX, pileY;
        const char* drop;
        bool hit;
    } cases[] = {
        {3000, 3100, 3800, "9H@2468,3000", false}, {3000, 3100, 3800, "9H@2469,3000", true},
        {3001, 2500, 3800, "9H@3532,3000", true},  {3001, 2500, 3800, "9H@3533,3000", false},
        {3000, 3000, 3600, "9H@3000,2280", false}, {3000, 3000, 3600, "9H@3000,2281", true},
        {3000, 3000, 2500, "9H@3000,3719", true},  {3000, 3000, 2500, "9H@3000,3720", false}};
    for (const auto& c : cases) {
        GameRow row = Freecells(1);
        row.Res = {.Piles = 1, .StartX = I16(c.reserveX - 1790), .StartY = 3000};
        row.Home.StartX = I16(c.pileX - 1790);
        row.Home.StartY = I16(c.pileY);
        ExpectPlays(row, {{"t0 TS, w0 9H", c.drop, c.hit ? "t0 TS, r0 9H" : "t0 TS 9H"}});
    }
}

TEST(Groups, AreUpToTheGame) {
    const auto pickedUp = [](const GameRow& row, std::string_view piles, std::string_view card) {
        return HandBoard(row, piles).PicksUp(card);
    };
    const std::string full = "t0 KH QS JH, r0 2C, r1 2C, r2 2C, r3 2C";
    GameRow row = Freecells(1);
    for (const Tag tag : {Tag::Freecell, Tag::FreecellAK, Tag::Penguin, Tag::Spider, Tag::Stala}) {
        row.Ext.Tag = tag;
        EXPECT_EQ(pickedUp(row, full, "KH"), tag == Tag::Spider || tag == Tag::Stala);
    }
    row = Freecells();
    row.Home.MultiMove = 0;
    EXPECT_FALSE(pickedUp(row, "t0 QS JH", "QS"));
    EXPECT_TRUE(pickedUp(row, "t0 QS JH", "JH"));
    row = Freecells();
    row.Home.Order = OrderCode::DownAny;
    EXPECT_TRUE(pickedUp(row, "t0 KH QS JS", "KH")) << "the tableau's order counts";
    row.Home.MultiOrder = OrderCode::DownSuit;
    EXPECT_FALSE(pickedUp(row, "t0 KH QS JS", "KH"));
    EXPECT_TRUE(pickedUp(row, "t0 KH QS JS", "QS"));
    EXPECT_FALSE(pickedUp(row, "t0 2H AH KH", "2H"));
    row.Home.AK = kTrue;
    EXPECT_TRUE(pickedUp(row, "t0 2H AH KH", "2H"));
    EXPECT_FALSE(pickedUp(row, "t0 -QS JS", "QS"));
}

TEST(Groups, AreFoundInTheTableauOnly) {
    GameRow row = Freecells();
    row.Stock.StockType = StockType::Open;
    HandBoard board(row, "s0 7D 6D, w0 5H 4H, g0 AH 2H, t0 -TS");
    for (const char* top : {"6D", "4H", "2H", "TS"}) EXPECT_TRUE(board.PicksUp(top)) << top;
    for (const char* lower : {"7D", "5H", "AH"}) EXPECT_FALSE(board.PicksUp(lower)) << lower;
}

}  // namespace
}  // namespace varnello::test
