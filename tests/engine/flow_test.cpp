#include "fixture.h"

// The life of a game: its start, its end, and what is booked.
namespace varnello::test {
namespace {

class Flow : public EngineTest {
protected:
    /// The thirteen hearts. With autoplay the first pass brings them all up, which is logged, but
    /// the win is seen by the next move only.
    void StartHearts(int autoplay = 0) {
        engine.data().Set(keys::Autoplay, I16(autoplay));
        Play(Hearts());
        Start("Hearts", 7);
        Heard();
    }
    void PlayUp(int lowest, int highest) {
        for (int rank = lowest; rank <= highest; ++rank) DropOn(Find(rank), Cell::Goal, 0);
    }
};

TEST_F(Flow, EndEmptiesTheTableAndKeepsTheName) {
    Start("Cascade", 11);
    const PicID card = Top(Cell::Home, 0);
    engine.gestures().MouseDown(card, 532, 720);
    engine.commands().CloseGame();
    EXPECT_FALSE(engine.data().GameRunning);
    EXPECT_EQ(engine.life().Caption(), "Varnello [Cascade] [Player1] [11]");
    EXPECT_TRUE(engine.table().VisibleCards().empty());
    ForEachSlot(engine.table(), [](const char* name, int index, const KesEmpty& slot) {
        EXPECT_FALSE(slot.Visible) << name << index;
    });
    EXPECT_EQ(engine.table().Card(card).Loc, Place{});
    EXPECT_EQ(Board(), "game: Cascade|11|0\n");
    EXPECT_FALSE(engine.gestures().Dragging()) << "a drag ends with its game";
    engine.commands().CloseGame();
    EXPECT_EQ(engine.score().SesTop(), 1);
}

TEST_F(Flow, CascadeThatWinsPlaysItsSoundsAndTouchesNothing) {
    StartHearts();
    engine.commands().ToggleAutoplay();
    const std::string heard = Heard();
    const std::size_t finish = heard.find("finish: ");
    std::string sounds;
    for (int i = 0; i < 13; ++i) sounds += "sound: AutoPlay\n";
    EXPECT_EQ(heard.substr(heard.find('\n', finish) + 1), sounds);
    EXPECT_EQ(heard.substr(0, finish).find("sound"), std::string::npos);
    EXPECT_EQ(engine.score().SesTop(), 0) << "booked by the dialog, or by what ends the game";
    EXPECT_EQ(engine.trans().GetTransID(), 13);
}

TEST_F(Flow, WonGameEndsAsWonWhateverEndsIt) {
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"dialog", [&] { engine.life().LoadFinish(); }},
        {"close", [&] { engine.commands().CloseGame(); }},
        {"leave", [&] { engine.life().LeaveGame(); }},
        {"restart", [&] { engine.commands().RestartGame(); }},
        {"new", [&] { engine.commands().NewGame(); }},
        {"recent", [&] { Start("Cascade"); }}};
    int games = 0;
    for (const auto& [name, end] : ends) {
        SCOPED_TRACE(name);
        StartHearts();
        engine.commands().ToggleAutoplay();
        ASSERT_EQ(engine.life().phase(), Phase::Won);
        engine.data().Set(keys::Autoplay, 0);
        engine.data().CurMoves = 9;
        const MenuMarks marks = engine.commands().UpdateMenus();
        EXPECT_FALSE(marks.Undo || marks.UndoAll || marks.Back || marks.ReplayAll);
        for (const auto command : {&Commands::Undo, &Commands::UndoAll, &Commands::ReplayAll}) {
            (engine.commands().*command)();
        }
        engine.replay().ForwardTick();
        engine.replay().BackwardTick();
        EXPECT_EQ(engine.array().TotalGoalCards(), 13);
        engine.gestures().MouseDown(Top(Cell::Goal, 0), 532, 720);
        EXPECT_FALSE(engine.gestures().Dragging());
        end();
        EXPECT_NE(engine.life().phase(), Phase::Won);
        ASSERT_EQ(engine.score().SesTop(), ++games);
        EXPECT_EQ(engine.score().GetSes(I16(games)).Status, 1);
        EXPECT_EQ(engine.score().GetSes(I16(games)).Moves, 9) << "as of the last tick";
        if (engine.life().phase() == Phase::Playing) {
            engine.commands().CloseGame();
            ++games;
        }
    }
}

