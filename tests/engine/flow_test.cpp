#include "fixture.h"

// The life of a game: its start, its end, and what is booked.
namespace varnello::test {
namespace {

class Flow : public EngineTest {
protected:
    /// The thirteen hearts, with autoplay off: nothing goes up by itself.
    void StartHearts(const GameNumber& number = GameNumber::Number(7)) {
        engine.data.Set(keys::Autoplay, 0);
        Play(Hearts());
        engine.StartGame("Hearts", number);
        Heard();
    }
    void PlayUp(int rank) { DropOn(Find(rank), Cell::Goal, 0); }
    void Win() {
        for (int rank = kAce; rank <= kKing; ++rank) PlayUp(rank);
    }
    /// Plays in a game whose first pass of autoplay brings all cards up.
    void StartWonGame() {
        Play(Hearts());
        Start("Hearts");
        Heard();
    }
};

TEST_F(Flow, FirstRunMakesTheFolderAndAPlayer) {
    EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "data"));
    EXPECT_EQ(engine.data.TotalPlayers(), 1);
    EXPECT_EQ(engine.data.CurPlayer(), "Player1");
    engine.data.SetPlayer(1, "Ada", true);
    engine.InitMain();
    EXPECT_EQ(engine.data.GetPlayer(1), "Ada") << "later runs make none";
}

TEST_F(Flow, StartSetsTheFieldsOfTheGame) {
    EXPECT_EQ(engine.Caption(), "Varnello");
    clock.Set({2026, 11, 18, 12, 51, 26});
    engine.data.CurTime = 5;
    engine.StartGame("Penguin", GameNumber::Text("12.5"));
    EXPECT_TRUE(engine.data.GameRunning);
    EXPECT_EQ(engine.data.CurGName(), "Penguin");
    EXPECT_EQ(engine.data.LastGName(), "Penguin");
    EXPECT_EQ(engine.data.GetRecent(1), "Penguin");
    EXPECT_EQ(engine.data.CurGNo, GameNumber::Text("12.5"));
    EXPECT_EQ(engine.data.GameStartTime, (DateTime{2026, 11, 18, 12, 51, 26}));
    EXPECT_EQ(engine.data.CurTime, 5) << "the counters keep the last game's values";
    EXPECT_EQ(engine.Caption(), "Varnello [Penguin] [Player1] [12.5]");
    EXPECT_EQ(ReadFile(ScoreFile()), "");
}

TEST_F(Flow, NewGameOverARunningOneBooksThatAsNotWon) {
    Start("Freecell", 11);
    engine.data.CurMoves = 3;
    engine.StartGame("Zodiac", GameNumber::Text("12"));
    EXPECT_EQ(ReadFile(ScoreFile()), "\"1/1/2026 12:00:00 PM\",\"Freecell\",11,0,3,0,0\r\n");
    EXPECT_EQ(engine.data.CurGName(), "Zodiac");
    EXPECT_TRUE(engine.data.GameRunning);
    engine.RestartGame();
    engine.CloseGame();
    EXPECT_EQ(ReadFile(ScoreFile()),
              "\"1/1/2026 12:00:00 PM\",\"Freecell\",11,0,3,0,0\r\n"
              "\"1/1/2026 12:00:00 PM\",\"Zodiac\",\"12\",0,3,0,0\r\n"
              "\"1/1/2026 12:00:00 PM\",\"Zodiac\",\"12\",0,3,0,0\r\n");
    EXPECT_EQ(engine.data.GetRecent(2), "Freecell") << "a restart isn't entered again";
}

