#include "fixture.h"

// Score, time and moves.
namespace varnello::test {
namespace {

TEST(Score, RoundsHalvesToEvenAndStaysWithinSixteenBits) {
    const struct {
        int goal, seconds, moves, score;
    } cases[] = {{10, 90, 7, 66}, {10, 90, 5, 68},      {0, 4, 0, -1},
                 {0, 5, 0, -2},   {0, 0, 1, 0},         {0, 0, 3, -2},
                 {1, 0, 1, 10},   {104, 600, 250, 715}, {0, 2'000'000'000, 32767, -32768}};
    for (const auto& c : cases) {
        EXPECT_EQ(ScoreOf(I16(c.goal), c.seconds, I16(c.moves)), c.score)
            << c.goal << ' ' << c.seconds << ' ' << c.moves;
    }
}

class Counters : public EngineTest {
protected:
    std::string Shown() {
        const CounterCaptions shown = engine.counters().TimeTick();
        const auto text = [](const std::optional<Phrase>& caption) {
            return caption ? caption->English() : std::string();
        };
        return text(shown.mScore) + '|' + text(shown.mTime) + '|' + text(shown.mMoves);
    }
    void StartWithAMove() {
        engine.data().Set(keys::Autoplay, 0);
        Play(Hearts());
        Start("Hearts");
        DropOn(Find(kAce), Cell::Goal, 0);
    }
};

TEST_F(Counters, ShowTheScoreOfTheTickBefore) {
    StartWithAMove();
    engine.data().CurTime = 300;  // left over from the last game
    engine.data().CurMoves = 10;
    clock.Advance(60);
    EXPECT_EQ(Shown(), "Score :-95|Time :0:01:00|Moves :1");
    EXPECT_EQ(engine.data().CurScore, -95);
    EXPECT_EQ(engine.data().CurTime, 60);
    EXPECT_EQ(engine.data().CurMoves, 1);
    EXPECT_EQ(Shown(), "Score :-10|Time :0:01:00|Moves :1");  // 10 - 20.5, to even
    const std::pair<NumberKey, const char*> switches[] = {{keys::ShowTime, "Score :-10||Moves :1"},
                                                          {keys::ShowScore, "||Moves :1"},
                                                          {keys::ShowMoves, "||"}};
    for (const auto& [key, shown] : switches) {
        engine.data().Set(key, 2);  // anything but 1 hides
        EXPECT_EQ(Shown(), shown) << "with " << key.Key << " off";
    }
    clock.Advance(7);
    EXPECT_EQ(Shown(), "||");
    EXPECT_EQ(engine.data().CurTime, 67) << "hidden counters count on";
    engine.commands().CloseGame();
    engine.data().Set(keys::ShowTime, 1);
    EXPECT_EQ(Shown(), "||");
    EXPECT_EQ(engine.counters().CalcScore(), 0);
}

TEST_F(Counters, TimeStaysWithinItsLimits) {
    StartWithAMove();
    clock.Set({2025, 12, 31, 23, 0, 0});
    EXPECT_EQ(engine.counters().ElapsedTime(), 0) << "the clock was set back";
    clock.Set({9999, 12, 31, 23, 59, 59});
    EXPECT_EQ(engine.counters().ElapsedTime(), 2147483647);
}

TEST_F(Counters, TimeDoesntJumpWithTheWallClock) {
    struct SummerTime : script::ScriptClock {
        std::int64_t Seconds() const override { return SecondsSinceEpoch(Now()) - ahead; }
        std::int64_t ahead = 3600;
    } berlin;
    Engine there{{store, berlin, surface, sounds, messages, folder.Path() / "data"}};
    berlin.Set({2026, 3, 29, 1, 55, 0});
    there.life().StartGame("Freecell", GameNumber::Number(1));
    berlin.Set({2026, 3, 29, 3, 5, 0});  // ten minutes later
    berlin.ahead = 7200;
    EXPECT_EQ(there.counters().ElapsedTime(), 600);
    there.counters().TimeTick();
    there.commands().CloseGame();
    EXPECT_EQ(ReadFile(ScoreFile()), "\"3/29/2026 3:05:00 AM\",\"Freecell\",1,600,0,0,0\r\n");
}

TEST_F(Counters, RedealSlotShowsWhetherCardsAreLeft) {
    GameRow row = Hearts();
    row.Home.Cards = 12;
    row.Waste = WasteDef{.Piles = 1, .StartX = 2000, .StartY = 5000};
    row.Stock.StockNum = StockNum::Redeal;
    Play(row);
    engine.data().Set(keys::Autoplay, 0);
    Start("Hearts");
    const auto picture = [&] {
        engine.counters().TimeTick();
        return engine.table().PicStock[0].Picture;
    };
    EXPECT_EQ(picture(), 16);
    const PicID last = Top(Cell::Stock, 0);
    engine.gestures().MouseDown(last, 0, 0);
    EXPECT_EQ(picture(), 16) << "one card on the waste";
    DropOn(last, Cell::Res, 0);
    EXPECT_EQ(picture(), 15);
    row.Stock.StockNum = StockNum::Stop;
    Play(row);
    Start("Hearts");
    EXPECT_EQ(picture(), 15) << "a fixed mark is left alone";
}

}  // namespace
}  // namespace varnello::test
