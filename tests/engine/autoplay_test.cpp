#include "hand_board.h"

// Cards that go up by themselves.
namespace varnello::test {
namespace {

GameRow OpenStock() {
    GameRow row = Freecells();
    row.Stock.StockType = StockType::Open;
    return row;
}

TEST(Autoplay, PlaysWhatFits) {
    ExpectPlays(OpenStock(),
                {{"t2 9C 3H 2H AH", "autoplay", "t2 9C, g0 AH 2H 3H"},
                 // The tableau comes first, then reserves, waste and stock.
                 {"t3 AH, s0 AC, w0 9C AD, r3 AS", "autoplay", "w0 9C, g0 AH, g1 AS, g2 AD, g3 AC"},
                 // A card that comes free is opened.
                 {"t0 -9C AH", "autoplay", "t0 9C, g0 AH"},
                 // A move sets off a pass; taking it back sets off none.
                 {"t0 2H, t1 AH 9C", "9C>r0", "g0 AH 2H, r0 9C"},
                 {"t0 2H, t1 AH 9C", "9C>r0 undo", "t0 2H, g0 AH, r0 9C"}},
                true);
}

TEST(Autoplay, IsForbiddenByThePlayerTheGameOrAClosedStock) {
    ExpectPlays(Freecells(), {{"t0 AH", "autoplay"}}, false);
    ExpectPlays(Freecells(), {{"s0 -AH", "autoplay"}}, true);
    GameRow row = Freecells();
    row.Ext.DisAutoPlay = kTrue;
    ExpectPlays(row, {{"t0 AH", "autoplay"}}, true);
}

TEST(Autoplay, FoundationsFollowTheirGame) {
    GameRow row = Freecells();
    row.Ext.Tag = Tag::FreecellAK;
    ExpectPlays(row, {{"t0 2H, t1 QD, g0 AH, g2 KD", "autoplay", "g0 AH 2H, g2 KD QD"}}, true);
    row = Freecells();
    row.Goal.AK = 1;
    const std::string full = "g0 " + Cards(kUp, "H");
    ExpectPlays(row, {{"t0 9C AH+, " + full, "autoplay"}}, true);
    HandBoard board(row, "t0 JH TH, t1 AH KH QH");
    board.games.GoalBase(11);
    board.Autoplay(true);
    board.Do("autoplay");
    EXPECT_EQ(board.Text(), "t0 JH TH, g0 QH KH AH");
}

GameRow RunGame() {
    GameRow row = Freecells();
    row.Ext = {.BaseX = 11900, .TotalCards = 104, .Tag = Tag::Spider, .DisAutoPlay = kTrue};
    return row;
}

TEST(Runs, GoUpAsOneStepWhateverTheSettingsSay) {
    const std::string run = Cards(kDown, "D");
    const std::string up = ", g2 " + Cards(kUp, "D");
    ExpectPlays(RunGame(), {{"t2 5C " + run, "autoplay", "t2 5C" + up},
                            {"t2 5C " + run, "autoplay undo"},
                            {"t2 5C " + run, "autoplay undo redo", "t2 5C" + up},
                            {"t0 -5C " + run, "autoplay", "t0 5C" + up},
                            {"t0 -5C " + run, "autoplay undo"}});
    GameRow row = RunGame();
    row.Home.Order = OrderCode::DownAny;
    // The move that completes a run is a step of its own.
    const std::string open = run.substr(0, run.size() - 3);
    ExpectPlays(row, {{"t0 " + open + ", t1 AD", "AD>t0 undo", "t0 " + run},
                      {"t0 " + open + ", t1 AD", "AD>t0", "g2 " + Cards(kUp, "D")}});
}

TEST(Runs, OfBothPacksMayShareAFoundation) {
    GameRow row = RunGame();
    row.Ext.GoalDiv = 4;
    row.Home.Order = OrderCode::DownSuit;
    const std::string one = Cards(kDown, "S"), other = Cards("KQJT98765432", "S", "+");
    ExpectPlays(row, {{"t0 " + one + ", t1 " + other + ", r0 AS+", "autoplay AS+>t1",
                       "g1 " + Cards(kUp, "S") + ' ' + Cards(kUp, "S", "+")}});
}

TEST(Runs, AreNotTakenBeforeTheyAreWhole) {
    const std::string hearts = Cards(kDown, "H");
    ExpectPlays(RunGame(), {{"t0 " + hearts + " 9C", "autoplay"},
                            {"t0 " + Cards("QJT98765432A", "H"), "autoplay"},
                            {"t0 " + Cards("2QJT98765432A", "H"), "autoplay"},
                            {"t0 " + Cards("KQJT98765432", "H"), "autoplay"},
                            {"t0 " + Cards("AKQJT98765432", "H"), "autoplay"},
                            {"t0 " + Cards(kDown, "HD"), "autoplay"},
                            {"t0 KC " + hearts.substr(3), "autoplay"}});
}

TEST(Runs, FollowTheFoundationsOrder) {
    GameRow row = RunGame();
    row.Goal.Order = OrderCode::UpColor;
    ExpectPlays(row, {{"t0 " + Cards(kDown, "HC"), "autoplay", "g0 " + Cards(kUp, "HC")},
                      {"t0 " + Cards(kDown, "H"), "autoplay"}});
}

}  // namespace
}  // namespace varnello::test
