#include "hand_board.h"

// Cards that go up by themselves.
namespace varnello::test {
namespace {

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

}  // namespace
}  // namespace varnello::test
