#include "fixture.h"

// Score, time and moves.
namespace varnello::test {
namespace {

TEST(Score, RoundsHalvesToEvenAndStaysWithinSixteenBits) {
    struct Case {
        int goal, seconds, moves, score;
    };
    const Case cases[] = {{10, 90, 7, 66},
                          {10, 90, 5, 68},
                          {0, 0, 0, 0},
                          {52, 0, 0, 520},
                          {0, 3, 0, -1},
                          {0, 4, 0, -1},
                          {0, 5, 0, -2},
                          {0, 0, 1, 0},
                          {0, 0, 3, -2},
                          {1, 0, 1, 10},
                          {104, 600, 250, 715},
                          {0, 98304, 0, -32768},
                          {0, 2'000'000'000, 32767, -32768}};
    for (const Case& c : cases) {
        EXPECT_EQ(ScoreOf(I16(c.goal), c.seconds, I16(c.moves)), c.score)
            << c.goal << ' ' << c.seconds << ' ' << c.moves;
    }
}

class Counters : public EngineTest {
protected:
    void StartWithAMove() {
        engine.data.Set(keys::Autoplay, 0);
        Play(Hearts());
        Start("Hearts");
        DropOn(Find(kAce), Cell::Goal, 0);
    }
};

TEST_F(Counters, TickStoresTheScoreOfTheTickBefore) {
    StartWithAMove();
    engine.data.CurTime = 300;  // left over from the last game
    engine.data.CurMoves = 10;
    clock.Advance(60);
    CounterCaptions shown = engine.TimeTick();
    EXPECT_EQ(shown.mScore, "Score :-95");
    EXPECT_EQ(shown.mTime, "Time :0:01:00");
    EXPECT_EQ(shown.mMoves, "Moves :1");
    EXPECT_EQ(engine.data.CurScore, -95);
    EXPECT_EQ(engine.data.CurTime, 60);
    EXPECT_EQ(engine.data.CurMoves, 1);
    shown = engine.TimeTick();
    EXPECT_EQ(shown.mScore, "Score :-10");  // 10 - 20.5, to even
    EXPECT_EQ(engine.CalcScore(), -10);
}

TEST_F(Counters, SwitchedOffCountersStillCount) {
    StartWithAMove();
    for (const NumberKey& key : {keys::ShowTime, keys::ShowScore, keys::ShowMoves}) {
        engine.data.Set(key, 2);  // anything but 1 hides
    }
    clock.Advance(7);
    const CounterCaptions shown = engine.TimeTick();
    EXPECT_EQ(shown.mScore + shown.mTime + shown.mMoves, "");
    EXPECT_EQ(engine.data.CurTime, 7);
    EXPECT_EQ(engine.data.CurMoves, 1);
}

TEST_F(Counters, AreBlankWithoutAGameAndKeepTheirValues) {
    StartWithAMove();
    clock.Advance(7);
    engine.TimeTick();
    engine.CloseGame();
    clock.Advance(100);
    const CounterCaptions shown = engine.TimeTick();
    EXPECT_EQ(shown.mScore + shown.mTime + shown.mMoves, "");
    EXPECT_EQ(engine.data.CurTime, 7);
    EXPECT_EQ(engine.ElapsedTime(), 0);
    EXPECT_EQ(engine.CalcScore(), 0);
}

TEST_F(Counters, ClockSetBackShowsNoNegativeTime) {
    StartWithAMove();
    clock.Set({2025, 12, 31, 23, 0, 0});
    EXPECT_EQ(engine.TimeTick().mTime, "Time :0:00:00");
    EXPECT_EQ(engine.ElapsedTime(), 0);
    clock.Set({2026, 1, 3, 13, 2, 5});
    EXPECT_EQ(engine.TimeTick().mTime, "Time :49:02:05");
}

TEST_F(Counters, VeryLongGameStaysAtTheLimit) {
    StartWithAMove();
    clock.Set({9999, 12, 31, 23, 59, 59});
    EXPECT_EQ(engine.ElapsedTime(), 2147483647);
    engine.TimeTick();
    engine.TimeTick();
    EXPECT_EQ(engine.data.CurScore, -32768);
}

TEST_F(Counters, UndoLowersTheMovesAtTheNextTick) {
    StartWithAMove();
    engine.TimeTick();
    engine.Undo();
    EXPECT_EQ(engine.data.CurMoves, 1);
    EXPECT_EQ(engine.TimeTick().mMoves, "Moves :0");
}

TEST_F(Counters, RedealSlotShowsWhetherCardsAreLeft) {
    engine.data.Set(keys::Autoplay, 0);
    GameRow row = Hearts();
    row.Home.Cards = 12;
    row.Waste = WasteDef{.Piles = 1, .StartX = 2000, .StartY = 5000};
    row.Stock.StockNum = StockNum::Redeal;
    Play(row);
    Start("Hearts");
    const auto picture = [&] {
        engine.TimeTick();
        return engine.table.PicStock[0].Picture;
    };
    EXPECT_EQ(picture(), 16);
    const PicID last = Top(Cell::Stock, 0);
    engine.gestures().MouseDown(last, 0, 0);
    EXPECT_EQ(picture(), 16) << "one card on the waste";
    DropOn(last, Cell::Res, 0);
    EXPECT_EQ(picture(), 15);
    engine.Undo();
    EXPECT_EQ(picture(), 16);
    row.Stock.StockNum = StockNum::Stop;
    Play(row);
    Start("Hearts");
    EXPECT_EQ(picture(), 15) << "the fixed mark is left alone";
}

}  // namespace
}  // namespace varnello::test