TEST_F(Flow, DealBecomesAGameWhenItHasBeenShown) {
    surface.busy = true;
    Start("See-Saw", 3);
    EXPECT_EQ(engine.life().phase(), Phase::Dealing);
    EXPECT_EQ(engine.array().GetTop(Cell::Stock, 0), -1) << "all of it lies there";
    for (const auto command :
         {&Commands::Undo, &Commands::Redo, &Commands::UndoAll, &Commands::RedoAll,
          &Commands::CloseGame, &Commands::RestartGame, &Commands::ReplayAll,
          &Commands::ToggleAutoplay, &Commands::ToggleAutoplay}) {
        (engine.commands().*command)();
    }
    engine.replay().ForwardTick();
    engine.replay().BackwardTick();
    engine.life().LeaveGame();
    engine.counters().TimeTick();
    engine.gestures().MouseDown(engine.table().VisibleCards().back(), 532, 720);
    EXPECT_FALSE(engine.gestures().Dragging());
    clock.Advance(3);
    engine.life().Shown();
    EXPECT_EQ(engine.life().phase(), Phase::Playing);
    EXPECT_EQ(engine.counters().ElapsedTime(), 0) << "the clock begins with the game";
    TestTable undisturbed;
    undisturbed.Start("See-Saw", 3);
    EXPECT_EQ(Board(), undisturbed.Board());
    engine.commands().CloseGame();
    Start("Zodiac", 9);
    Start("Stripped Freecell", 4);
    engine.life().Shown();
    undisturbed.Start("Stripped Freecell", 4);
    EXPECT_EQ(Board(), undisturbed.Board());
    EXPECT_TRUE(LooksSame(surface.scene, engine.table()));
    EXPECT_EQ(engine.score().SesTop(), 1) << "a deal that wasn't shown leaves no record";
    engine.commands().CloseGame();
    engine.life().Shown();
    EXPECT_EQ(engine.life().phase(), Phase::Idle) << "nothing was dealt";
}

TEST_F(Flow, RewindingThatWinsStartsNoReplay) {
    StartHearts(1);
    engine.data().Set(keys::Autoplay, 0);
    DropOn(Top(Cell::Goal, 0), Cell::Res, 0);
    engine.commands().ReplayAll();  // taking the move back brings all cards up again
    EXPECT_EQ(engine.life().phase(), Phase::Won);
    EXPECT_FALSE(engine.replay().ForwardOn());
    StartHearts(1);
    engine.commands().ReplayAll();
    EXPECT_TRUE(engine.replay().ForwardOn());
    for (int i = 0; i < 13; ++i) engine.replay().ForwardTick();
    EXPECT_EQ(engine.life().phase(), Phase::Won);
    EXPECT_FALSE(engine.replay().ForwardOn());
}

TEST_F(Flow, RedoThatWinsLeavesTheGameAloneThatFollows) {
    for (const auto redo : {&Commands::Redo, &Commands::RedoAll}) {
        StartHearts(1);
        engine.data().Set(keys::Autoplay, 0);
        engine.commands().Undo();
        int logged = 0;
        engine.life().OnWon([&] {
            logged = engine.trans().GetTransID();
            Start("Freecell");
        });
        (engine.commands().*redo)();
        engine.life().OnWon({});
        EXPECT_EQ(logged, 13) << "the win is seen before its move is in the log";
        EXPECT_EQ(engine.trans().GetTransID(), 0) << "the next game begins with a move";
    }
}

TEST_F(Flow, WonDialogShowsTheStoredFigures) {
    StartHearts();
    engine.data().CurTime = 3725;
    engine.data().CurMoves = 40;
    engine.data().CurScore = -5;
    PlayUp(kAce, kKing);
    Heard();
    const FinishFigures figures = engine.life().LoadFinish();
    EXPECT_EQ(Heard(), "sound: Win\n");
    EXPECT_EQ(figures.Game, "Hearts");
    EXPECT_EQ(InEnglish(figures.Lines),
              " Game : 7| Player : Player1| Time : 1:02:05| Moves : 40| Score : -5|");
    EXPECT_EQ(figures.Score, 0);
    EXPECT_EQ(figures.Moves, 40);
    EXPECT_EQ(figures.Time, 3725);
}

TEST_F(Flow, RandomNumbersFillTheirRange) {
    const std::pair<int, double> ranges[] = {{0, 2},     {1, 10},    {3, 1e3},
                                             {15, 1e15}, {20, 1e15}, {-4, 2}};
    for (const auto& [range, limit] : ranges) {
        engine.data().Set(keys::RangeIndex, I16(range));
        double highest = 0;
        for (int i = 0; i < 300; ++i) {
            clock.Advance(1);
            const GameNumber number = engine.choosing().RandomGNo();
            EXPECT_FALSE(number.IsText());
            EXPECT_EQ(number.Shown().find_first_not_of("0123456789"), std::string::npos);
            EXPECT_GE(number.Value(), 1);
            EXPECT_LT(number.Value(), limit) << range;
            highest = std::max(highest, number.Value());
        }
        EXPECT_GE(highest, limit / 2) << range;
    }
}

}  // namespace
}  // namespace varnello::test