TEST_F(Flow, EndEmptiesTheTableAndKeepsTheName) {
    Start("Cascade", 11);
    engine.CloseGame();
    EXPECT_FALSE(engine.data.GameRunning);
    EXPECT_EQ(engine.data.CurGName(), "Cascade");
    EXPECT_EQ(engine.Caption(), "Varnello [Cascade] [Player1] [11]");
    EXPECT_TRUE(engine.table.VisibleCards().empty());
    ForEachSlot(engine.table, [](const char* name, int index, const KesEmpty& slot) {
        EXPECT_FALSE(slot.Visible) << name << index;
    });
    for (const KesCard& card : engine.table.PicCards) {
        EXPECT_EQ(card.Loc, Place{});
        EXPECT_EQ(card.Suit + card.Num + card.Suitpile, 0);
    }
    EXPECT_EQ(Board(), "game: Cascade|11|0\n");
    engine.CloseGame();
    EXPECT_EQ(engine.score.SesTop(), 1);
}

TEST_F(Flow, WinEndsTheGameAndBooksTheLastTick) {
    StartHearts();
    for (int rank = kAce; rank < kKing; ++rank) PlayUp(rank);
    clock.Advance(125);
    engine.TimeTick();
    engine.TimeTick();
    clock.Advance(10);
    Heard();
    const PicID king = Find(kKing);
    PlayUp(kKing);
    EXPECT_EQ(Heard(), "move: " + std::to_string(king) +
                           " 3 0 12 0 3 0 0\n"
                           "finish: Hearts|7|Player1|0:02:05|12|72\nsound: Win\n");
    EXPECT_FALSE(engine.data.GameRunning);
    EXPECT_EQ(ReadFile(ScoreFile()), "\"1/1/2026 12:02:15 PM\",\"Hearts\",7,125,12,72,1\r\n");
    EXPECT_EQ(engine.score.SesTop(), 1);
    EXPECT_EQ(Board(), "game: Hearts|7|0\n");
}

TEST_F(Flow, NumberKeepsItsKindInTheFile) {
    StartHearts(GameNumber::Text("1e3"));
    Win();
    StartHearts(GameNumber::Number(123456789012345));
    Win();
    EXPECT_EQ(ReadFile(ScoreFile()),
              "\"1/1/2026 12:00:00 PM\",\"Hearts\",\"1e3\",0,0,0,1\r\n"
              "\"1/1/2026 12:00:00 PM\",\"Hearts\",123456789012345,0,0,0,1\r\n");
}

TEST_F(Flow, CascadeThatWinsPlaysItsSoundsAndTouchesNothing) {
    StartHearts();
    engine.ToggleAutoplay();
    std::string expected;
    for (int rank = kAce; rank <= kKing; ++rank) {
        expected += "move";
        if (rank == kKing) expected += " finish sound";
    }
    for (int i = 0; i < 13; ++i) expected += " AutoPlay";
    std::string got;
    std::istringstream lines(Heard());
    for (std::string line; std::getline(lines, line);) {
        const std::string kind = line.substr(0, line.find(':'));
        got += line == "sound: AutoPlay" ? " AutoPlay" : (kind == "move" ? "" : " ") + kind;
    }
    EXPECT_EQ(got, expected);
    EXPECT_EQ(engine.score.SesTop(), 1);
    EXPECT_EQ(engine.trans().GetTransID(), 13);
}

TEST_F(Flow, FirstPassIsLoggedAndItsWinIsSeenByTheNextMove) {
    StartWonGame();
    EXPECT_TRUE(engine.data.GameRunning);
    EXPECT_EQ(engine.array().TotalGoalCards(), 13);
    EXPECT_EQ(engine.trans().GetTransID(), 13);
    engine.Undo();
    EXPECT_TRUE(engine.data.GameRunning);
    EXPECT_EQ(engine.array().TotalGoalCards(), 12);
    Heard();
    engine.Redo();
    EXPECT_FALSE(engine.data.GameRunning);
    EXPECT_NE(Heard().find("finish: Hearts|1|"), std::string::npos);
}

