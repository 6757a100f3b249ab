#include "engine/definitions/check_row.h"
#include "engine/definitions/describe.h"
#include "fixture.h"

// What the games are, in words; and what the compiler refuses in the catalogue, with made-up rows.
namespace varnello::test {
namespace {

GameRow Harbour() {
    return {.Name = "Harbour",
            .Ext = {.BaseX = 10385, .BaseY = 200},
            .Home = {.Piles = 8,
                     .Order = OrderCode::DownColor,
                     .Cards = 48,
                     .StartX = 582,
                     .StartY = 1640,
                     .PileWidth = 1165,
                     .PosWidth = 250},
            .Goal = {.Piles = 4,
                     .Order = OrderCode::UpSuit,
                     .Cards = 4,
                     .StartX = 5825,
                     .PileWidth = 1165},
            .Res = {.Piles = 5, .PileWidth = 1165}};
}

GameRow WithWaste() {
    GameRow row = Harbour();
    row.Home.Cards = 40;
    row.Ext.BaseX = 8000;
    row.Stock = {.StartX = -1400, .StartY = 5000, .PosWidth = 30};
    row.Waste = WasteDef{.Piles = 1, .StartX = -1400, .StartY = 7000};
    return row;
}

GameRow Runs() {
    GameRow row = Harbour();
    row.Ext.Tag = Tag::Spider;
    row.Home.Cards = 52;
    row.Goal.Cards = 0;
    row.Goal.GoalType = GoalType::WholeRuns;
    return row;
}

/// The deal pattern, on so many piles.
auto Pattern(HomeType type, int piles, int cards) {
    return [=](GameRow& row) {
        row.Home.HomeType = type;
        row.Home.Piles = I16(piles);
        row.Home.Cards = I16(cards);
    };
}

/// What starts the foundations, and how many cards do.
auto Start(GoalType type, int cards, OrderCode order = OrderCode::UpSuit) {
    return [=](GameRow& row) {
        row.Goal.GoalType = type;
        row.Home.Cards = I16(52 - cards);
        row.Goal.Cards = I16(cards);
        row.Goal.Order = order;
    };
}

template <typename Code>
constexpr Code No(int code) {
    return static_cast<Code>(code);
}

TEST(Rows, ImpossibleOnesAreRefusedInWords) {
    using Row = GameRow&;
    const struct {
        GameRow row;
        std::function<void(Row)> change;
        std::string_view fault;  ///< how what is said begins; nothing for a row that is possible
    } cases[] = {
        {Harbour(), [](Row) {}, ""},
        {WithWaste(), [](Row) {}, ""},
        {Runs(), [](Row) {}, ""},
        {Harbour(), [](Row row) { row.Name = ""; }, "Name"},
        {Harbour(), [](Row row) { row.Home.Order = No<OrderCode>(10); }, "Home.Order"},
        {Harbour(), [](Row row) { row.Home.MultiOrder = No<OrderCode>(13); }, "Home.MultiOrder"},
        {Harbour(), [](Row row) { row.Goal.Order = No<OrderCode>(-1); }, "Goal.Order is no"},
        {Harbour(), [](Row row) { row.Home.HomeType = No<HomeType>(7); }, "Home.HomeType"},
        {Harbour(), [](Row row) { row.Home.SuitType = No<SuitType>(3); }, "Home.SuitType"},
        {Harbour(), [](Row row) { row.Stock.StockType = No<StockType>(3); }, "Stock.StockType"},
        {Harbour(), [](Row row) { row.Stock.StockMove = No<StockMove>(4); }, "Stock.StockMove"},
        {Harbour(), [](Row row) { row.Stock.StockNum = No<StockNum>(3); }, "Stock.StockNum"},
        {Harbour(), [](Row row) { row.Ext.Tag = Tag::None; }, "Ext.Tag"},
        {Harbour(), [](Row row) { row.Home.EmptyNum = 13; }, "Home.EmptyNum"},
        {Harbour(), [](Row row) { row.Goal.GoalType = No<GoalType>(5); }, "Goal.GoalType"},
        {Harbour(), [](Row row) { row.Res.PileOrder = No<PileOrder>(4); }, "a PileOrder"},
        {Harbour(), [](Row row) { row.Home.Piles = 19; }, "Home.Piles"},
        {Harbour(), [](Row row) { row.Goal.Piles = 9; }, "Goal.Piles"},
        {Harbour(), [](Row row) { row.Res.Piles = 11; }, "Res.Piles"},
        {Harbour(), [](Row row) { row.Stock.Piles = 0; }, "Stock.Piles"},
        {WithWaste(), [](Row row) { row.Waste->Piles = 2; }, "Waste.Piles"},
        {Harbour(), [](Row row) { row.Home.Div = 0; }, "Home.Div"},
        {Harbour(), [](Row row) { row.Goal.Div = 0; }, "Goal.Div"},
        {Harbour(), [](Row row) { row.Res.Div = -1; }, "Res.Div"},
        {Harbour(), [](Row row) { row.Ext.TotalCards = 53; }, "Ext.TotalCards"},
        {Harbour(), [](Row row) { row.Res.Cards = -1; }, "a number of Cards"},
        {Harbour(), [](Row row) { row.Res.Cards = 6; }, "Res.Cards"},
        {WithWaste(), [](Row row) { row.Waste->Cards = 2; }, "Waste.Cards"},
        {Harbour(), [](Row row) { row.Home.Cards = 49; }, "more cards"},
        {Harbour(), [](Row row) { row.Stock.StockType = StockType::TwoSuits; }, "StockType::Two"},
        {Harbour(), [](Row row) { row.Home.SuitType = SuitType::One; }, "an order of alternating"},
        {Harbour(),
         [](Row row) {
             row.Home.SuitType = SuitType::One, row.Home.Order = OrderCode::EitherColor;
         },
         "an order of alternating"},
        {Harbour(), Pattern(HomeType::BySuit, 3, 48), "HomeType::BySuit"},
        {Harbour(), Pattern(HomeType::Cone, 8, 48), "HomeType::Cone"},
        {Harbour(), Pattern(HomeType::AtRandom, 1, 48), "HomeType::AtRandom"},
        {Harbour(), Pattern(HomeType::ClosedCorner, 8, 23), "HomeType::ClosedCorner"},
        {Harbour(), Pattern(HomeType::Cone, 9, 48), "the pattern"},
        {Harbour(), Pattern(HomeType::Staircase, 8, 48), "Home.Cards"},
        {Harbour(), [](Row row) { row.Home.CardsOpen = 49; }, "Home.CardsOpen"},
        {Harbour(), [](Row row) { row.Home.Cards = 47; }, "cards are left on a stock"},
        {WithWaste(), [](Row row) { row.Stock.StockMove = StockMove::Row; }, "Waste: nothing"},
        {Harbour(), [](Row row) { row.Stock.StockNum = StockNum::Redeal; }, "StockNum::Redeal"},
        {Harbour(), [](Row row) { row.Goal.Order = OrderCode::Nothing; }, "Goal.Order lets"},
        {Harbour(), [](Row row) { row.Ext.GoalDiv = 4; }, "Ext.GoalDiv"},
        {Harbour(), [](Row row) { row.Goal.Piles = 3; }, "Goal.Cards: one card"},
        {Harbour(), Start(GoalType::WholeRuns, 0), "GoalType::WholeRuns"},
        {Harbour(), Start(GoalType::FirstCard, 0), "GoalType::FirstCard needs"},
        {Harbour(), Start(GoalType::FirstCards, 3), "GoalType::FirstCards starts"},
        {Harbour(), Start(GoalType::AcesAndKings, 3), "Goal.Cards: this GoalType"},
        {Harbour(), Start(GoalType::Kings, 3), "an empty foundation"},
        {Harbour(), Start(GoalType::Kings, 4), "the foundations can't"},
        {Harbour(), Start(GoalType::Kings, 4, OrderCode::DownSuit), ""},
        {Harbour(), Start(GoalType::FirstCard, 3), "the foundations can't"},
        {Runs(), [](Row row) { row.Home.Cards = 48, row.Goal.Cards = 4; }, "Tag::Spider takes"},
        {Runs(), [](Row row) { row.Goal.GoalType = GoalType::Kings; }, "Tag::Spider goes"},
        {Runs(), [](Row row) { row.Goal.Order = OrderCode::DownSuit; }, "Tag::Spider needs"},
        {Runs(), [](Row row) { row.Goal.Piles = 3; }, "Goal.Piles: a run"},
        {Harbour(), [](Row row) { row.Home.PosWidth = 600; }, "Home: a pile"},
        {Harbour(), [](Row row) { row.Goal.StartX = 9000; }, "Goal: a pile"},
        {Harbour(), [](Row row) { row.Res.StartY = -201; }, "Res: a cell"},
        {WithWaste(), [](Row row) { row.Stock.StartX = 16000; }, "Stock: it"},
        {WithWaste(), [](Row row) { row.Waste->StartY = 10000; }, "Waste: it"},
        {Harbour(), [](Row row) { row.Res.PileWidth = 0; }, "two places"},
    };
    for (const auto& c : cases) {
        GameRow row = c.row;
        c.change(row);
        const std::string_view fault = FaultOf(row);
        EXPECT_TRUE(c.fault.empty() ? fault.empty() : fault.starts_with(c.fault))
            << "wanted: " << c.fault << "; said: " << fault;
    }
}

/// Each game of the list is what its name, then its rules say; an empty line ends it.
TEST(Catalogue, GamesKeepTheirRules) {
    std::istringstream games(ReadFile(VARNELLO_RULES));
    int count = 0;
    for (std::string name; std::getline(games, name); ++count) {
        std::string rules;
        for (std::string line; std::getline(games, line) && !line.empty();) rules += line + '\n';
        const GameRow* row = FindGame(name);
        ASSERT_TRUE(row) << name;
        std::string told;
        for (const GameFact& fact : Describe(*row)) {
            told += std::string(fact.Heading) + ": " + fact.English() + '\n';
        }
        EXPECT_EQ(told, rules) << name;
    }
    EXPECT_EQ(count, 35);
}

TEST(Catalogue, NamesAndIdsBelongTogether) {
    const TestTable table;
    const cData& data = table.engine.data();
    for (int id = 1; id <= TotalGames(); ++id) {
        EXPECT_EQ(data.GetGameID(data.GetGName(I16(id))), id);
    }
    EXPECT_EQ(data.GetGameID("freecell"), 0);
    for (const int id : {0, -1, TotalGames() + 1}) EXPECT_EQ(data.GetGName(I16(id)), "");
}

}  // namespace
}  // namespace varnello::test
