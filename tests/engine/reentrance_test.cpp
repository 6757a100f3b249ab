#include "fixture.h"

// Games that begin or end while another one is still on the stack.
namespace varnello::test {
namespace {

class Reentrance : public EngineTest {
protected:
    /// Calls `act` where the event loop runs for the `card`th time in the deals to come.
    void AtYield(int card, std::function<void()> act) {
        yields = 0;
        surface.onYield = [this, card, act = std::move(act)] {
            if (++yields == card) act();
        };
    }
    void ExpectBoardOf(const std::string& name, double number) {
        TestTable undisturbed;
        undisturbed.Start(name, number);
        EXPECT_EQ(Board(), undisturbed.Board());
    }
    int yields = 0;
};

TEST_F(Reentrance, NothingIsLiveDuringADeal) {
    AtYield(100, [&] {
        EXPECT_TRUE(engine.Dealing());
        EXPECT_FALSE(engine.data.GameRunning);
        Drop(engine.table.VisibleCards().back(), 900, 900);
        for (const auto command :
             {&Engine::Undo, &Engine::Redo, &Engine::UndoAll, &Engine::RedoAll, &Engine::CloseGame,
              &Engine::RestartGame, &Engine::ForwardTick, &Engine::BackwardTick, &Engine::ReplayAll,
              &Engine::ToggleAutoplay, &Engine::ToggleAutoplay}) {
            (engine.*command)();
        }
        engine.TimeTick();
        engine.RandomGNo();  // the number chooser may open at any time
    });
    Start("See-Saw", 3);
    ExpectBoardOf("See-Saw", 3);
    EXPECT_EQ(yields, 52 + 52) << "onto the stock and onto the tableau";
    EXPECT_EQ(engine.score.SesTop(), 0);
}

TEST_F(Reentrance, GameAskedForDuringADealReplacesIt) {
    for (const int card : {1, 30, 150, 200}) {
        AtYield(card, [&] {
            Start("Zodiac", 9);
            Start("Stripped Freecell", 4);
        });
        Start("Zodiac", 3);
        ExpectBoardOf("Stripped Freecell", 4);
        EXPECT_TRUE(engine.data.GameRunning);
        EXPECT_FALSE(engine.Dealing());
        engine.CloseGame();
    }
    EXPECT_EQ(engine.score.SesTop(), 4) << "the games given up leave no record";
}

TEST_F(Reentrance, DealGivenUpIsNeitherPacedNorPlayed) {
    int shown = 0;
    AtYield(60, [&] {
        engine.AbandonDeal();
        shown = surface.repaints + surface.flightSteps;
    });
    Start("Freecell", 3);
    EXPECT_EQ(yields, 60);
    EXPECT_EQ(surface.repaints + surface.flightSteps, shown + 1) << "the empty table";
    EXPECT_FALSE(engine.data.GameRunning);
    EXPECT_TRUE(engine.table.VisibleCards().empty());
    EXPECT_EQ(engine.trans().TransTop(), 0);
    EXPECT_EQ(engine.score.SesTop(), 0);
    engine.AbandonDeal();  // without a deal there is nothing to give up
    yields = 100;
    Start("Cascade", 4);
    ExpectBoardOf("Cascade", 4);
    EXPECT_GT(yields, 100) << "and the next one is paced again";
}

/// A new game is started from the won dialog, with cards in it that could go up and a stock that
/// could be dealt: whatever of the old game is still on the stack would show.
class NewGameFromTheWonDialog : public Reentrance {
protected:
    void SetUp() override {
        dialogs.finish = [this] {
            engine.LoadFinish();
            engine.selectGame = SelectGame;
            engine.data.Set(keys::Autoplay, 0);
            Start("Cascade", 1);
            began = Board();
            engine.data.Set(keys::Autoplay, 1);
        };
    }
    /// With autoplay on, the first pass brings all cards up, which nothing notices yet.
    void StartHearts(std::int16_t autoplay) {
        engine.data.Set(keys::Autoplay, autoplay);
        Play(Hearts());
        Start("Hearts", 5);
    }
    void TearDown() override {
        EXPECT_TRUE(began.starts_with("game: Cascade|1|1\n"));
        EXPECT_EQ(Board(), began);
        EXPECT_EQ(engine.trans().TransTop(), 0);
        EXPECT_FALSE(engine.ForwardOn() || engine.BackwardOn() || engine.UpdateMenus().mReplay6);
        EXPECT_TRUE(engine.data.GameRunning);
        engine.ToggleAutoplay();
        engine.ToggleAutoplay();
        EXPECT_NE(Board(), began) << "a card can go up, and none went before";
    }
    std::string began;
};

TEST_F(NewGameFromTheWonDialog, AfterACascade) {
    StartHearts(0);
    engine.ToggleAutoplay();
}

TEST_F(NewGameFromTheWonDialog, AfterARedoAll) {
    StartHearts(1);
    engine.UndoAll();
    engine.RedoAll();
}

TEST_F(NewGameFromTheWonDialog, AfterAnUndoAll) {
    StartHearts(1);
    engine.data.Set(keys::Autoplay, 0);
    DropOn(Top(Cell::Goal, 0), Cell::Res, 0);
    engine.UndoAll();  // the first step back is the win
}

TEST_F(NewGameFromTheWonDialog, AfterAReplay) {
    StartHearts(1);
    engine.ReplayAll();
    for (int i = 0; i < 13; ++i) engine.ForwardTick();
}

TEST_F(NewGameFromTheWonDialog, AfterARowInABracket) {
    GameRow row = Hearts();
    row.Ext.TotalCards = 2;
    row.Home.Cards = 0;
    row.Stock.StockMove = StockMove::Row;
    row.Goal.Order = OrderCode::Anything;
    row.Goal.GoalType = GoalType::FirstCards;
    row.Goal.Cards = 1;
    Play(row);
    Start("Hearts", 5);
    engine.gestures().MouseDown(Top(Cell::Stock, 0), 532, 720);  // the first card of the row wins
}

TEST_F(Reentrance, WonDialogsGameIsNotTakenForTheOneThatWasWon) {
    int wins = 0;
    dialogs.finish = [&] {
        engine.LoadFinish();
        // Its first pass brings all its cards up; only a move of its own may notice that.
        if (++wins == 1) Start("Hearts", 6);
    };
    Play(Hearts());
    engine.data.Set(keys::Autoplay, 0);
    Start("Hearts", 5);
    engine.ToggleAutoplay();
    EXPECT_EQ(engine.array().TotalGoalCards(), 13);
    EXPECT_EQ(wins, 1);
    EXPECT_TRUE(engine.data.GameRunning);
}

}  // namespace
}  // namespace varnello::test