TEST_F(Flow, ReplayThatWinsIsOver) {
    StartWonGame();
    engine.ReplayAll();
    EXPECT_TRUE(engine.ForwardOn());
    for (int i = 0; i < 13; ++i) engine.ForwardTick();
    EXPECT_FALSE(engine.data.GameRunning);
    EXPECT_FALSE(engine.ForwardOn());
    EXPECT_FALSE(engine.UpdateMenus().mReplay6);
    EXPECT_EQ(engine.score.SesTop(), 1);
    engine.ForwardTick();
    engine.BackwardTick();
    EXPECT_FALSE(engine.UpdateMenus().mReplay6) << "a tick without a game does nothing";
}

TEST_F(Flow, RewindingThatWinsStartsNoReplay) {
    StartWonGame();
    engine.data.Set(keys::Autoplay, 0);
    DropOn(Top(Cell::Goal, 0), Cell::Res, 0);
    ASSERT_EQ(engine.array().TotalGoalCards(), 12);
    engine.ReplayAll();  // taking the move back brings all cards up again
    EXPECT_FALSE(engine.data.GameRunning);
    EXPECT_FALSE(engine.ForwardOn());
}

TEST_F(Flow, WonDialogShowsTheStoredFigures) {
    StartHearts();
    FinishFigures figures;
    dialogs.finish = [&] {
        EXPECT_TRUE(engine.data.GameRunning);
        figures = engine.LoadFinish();
    };
    engine.data.CurTime = 3725;
    engine.data.CurMoves = 40;
    engine.data.CurScore = -5;
    Win();
    EXPECT_EQ(figures.Game, "Hearts");
    EXPECT_EQ(figures.Lines,
              (std::array<std::string, 5>{" Game : 7", " Player : Player1", " Time : 1:02:05",
                                          " Moves : 40", " Score : -5"}));
    EXPECT_EQ(figures.Score, 0);
    EXPECT_EQ(figures.Moves, 40);
    EXPECT_EQ(figures.Time, 3725);
}

TEST_F(Flow, DragEndsWithItsGame) {
    Start("Freecell");
    const PicID card = Top(Cell::Home, 0);
    engine.gestures().MouseDown(card, 532, 720);
    engine.CloseGame();
    EXPECT_FALSE(engine.gestures().Dragging());
    Start("Freecell", 2);
    const std::string board = Board();
    engine.gestures().MouseMove(card, 3000, 3000);
    engine.gestures().MouseUp(card);
    EXPECT_EQ(Board(), board);
}

TEST_F(Flow, RandomNumbersFillTheirRange) {
    const std::pair<int, double> ranges[] = {{0, 2},     {1, 10},    {3, 1e3},
                                             {15, 1e15}, {20, 1e15}, {-4, 2}};
    for (const auto& [range, limit] : ranges) {
        engine.data.Set(keys::RangeIndex, I16(range));
        double highest = 0;
        for (int i = 0; i < 300; ++i) {
            clock.Advance(1);
            const GameNumber number = engine.RandomGNo();
            EXPECT_FALSE(number.IsText());
            EXPECT_GE(number.Value(), 1);
            EXPECT_LT(number.Value(), limit) << range;
            EXPECT_EQ(number.Shown().find_first_not_of("0123456789"), std::string::npos);
            highest = std::max(highest, number.Value());
        }
        EXPECT_GE(highest, limit / 2) << range;
    }
}

TEST_F(Flow, CommandsForNewGamesTakeTheirNames) {
    engine.NewGame();
    EXPECT_EQ(engine.data.CurGName(), "Avenue") << "the first game of the catalogue";
    Start("Penguin");
    engine.NewGame();
    EXPECT_EQ(engine.data.CurGName(), "Penguin");
    engine.RecentGame(2);
    EXPECT_EQ(engine.data.CurGName(), "Avenue");
    engine.data.ClearRecent();
    engine.RecentGame(1);
    EXPECT_EQ(engine.score.SesTop(), 3) << "the blank entry is inert";
}

}  // namespace
}  // namespace varnello::test
