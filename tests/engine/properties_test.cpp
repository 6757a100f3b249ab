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

/// Games with what no game of the catalogue has.
std::vector<PlayCase> MadeUp() {
    GameRow closed = *FindGame("Klondike Freecell");
    closed.Home.CardsOpen = 1;
    closed.Stock.StockNum = StockNum::Redeal;
    GameRow rows = *FindGame("Double Baker's Spider");
    rows.Home.Cards = 50;
    rows.Home.CardsOpen = 10;
    rows.Home.SuitType = SuitType::One;
    rows.Stock.StockMove = StockMove::Row;
    GameRow loose = *FindGame("Fancell");
    loose.Home.Order = OrderCode::Anything;
    loose.Home.CardsOpen = 12;
    loose.Goal.AK = 1;
    GameRow turned = *FindGame("Cascade");
    turned.Home.Order = OrderCode::EitherAny;
    turned.Home.AK = kTrue;
    turned.Home.SuitType = SuitType::Two;
    turned.Home.EmptyNum = 5;
    turned.Goal.GoalType = GoalType::FirstCard;
    turned.Goal.Cards = 2;
    turned.Goal.Order = OrderCode::UpAny;
    turned.Goal.AK = 1;
    turned.Stock.StockNum = StockNum::Redeal;
    turned.Home.MultiMove = 0;
    GameRow row = *FindGame("Milligan Cell");
    row.Goal.Order = OrderCode::UpAny;
    return {{"ClosedWithRedeal", closed, false},
            {"ClosedWithRows", rows, false},
            {"ClosedToTheRight", loose, false},
            {"GoingRound", turned},
            {"RowsWithAutoplay", row}};
}

std::vector<PlayCase> AllGames() {
    std::vector<PlayCase> games = MadeUp();
    for (const GameRow& row : kCatalogue) {
        std::string name(row.Name);
        std::erase_if(name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); });
        games.push_back({name, row});
    }
    return games;
}

void PrintTo(const PlayCase& play, std::ostream* out) { *out << play.name; }

class Properties : public ::testing::TestWithParam<PlayCase> {
protected:
    std::string Fault(const TestTable& table) const {
        const Engine& engine = table.engine;
        if (!engine.data.GameRunning) {
            return engine.table.VisibleCards().empty() ? "" : "cards without a game";
        }
        std::string fault = BoardFault(engine.array(), engine.table, engine.games);
        if (GetParam().openTableau) fault += PictureFault(engine);
        return fault + LogFault(engine.trans());
    }
    static void StopReplays(Engine& engine) {
        while (engine.ForwardOn() || engine.BackwardOn()) engine.ForwardTick();
    }
};

TEST_P(Properties, HoldInRandomPlay) {
    for (unsigned seed = 1; seed <= 3; ++seed) {
        TestTable table;
        RandomPlayer player(table, seed);
        table.Play(GetParam().row);
        table.engine.data.Set(keys::Autoplay, I16(player.Below(2)));
        table.Start("A Game", seed * 1000);
        for (int act = 0; act < 250; ++act) {
            player.Act();
            ASSERT_EQ(Fault(table), "") << "seed " << seed << ", act " << act;
            if (!table.engine.data.GameRunning) table.Start("A Game", act + 1);
            table.Heard();
        }
    }
}

TEST_P(Properties, UndoAllLeadsToTheDealAndRedoAllBack) {
    for (unsigned seed = 1; seed <= 2; ++seed) {
        TestTable undisturbed;
        undisturbed.Play(GetParam().row);
        undisturbed.engine.data.Set(keys::Autoplay, 0);
        undisturbed.Start("A Game", seed);
        const std::string deal = undisturbed.Board();

        TestTable table;
        RandomPlayer player(table, seed);
        table.Play(GetParam().row);
        table.Start("A Game", seed);
        for (int round = 0; round < 3 && table.engine.data.GameRunning; ++round) {
            for (int act = 0; act < 80 && table.engine.data.GameRunning; ++act) player.Act();
            StopReplays(table.engine);
            table.engine.RedoAll();
            if (!table.engine.data.GameRunning) break;
            const std::string played = table.Board();
            table.engine.UndoAll();
            ASSERT_EQ(table.Board(), deal) << "seed " << seed;
            table.engine.RedoAll();
            ASSERT_EQ(table.Board(), played) << "seed " << seed;
            table.Heard();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Games, Properties, ::testing::ValuesIn(AllGames()),
                         [](const auto& info) { return info.param.name; });

TEST(HeldCards, LeaveTheBoardWholeInRandomPlay) {
    for (const PlayCase& play : AllGames()) {
        TestTable table;
        RandomPlayer player(table, 7);
        table.Play(play.row);
        table.Start("A Game", 7);
        const Engine& engine = table.engine;
        for (int act = 0; act < 100; ++act) {
            player.Act();
            const PicID id = player.AnyCard();
            if (id != kNoCard) {
                player.Press(id);
                player.Interfere();
                player.DragSomewhere(id);
                player.Interfere();
                table.engine.gestures().MouseUp(id);
            }
            if (!engine.data.GameRunning) table.Start("A Game", act + 1);
            ASSERT_EQ(BoardFault(engine.array(), engine.table, engine.games), "")
                << play.name << ", act " << act;
            if (play.openTableau) {
                ASSERT_EQ(PictureFault(engine), "") << play.name << ", act " << act;
            }
            table.Heard();
        }
    }
}

}  // namespace
}  // namespace varnello::test
