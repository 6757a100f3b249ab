#include "board_checks.h"
#include "random_player.h"

// What holds in every game, whatever is played.
namespace varnello::test {
namespace {

struct PlayCase {
    std::string name;
    GameRow row;
    bool openTableau = true;  // faces and coordinates follow from the places alone
};

std::vector<PlayCase> AllGames() {
    std::vector<PlayCase> games;
    for (const GameRow& row : kCatalogue) {
        std::string name(row.Name);
        std::erase_if(name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); });
        games.push_back({name, row});
    }
    // And games with what none of the catalogue has.
    GameRow closed = *FindGame("Klondike Freecell");
    closed.Home.CardsOpen = 1;
    closed.Stock.StockNum = StockNum::Redeal;
    games.push_back({"ClosedWithRedeal", closed, false});
    GameRow rows = *FindGame("Double Baker's Spider");
    rows.Home.Cards = 50;
    rows.Home.CardsOpen = 10;
    rows.Home.SuitType = SuitType::One;
    rows.Stock.StockMove = StockMove::Row;
    games.push_back({"ClosedWithRows", rows, false});
    GameRow loose = *FindGame("Fancell");
    loose.Home.Order = OrderCode::Anything;
    loose.Home.CardsOpen = 12;
    loose.Goal.AK = 1;
    games.push_back({"ClosedToTheRight", loose, false});
    GameRow turned = *FindGame("Cascade");
    turned.Home.Order = OrderCode::EitherAny;
    turned.Home.AK = kTrue;
    turned.Home.SuitType = SuitType::Two;
    turned.Home.EmptyNum = 5;
    turned.Home.MultiMove = 0;
    turned.Goal.GoalType = GoalType::FirstCard;
    turned.Goal.Cards = 2;
    turned.Goal.Order = OrderCode::UpAny;
    turned.Goal.AK = 1;
    turned.Stock.StockNum = StockNum::Redeal;
    games.push_back({"GoingRound", turned});
    GameRow row = *FindGame("Milligan Cell");
    row.Goal.Order = OrderCode::UpAny;
    games.push_back({"RowsWithAutoplay", row});
    return games;
}

void PrintTo(const PlayCase& play, std::ostream* out) { *out << play.name; }

class Properties : public ::testing::TestWithParam<PlayCase> {};

TEST_P(Properties, HoldInRandomPlay) {
    for (unsigned seed = 1; seed <= 4; ++seed) {
        TestTable table;
        Engine& engine = table.engine;
        RandomPlayer player(table, seed);
        table.Play(GetParam().row);
        std::string deal;
        for (int act = 0; act < 250; ++act) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", act " << act);
            if (!engine.data().GameRunning) {
                ASSERT_TRUE(engine.table().VisibleCards().empty());
                engine.data().Set(keys::Autoplay, 0);
                table.Start("A Game", seed * 1000 + act);
                deal = table.Board();
                engine.data().Set(keys::Autoplay, I16(player.Below(2)));
            }
            player.Act();
            table.Heard();
            ASSERT_TRUE(LooksSame(table.surface.scene, engine.table())) << "something wasn't told";
            if (engine.life().phase() == Phase::Won) engine.life().LeaveGame();
            if (!engine.data().GameRunning) continue;
            ASSERT_EQ(BoardFault(engine.array(), engine.table(), engine.games()), "");
            ASSERT_EQ(LogFault(engine.trans()), "");
            ASSERT_EQ(GetParam().openTableau ? PictureFault(engine) : "", "");
            if (act % 50 != 49) continue;
            // Undoing all leads to the deal, redoing all back.
            while (engine.replay().ForwardOn() || engine.replay().BackwardOn())
                engine.replay().ForwardTick();
            engine.commands().RedoAll();
            if (engine.life().phase() == Phase::Won) engine.life().LeaveGame();
            if (!engine.data().GameRunning) continue;
            const std::string played = table.Board();
            engine.commands().UndoAll();
            ASSERT_EQ(table.Board(), deal);
            engine.commands().RedoAll();
            ASSERT_EQ(table.Board(), played);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Games, Properties, ::testing::ValuesIn(AllGames()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
}  // namespace varnello::test
