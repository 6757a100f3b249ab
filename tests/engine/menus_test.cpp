#include "fixture.h"

// Which menu items can be chosen and which are checked.
namespace varnello::test {
namespace {

MenuState StateOf(unsigned bits) {
    const auto bit = [&](unsigned i) { return (bits >> i & 1U) != 0; };
    return {.GameRunning = bit(0),
            .ReplayOn = bit(1),
            .StopEnabled = bit(2),
            .UndoPossible = bit(3),
            .RedoPossible = bit(4),
            .DisAutoPlay = bit(5),
            .Autoplay = bit(6),
            .ShowToolbar = bit(7)};
}

constexpr unsigned kStates = 1U << 8;

TEST(Marks, OfTheGameFollowWhetherOneRuns) {
    for (unsigned bits = 0; bits < kStates; ++bits) {
        const MenuState state = StateOf(bits);
        const MenuMarks marks = MarksOf(state);
        for (const bool mark : {marks.mFile4, marks.mFile5, marks.mFav1, marks.mTools5}) {
            EXPECT_EQ(mark, state.GameRunning) << bits;
        }
    }
}

TEST(Marks, OfTheLogAreOffWithoutAGameAndInAReplay) {
    for (unsigned bits = 0; bits < kStates; ++bits) {
        const MenuState state = StateOf(bits);
        const MenuMarks marks = MarksOf(state);
        const bool locked = !state.GameRunning || state.ReplayOn;
        for (const bool mark : {marks.mGame1, marks.mGame6, marks.mReplay2}) {
            EXPECT_EQ(mark, !locked && state.UndoPossible) << bits;
        }
        for (const bool mark : {marks.mGame2, marks.mGame7, marks.mReplay1}) {
            EXPECT_EQ(mark, !locked && state.RedoPossible) << bits;
        }
        EXPECT_EQ(marks.mReplay4, !locked && (state.UndoPossible || state.RedoPossible)) << bits;
    }
}

TEST(Marks, OfTheSettingsFollowThem) {
    for (unsigned bits = 0; bits < kStates; ++bits) {
        const MenuState state = StateOf(bits);
        const MenuMarks marks = MarksOf(state);
        EXPECT_EQ(marks.mGame4, !state.DisAutoPlay);
        EXPECT_EQ(marks.mGame4Checked, state.Autoplay);
        EXPECT_TRUE(marks.mGame9);
        EXPECT_EQ(marks.mGame9Checked, state.ShowToolbar);
        EXPECT_EQ(marks.mReplay6, state.StopEnabled);
    }
}

class Menus : public EngineTest {
protected:
    /// A game of Freecell with a move to undo and one to redo.
    void StartWithMoves() {
        engine.data.Set(keys::Autoplay, 0);
        Start("Freecell");
        for (int pile = 0; pile < 2; ++pile) DropOn(Top(Cell::Home, pile), Cell::Res, pile);
        engine.Undo();
        Heard();
    }
};

TEST_F(Menus, BeforeTheFirstGameOnlyTheSettingsAreLive) {
    const MenuMarks expected{.mGame4 = true, .mGame4Checked = true, .mGame9Checked = true};
    EXPECT_EQ(engine.UpdateMenus(), expected);
    engine.ToggleAutoplay();
    engine.ToggleToolbar();
    EXPECT_EQ(engine.UpdateMenus(), (MenuMarks{.mGame4 = true}));
    EXPECT_EQ(engine.data.Get(keys::Autoplay), 0);
    EXPECT_EQ(Heard(), "");
}

TEST_F(Menus, AnyValueButZeroIsChecked) {
    engine.data.Set(keys::Autoplay, 7);
    engine.data.Set(keys::ShowToolbar, -3);
    EXPECT_TRUE(engine.UpdateMenus().mGame4Checked);
    EXPECT_TRUE(engine.UpdateMenus().mGame9Checked);
    engine.ToggleAutoplay();
    EXPECT_EQ(engine.data.Get(keys::Autoplay), 0);
    engine.ToggleAutoplay();
    EXPECT_EQ(engine.data.Get(keys::Autoplay), 1);
}

TEST_F(Menus, GameWithoutAutoplayKeepsTheCheck) {
    Start("Galaxy");
    engine.ToggleAutoplay();
    EXPECT_FALSE(engine.UpdateMenus().mGame4);
    EXPECT_TRUE(engine.UpdateMenus().mGame4Checked);
    EXPECT_EQ(engine.data.Get(keys::Autoplay), 1);
}

TEST_F(Menus, CommandsOfDisabledItemsDoNothing) {
    const auto all = {&Engine::Undo,      &Engine::Redo,          &Engine::UndoAll,
                      &Engine::RedoAll,   &Engine::ReplayForward, &Engine::ReplayBack,
                      &Engine::ReplayAll, &Engine::RestartGame,   &Engine::CloseGame};
    for (const auto command : all) (engine.*command)();
    EXPECT_EQ(Heard(), "");
    EXPECT_EQ(engine.score.SesTop(), 0);
    EXPECT_FALSE(engine.ForwardOn() || engine.BackwardOn());
    StartWithMoves();
    engine.ReplayForward();
    engine.Undo();
    engine.Redo();
    engine.UndoAll();
    engine.RedoAll();
    engine.ReplayAll();
    engine.ReplayBack();
    EXPECT_EQ(Heard(), "") << "locked while a replay is on";
    EXPECT_FALSE(engine.BackwardOn());
}

TEST_F(Menus, ReplayWalksStepByStepAndStopsItself) {
    StartWithMoves();
    engine.ReplayForward();
    EXPECT_TRUE(engine.ForwardOn());
    EXPECT_FALSE(engine.UpdateMenus().mReplay6);
    engine.StopReplay();
    EXPECT_TRUE(engine.ForwardOn()) << "Stop comes with the first tick";
    engine.ForwardTick();
    EXPECT_EQ(engine.trans().GetTransID(), 2);
    EXPECT_TRUE(engine.UpdateMenus().mReplay6);
    EXPECT_TRUE(engine.ForwardOn());
    engine.ForwardTick();
    EXPECT_FALSE(engine.ForwardOn());
    EXPECT_FALSE(engine.UpdateMenus().mReplay6);
    EXPECT_TRUE(engine.UpdateMenus().mGame1);
}

TEST_F(Menus, TickOfOneDirectionEndsTheOther) {
    StartWithMoves();
    engine.ReplayBack();
    engine.ForwardTick();
    EXPECT_FALSE(engine.BackwardOn());
    engine.StopReplay();
    engine.ReplayBack();
    engine.BackwardTick();
    engine.BackwardTick();
    EXPECT_TRUE(engine.BackwardOn());
    EXPECT_EQ(engine.trans().GetTransID(), 0);
    engine.BackwardTick();
    EXPECT_FALSE(engine.BackwardOn());
    EXPECT_FALSE(engine.UpdateMenus().mReplay6);
}

TEST_F(Menus, ReplayAllRewindsInSilence) {
    StartWithMoves();
    engine.ReplayAll();
    EXPECT_EQ(engine.trans().GetTransID(), 0);
    EXPECT_EQ(Heard(), "move: 3 0 0 6 4 1 0 0\n");
    engine.ForwardTick();
    EXPECT_EQ(Heard(), "sound: Redo\nmove: 3 4 0 0 4 7 0 0\n");
    engine.data.Set(keys::ReplaySpeed, 4);
    engine.ForwardTick();
    EXPECT_EQ(Heard(), "move: 2 4 1 0 4 4 0 0\n") << "what was undone before is replayed too";
}

TEST_F(Menus, HandMoveInAReplayEndsIt) {
    StartWithMoves();
    engine.ReplayForward();
    DropOn(Top(Cell::Home, 2), Cell::Res, 2);
    EXPECT_TRUE(engine.ForwardOn());
    engine.ForwardTick();
    EXPECT_FALSE(engine.ForwardOn());
    EXPECT_EQ(engine.trans().GetTransID(), 2);
}

TEST_F(Menus, ReplayEndsWithItsGame) {
    StartWithMoves();
    engine.ReplayForward();
    engine.ForwardTick();
    Start("Freecell", 2);
    EXPECT_FALSE(engine.ForwardOn());
    EXPECT_FALSE(engine.UpdateMenus().mReplay6);
}

TEST_F(Menus, SpeedsComeFromTheSettings) {
    StartWithMoves();
    engine.data.Set(keys::UndoSpeed, 9);
    engine.data.Set(keys::UndoallSpeed, 6);
    engine.Redo();
    EXPECT_EQ(Heard(), "sound: Redo\nmove: 2 4 1 0 4 9 0 0\n");
    engine.UndoAll();
    EXPECT_EQ(Heard(), "sound: Undo\nmove: 2 0 1 6 4 6 0 0\nsound: Undo\nmove: 3 0 0 6 4 6 0 0\n");
}

TEST_F(Menus, RecentGamesAreNumbered) {
    Start("Penguin");
    Start("Zodiac");
    EXPECT_EQ(engine.UpdateRecent(),
              (std::array<std::string, 5>{"&1 Zodiac", "&2 Penguin", "", "", ""}));
}

}  // namespace
}  // namespace varnello::test
