#include "fixture.h"

// Games that begin or end while another one is still on the stack.
namespace varnello::test {
namespace {

class Reentrance : public EngineTest {
protected:
    /// Calls `act` where the event loop runs for the `card`th time in the deals to come.
    void AtYield(int card, std::function<void()> act) {
        auto count = std::make_shared<int>(0);
        surface.onYield = [card, count, act = std::move(act)] {
            if (++*count == card) act();
        };
    }
    /// The board of a game that was dealt in peace.
    static std::string Undisturbed(const std::string& name, double number) {
        TestTable other;
        other.Start(name, number);
        return other.Board();
    }
};

TEST_F(Reentrance, EventLoopRunsOnceForEachCardOfADeal) {
    int yields = 0;
    surface.onYield = [&] { ++yields; };
    engine.data.Set(keys::Autoplay, 0);
    Start("Freecell");
    EXPECT_EQ(yields, 52 + 52) << "onto the stock and onto the tableau";
}

TEST_F(Reentrance, NothingIsLiveDuringADeal) {
    AtYield(80, [&] {
        EXPECT_TRUE(engine.Dealing());
        EXPECT_FALSE(engine.data.GameRunning);
        const PicID card = engine.table.VisibleCards().back();
        engine.gestures().MouseDown(card, 532, 720);
        engine.gestures().MouseMove(card, 900, 900);
        engine.gestures().MouseUp(card);
        engine.gestures().StockClick();
        for (const auto command : {&Engine::Undo, &Engine::Redo, &Engine::UndoAll, &Engine::RedoAll,
                                   &Engine::CloseGame, &Engine::RestartGame, &Engine::ForwardTick,
                                   &Engine::BackwardTick, &Engine::ReplayAll}) {
            (engine.*command)();
        }
        engine.TimeTick();
    });
    Start("Freecell", 3);
    EXPECT_EQ(Board(), Undisturbed("Freecell", 3));
    EXPECT_EQ(engine.score.SesTop(), 0);
}

TEST_F(Reentrance, DrawingANumberDisturbsNoDeal) {
    // The number chooser draws one when it opens, and it may open at any time.
    AtYield(70, [&] { engine.RandomGNo(); });
    Start("See-Saw", 3);
    EXPECT_EQ(Board(), Undisturbed("See-Saw", 3));
}

TEST_F(Reentrance, GameAskedForDuringADealReplacesIt) {
    for (const int card : {1, 30, 60, 104}) {
        AtYield(card, [&] { Start("Zodiac", 9); });
        Start("Freecell", 3);
        EXPECT_EQ(Board(), Undisturbed("Zodiac", 9)) << card;
        EXPECT_TRUE(engine.data.GameRunning);
        EXPECT_FALSE(engine.Dealing());
        surface.onYield = {};
        engine.CloseGame();
    }
    EXPECT_EQ(engine.score.SesTop(), 4) << "the games given up leave no record";
}

TEST_F(Reentrance, SmallGameAfterALargeOneLeavesNoCardBehind) {
    AtYield(150, [&] { Start("Stripped Freecell", 9); });
    Start("Zodiac", 3);
    EXPECT_EQ(Board(), Undisturbed("Stripped Freecell", 9));
    EXPECT_EQ(engine.table.VisibleCards().size(), 26U);
}

TEST_F(Reentrance, LastOfSeveralGamesAskedForIsDealt) {
    AtYield(10, [&] {
        Start("Zodiac", 9);
        Start("Penguin", 4);
    });
    Start("Freecell", 3);
    EXPECT_EQ(Board(), Undisturbed("Penguin", 4));
}

TEST_F(Reentrance, DealGivenUpLeavesAnEmptyTable) {
    AtYield(60, [&] { engine.AbandonDeal(); });
    Start("Freecell", 3);
    EXPECT_FALSE(engine.data.GameRunning);
    EXPECT_FALSE(engine.Dealing());
    EXPECT_TRUE(engine.table.VisibleCards().empty());
    EXPECT_EQ(engine.array().GetTop(Cell::Home, 0), -1);
    EXPECT_EQ(ReadFile(ScoreFile()), "");
    EXPECT_EQ(engine.score.SesTop(), 0);
    EXPECT_EQ(engine.trans().GetTransID(), 0);
    surface.onYield = {};
    Start("Cascade", 4);
    EXPECT_EQ(Board(), Undisturbed("Cascade", 4));
}

TEST_F(Reentrance, GivenUpDealPacesNothingMore) {
    int yields = 0;
    surface.onYield = [&] {
        if (++yields == 60) engine.AbandonDeal();
    };
    Start("Freecell", 3);
    EXPECT_EQ(yields, 60);
    surface.onYield = {};
    engine.AbandonDeal();
    Start("Freecell", 3);
    EXPECT_TRUE(engine.data.GameRunning) << "without a deal there is nothing to give up";
}

/// A new game is started from the won dialog, with cards in it that could go up and a stock that
/// could be dealt: whatever of the old game is still on the stack would show.
class NewGameFromTheWonDialog : public Reentrance {
protected:
    void SetUp() override {
        dialogs.finish = [this] {
            engine.LoadFinish();
            engine.selectGame = [](cGames& games, const std::string& name) {
                SelectGame(games, name);
            };
            engine.data.Set(keys::Autoplay, 0);
            Start("Cascade", 1);
            began = Board();
            engine.data.Set(keys::Autoplay, 1);
        };
        StartHearts(0);
    }
    /// With autoplay on, the first pass brings all cards up, which nothing notices yet.
    void StartHearts(std::int16_t autoplay) {
        engine.data.Set(keys::Autoplay, autoplay);
        Play(Hearts());
        Start("Hearts", 5);
    }
    void ExpectUntouched() {
        EXPECT_TRUE(began.starts_with("game: Cascade|1|1\n"));
        EXPECT_EQ(Board(), began);
        EXPECT_EQ(engine.trans().TransTop(), 0);
        EXPECT_FALSE(engine.gestures().Dragging());
        EXPECT_FALSE(engine.ForwardOn() || engine.BackwardOn());
        EXPECT_FALSE(engine.UpdateMenus().mReplay6);
        EXPECT_TRUE(engine.data.GameRunning);
        engine.ToggleAutoplay();
        engine.ToggleAutoplay();
        EXPECT_NE(Board(), began) << "a card can go up, and none went before";
    }
    std::string began;
};

TEST_F(NewGameFromTheWonDialog, AfterADrop) {
    for (int rank = kAce; rank <= kKing; ++rank) DropOn(Find(rank), Cell::Goal, 0);
    ExpectUntouched();
}

TEST_F(NewGameFromTheWonDialog, AfterACascade) {
    engine.ToggleAutoplay();
    ExpectUntouched();
}

TEST_F(NewGameFromTheWonDialog, AfterARedoAll) {
    StartHearts(1);
    engine.UndoAll();
    engine.RedoAll();
    ExpectUntouched();
}

TEST_F(NewGameFromTheWonDialog, AfterAnUndoAll) {
    StartHearts(1);
    engine.data.Set(keys::Autoplay, 0);
    DropOn(Top(Cell::Goal, 0), Cell::Res, 0);
    engine.UndoAll();  // the first step back is the win
    ExpectUntouched();
}

TEST_F(NewGameFromTheWonDialog, AfterAReplay) {
    StartHearts(1);
    engine.ReplayAll();
    for (int i = 0; i < 13; ++i) engine.ForwardTick();
    ExpectUntouched();
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
    engine.data.Set(keys::Autoplay, 1);
    engine.gestures().MouseDown(Top(Cell::Stock, 0), 532, 720);  // the first card of the row wins
    ExpectUntouched();
}

}  // namespace
}  // namespace varnello::test
