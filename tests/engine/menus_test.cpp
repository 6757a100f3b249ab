#include "fixture.h"

// Which menu items can be chosen, and what they do. The golden scripts go through all states.
namespace varnello::test {
namespace {

class Menus : public EngineTest {
protected:
    /// A game of Freecell with a move to undo and one to redo.
    void StartWithMoves() {
        engine.data().Set(keys::Autoplay, 0);
        Start("Freecell");
        for (int pile = 0; pile < 2; ++pile) DropOn(Top(Cell::Home, pile), Cell::Res, pile);
        engine.commands().Undo();
        Heard();
    }
};

TEST_F(Menus, CommandsOfDisabledItemsDoNothing) {
    StartWithMoves();
    engine.commands().ReplayForward();
    for (const auto command : {&Commands::Undo, &Commands::Redo, &Commands::UndoAll,
                               &Commands::RedoAll, &Commands::ReplayAll, &Commands::ReplayBack}) {
        (engine.commands().*command)();
    }
    EXPECT_EQ(Heard(), "") << "locked while a replay is on";
    EXPECT_FALSE(engine.replay().BackwardOn());
    engine.commands().StopReplay();
    EXPECT_TRUE(engine.replay().ForwardOn()) << "Stop comes with the first tick";
    Start("Galaxy");
    engine.commands().ToggleAutoplay();
    EXPECT_EQ(engine.data().Get(keys::Autoplay), 0) << "a game without autoplay";
}

TEST_F(Menus, CommandsWithoutAGameDoNothing) {
    for (const bool played : {false, true}) {
        if (played) {
            StartWithMoves();
            engine.commands().ReplayForward();
            engine.commands().CloseGame();
        }
        const std::string board = Board();
        for (const auto command :
             {&Commands::Undo, &Commands::Redo, &Commands::UndoAll, &Commands::RedoAll,
              &Commands::ReplayAll, &Commands::ReplayBack, &Commands::ReplayForward,
              &Commands::StopReplay, &Commands::RestartGame, &Commands::CloseGame,
              &Commands::AddFavorite, &Commands::ToggleAutoplay}) {
            (engine.commands().*command)();
            engine.replay().ForwardTick();
            engine.replay().BackwardTick();
            EXPECT_EQ(Heard(), "");
            EXPECT_EQ(Board(), board);
            EXPECT_EQ(engine.life().phase(), Phase::Idle);
            EXPECT_FALSE(engine.replay().ForwardOn() || engine.replay().BackwardOn());
            EXPECT_FALSE(engine.commands().UpdateMenus().Stop);
        }
        EXPECT_EQ(engine.score().SesTop(), played ? 1 : 0);
        EXPECT_TRUE(engine.favorites().NumbersOf("Freecell").empty());
    }
}

TEST_F(Menus, ReplayEndsWithAMoveByHandOrWithItsGame) {
    StartWithMoves();
    engine.commands().ReplayForward();
    DropOn(Top(Cell::Home, 2), Cell::Res, 2);
    engine.replay().ForwardTick();
    EXPECT_FALSE(engine.replay().ForwardOn());
    EXPECT_EQ(engine.trans().GetTransID(), 2);
    engine.commands().ReplayBack();
    engine.replay().BackwardTick();
    Start("Freecell", 2);
    EXPECT_FALSE(engine.replay().BackwardOn());
    EXPECT_FALSE(engine.commands().UpdateMenus().Stop);
}

TEST_F(Menus, RecentGamesAreNumbered) {
    Start("Penguin");
    Start("Zodiac");
    EXPECT_EQ(engine.commands().UpdateRecent(),
              (std::array<std::string, 5>{"&1 Zodiac", "&2 Penguin", "", "", ""}));
    engine.commands().RecentGame(2);
    EXPECT_EQ(engine.data().CurGName(), "Penguin");
    engine.commands().NewGame();
    EXPECT_EQ(engine.data().CurGName(), "Penguin");
    engine.commands().RecentGame(5);
    EXPECT_EQ(engine.score().SesTop(), 3) << "a blank entry is inert";
}

}  // namespace
}  // namespace varnello::test
