#include "fixture.h"

// Which menu items can be chosen, and what they do. The golden scripts go through all states.
namespace varnello::test {
namespace {

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

TEST_F(Menus, CommandsOfDisabledItemsDoNothing) {
    StartWithMoves();
    engine.ReplayForward();
    for (const auto command : {&Engine::Undo, &Engine::Redo, &Engine::UndoAll, &Engine::RedoAll,
                               &Engine::ReplayAll, &Engine::ReplayBack}) {
        (engine.*command)();
    }
    EXPECT_EQ(Heard(), "") << "locked while a replay is on";
    EXPECT_FALSE(engine.BackwardOn());
    engine.StopReplay();
    EXPECT_TRUE(engine.ForwardOn()) << "Stop comes with the first tick";
    Start("Galaxy");
    engine.ToggleAutoplay();
    EXPECT_EQ(engine.data.Get(keys::Autoplay), 0) << "a game without autoplay";
}

TEST_F(Menus, ReplayEndsWithAMoveByHandOrWithItsGame) {
    StartWithMoves();
    engine.ReplayForward();
    DropOn(Top(Cell::Home, 2), Cell::Res, 2);
    engine.ForwardTick();
    EXPECT_FALSE(engine.ForwardOn());
    EXPECT_EQ(engine.trans().GetTransID(), 2);
    engine.ReplayBack();
    engine.BackwardTick();
    Start("Freecell", 2);
    EXPECT_FALSE(engine.BackwardOn());
    EXPECT_FALSE(engine.UpdateMenus().mReplay6);
    engine.CloseGame();
    engine.ForwardTick();
    engine.BackwardTick();
    EXPECT_FALSE(engine.UpdateMenus().mReplay6) << "a tick without a game does nothing";
}

TEST_F(Menus, RecentGamesAreNumbered) {
    Start("Penguin");
    Start("Zodiac");
    EXPECT_EQ(engine.UpdateRecent(),
              (std::array<std::string, 5>{"&1 Zodiac", "&2 Penguin", "", "", ""}));
    engine.RecentGame(2);
    EXPECT_EQ(engine.data.CurGName(), "Penguin");
    engine.NewGame();
    EXPECT_EQ(engine.data.CurGName(), "Penguin");
    engine.RecentGame(5);
    EXPECT_EQ(engine.score.SesTop(), 3) << "a blank entry is inert";
}

}  // namespace
}  // namespace varnello::test
