#include "engine/definitions/catalogue.h"

#include <algorithm>
#include <array>
#include <utility>

#include "engine/definitions/check_row.h"

// The games, in alphabetical order. What a row leaves out has the default of its structure: four
// suits, 52 cards, one stock pile, groups may be lifted, an empty tableau pile takes any card, no
// closed cards, one row of piles. The compiler checks every row; what it says names the game and
// what is wrong with it.
namespace varnello {
namespace {

// clang-format off
constexpr GameRow kRows[] = {
    {.Name = "Avenue",
     .Ext = {.BaseX = 10420, .BaseY = 200},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 48, .StartX = 1265,
              .StartY = 500, .PileWidth = 1540, .PosWidth = 180, .Div = 4, .DivWidth = 5210,
              .PileOrder = PileOrder::RightColumns},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .Cards = 4, .StartX = 5210, .StartY = 500,
              .PileWidth = 1540, .PileOrder = PileOrder::RightColumns},
     .Res = {.Piles = 4, .StartY = 500, .PileWidth = 1540, .PileOrder = PileOrder::RightColumns},
     .Stock = {.StartY = 500}},

    {.Name = "Baker's Game",
     .Ext = {.BaseX = 9220, .BaseY = 200},
     .Home = {.Piles = 8, .Order = OrderCode::DownSuit, .Cards = 52, .EmptyNum = kKing,
              .StartY = 1640, .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 4960, .PileWidth = 1115},
     .Res = {.Piles = 4, .StartX = -150, .PileWidth = 1115},
     .Stock = {.StartX = -150}},

    {.Name = "Baker's Spider",
     .Ext = {.BaseX = 9220, .BaseY = 200, .Tag = Tag::Spider, .DisAutoPlay = kTrue},
     .Home = {.Piles = 8, .Order = OrderCode::DownAny, .Cards = 52, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250, .MultiOrder = OrderCode::DownSuit},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .GoalType = GoalType::WholeRuns,
              .StartX = 4960, .PileWidth = 1115},
     .Res = {.Piles = 4, .StartX = -150, .PileWidth = 1115},
     .Stock = {.StartX = -150}},

    {.Name = "Bastion",
     .Ext = {.BaseX = 11550, .BaseY = 200},
     .Home = {.Piles = 10, .Order = OrderCode::EitherSuit, .Cards = 50, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 3495, .PileWidth = 1165},
     .Res = {.Piles = 2, .Cards = 2, .PileWidth = 1165}},

    {.Name = "Carnival",
     .Ext = {.BaseX = 9820, .BaseY = 200},
     .Home = {.Piles = 12, .Order = OrderCode::DownColor, .Cards = 48, .StartX = 1465,
              .PileWidth = 1165, .PosWidth = 250, .Div = 6, .DivWidth = 4000},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .Cards = 4, .StartX = 8755, .StartY = 500,
              .PileWidth = 1540, .PileOrder = PileOrder::RightColumns},
     .Res = {.Piles = 4, .StartY = 500, .PileWidth = 1540, .PileOrder = PileOrder::RightColumns},
     .Stock = {.StartY = 500}},

    {.Name = "Cascade",
     .Ext = {.BaseX = 9320, .BaseY = 200},
     .Home = {.Piles = 7, .Order = OrderCode::DownColor, .Cards = 35, .StartX = 1265,
              .StartY = 1640, .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpColor, .StartX = 4760, .PileWidth = 1165},
     .Res = {.Piles = 2, .StartX = 1265, .PileWidth = 1165},
     .Stock = {.StockMove = StockMove::Waste1, .PosWidth = 30, .StockNum = StockNum::Stop},
     .Waste = WasteDef{.Piles = 1, .StartY = 1640}},

    {.Name = "Cone Freecell",
     .Ext = {.BaseX = 10385, .BaseY = 200},
     .Home = {.Piles = 9, .Order = OrderCode::DownColor, .Cards = 52, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250, .HomeType = HomeType::Cone},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 5825, .PileWidth = 1165},
     .Res = {.Piles = 4, .PileWidth = 1165}},

    {.Name = "Double Baker's Game",
     .Ext = {.BaseX = 11750, .BaseY = 200, .TotalCards = 104},
     .Home = {.Piles = 6, .Order = OrderCode::DownSuit, .Cards = 96, .StartX = 2430,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 8, .Order = OrderCode::UpSuit, .Cards = 8, .StartX = 9520,
              .PileWidth = 1490, .Div = 4, .DivWidth = 1165, .PileOrder = PileOrder::RightColumns},
     .Res = {.Piles = 8, .PileWidth = 1490, .Div = 4, .DivWidth = 1165,
             .PileOrder = PileOrder::RightColumns}},

    {.Name = "Double Baker's Spider",
     .Ext = {.BaseX = 11550, .BaseY = 200, .TotalCards = 104, .Tag = Tag::Spider,
             .DisAutoPlay = kTrue, .GoalDiv = 4},
     .Home = {.Piles = 10, .Order = OrderCode::DownAny, .Cards = 104, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250, .MultiOrder = OrderCode::DownSuit},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 7140, .PileWidth = 1115},
     .Res = {.Piles = 6, .PileWidth = 1115}},

    {.Name = "Double Cascade",
     .Ext = {.BaseX = 11550, .BaseY = 200, .TotalCards = 104},
     .Home = {.Piles = 10, .Order = OrderCode::DownColor, .Cards = 40, .StartY = 3080,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 8, .Order = OrderCode::UpColor, .Cards = 8, .StartX = 2680,
              .PileWidth = 1115},
     .Res = {.Piles = 10, .StartY = 1540, .PileWidth = 1165},
     .Stock = {.PosWidth = 30},
     .Waste = WasteDef{.Piles = 1, .StartX = 1265}},

    {.Name = "Double Freecell",
     .Ext = {.BaseX = 11750, .BaseY = 200, .TotalCards = 104},
     .Home = {.Piles = 6, .Order = OrderCode::DownColor, .Cards = 96, .StartX = 2430,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 8, .Order = OrderCode::UpSuit, .Cards = 8, .StartX = 9520,
              .PileWidth = 1490, .Div = 4, .DivWidth = 1165, .PileOrder = PileOrder::RightColumns},
     .Res = {.Piles = 8, .PileWidth = 1490, .Div = 4, .DivWidth = 1165,
             .PileOrder = PileOrder::RightColumns}},

    {.Name = "Double Galaxy",
     .Ext = {.BaseX = 11550, .BaseY = 200, .TotalCards = 104, .Tag = Tag::Spider,
             .DisAutoPlay = kTrue, .GoalDiv = 4},
     .Home = {.Piles = 10, .Order = OrderCode::DownSuit, .Cards = 104, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250, .SuitType = SuitType::One},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 7140, .PileWidth = 1115},
     .Res = {.Piles = 6, .PileWidth = 1115}},

    {.Name = "Double Klondike Freecell",
     .Ext = {.BaseX = 11550, .BaseY = 200, .TotalCards = 104},
     .Home = {.Piles = 9, .Order = OrderCode::DownColor, .Cards = 45, .StartX = 1165,
              .StartY = 1640, .PileWidth = 1165, .PosWidth = 250, .HomeType = HomeType::Staircase},
     .Goal = {.Piles = 8, .Order = OrderCode::UpSuit, .StartX = 2680, .PileWidth = 1115},
     .Res = {.Piles = 2, .PileWidth = 1115},
     .Stock = {.StockMove = StockMove::Waste1, .StartY = 1640, .PosWidth = 30},
     .Waste = WasteDef{.Piles = 1, .StartY = 3280}},

    {.Name = "Double Spidercells",
     .Ext = {.BaseX = 11550, .BaseY = 200, .TotalCards = 104, .Tag = Tag::Spider,
             .DisAutoPlay = kTrue, .GoalDiv = 4},
     .Home = {.Piles = 10, .Order = OrderCode::DownColor, .Cards = 104, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250, .MultiOrder = OrderCode::DownColor},
     .Goal = {.Piles = 4, .Order = OrderCode::UpColor, .StartX = 7140, .PileWidth = 1115},
     .Res = {.Piles = 6, .PileWidth = 1115}},

    {.Name = "Eight Off",
     .Ext = {.BaseX = 10685, .BaseY = 200},
     .Home = {.Piles = 8, .Order = OrderCode::DownSuit, .Cards = 48, .EmptyNum = kKing,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 9620, .StartY = 440, .Div = 1,
              .DivWidth = 1540},
     .Res = {.Piles = 8, .Cards = 4, .StartY = 5500, .PileWidth = 1165},
     .Stock = {.StartY = 5500}},

    {.Name = "Fancell",
     .Ext = {.BaseX = 11295, .BaseY = 50},
     .Home = {.Piles = 12, .Order = OrderCode::DownColor, .Cards = 48, .StartY = 1540,
              .PileWidth = 3765, .PosWidth = 180, .Div = 3, .DivWidth = 1490,
              .PileOrder = PileOrder::RightRows},
     .Goal = {.Piles = 4, .Order = OrderCode::UpColor, .Cards = 4, .StartX = 5840,
              .PileWidth = 1115},
     .Res = {.Piles = 4, .StartX = 1030, .PileWidth = 1115},
     .Stock = {.StartX = 1030}},

    {.Name = "Forecell",
     .Ext = {.BaseX = 9220, .BaseY = 200},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 48, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 4960, .PileWidth = 1115},
     .Res = {.Piles = 4, .Cards = 4, .StartX = -150, .PileWidth = 1115},
     .Stock = {.StartX = -150}},

    {.Name = "Four Colors",
     .Ext = {.BaseX = 9520, .BaseY = 200},
     .Home = {.Piles = 7, .Order = OrderCode::DownColor, .Cards = 52, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250, .HomeType = HomeType::BySuit},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 8455, .Div = 1, .DivWidth = 1540},
     .Res = {.Piles = 4, .PileWidth = 1165}},

    {.Name = "Freecell",
     .Ext = {.BaseX = 9220, .BaseY = 200},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 52, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 4960, .PileWidth = 1115},
     .Res = {.Piles = 4, .StartX = -150, .PileWidth = 1115},
     .Stock = {.StartX = -150}},

    {.Name = "Freecell AK",
     .Ext = {.BaseX = 9220, .BaseY = 200, .Tag = Tag::FreecellAK},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 48, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .Cards = 4,
              .GoalType = GoalType::AcesAndKings, .StartX = 4960, .PileWidth = 1115},
     .Res = {.Piles = 4, .StartX = -150, .PileWidth = 1115},
     .Stock = {.StartX = -150}},

    {.Name = "Galaxy",
     .Ext = {.BaseX = 9220, .BaseY = 200, .Tag = Tag::Spider, .DisAutoPlay = kTrue},
     .Home = {.Piles = 8, .Order = OrderCode::DownSuit, .Cards = 52, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250, .SuitType = SuitType::One},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .GoalType = GoalType::WholeRuns,
              .StartX = 4960, .PileWidth = 1115},
     .Res = {.Piles = 4, .StartX = -150, .PileWidth = 1115},
     .Stock = {.StartX = -150}},

    {.Name = "Klondike Freecell",
     .Ext = {.BaseX = 10485, .BaseY = 200},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 36, .StartX = 1265,
              .StartY = 1640, .PileWidth = 1165, .PosWidth = 250, .HomeType = HomeType::Staircase},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 5925, .PileWidth = 1165},
     .Res = {.Piles = 2, .StartX = 1265, .PileWidth = 1165},
     .Stock = {.StockMove = StockMove::Waste1, .PosWidth = 30},
     .Waste = WasteDef{.Piles = 1, .StartY = 1640}},

    {.Name = "Milligan Cell",
     .Ext = {.BaseX = 10785, .BaseY = 200, .TotalCards = 104},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 8, .EmptyNum = kKing,
              .StartX = 1365, .StartY = 1640, .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 8, .Order = OrderCode::UpSuit, .StartX = 1365, .PileWidth = 1165},
     .Res = {.Piles = 3, .StartY = 1640, .PileWidth = 1540, .PileOrder = PileOrder::RightColumns},
     .Stock = {.StockMove = StockMove::Row, .PosWidth = 30}},

    {.Name = "Oasis",
     .Ext = {.BaseX = 9220, .BaseY = 200},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 32, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 4660, .PileWidth = 1165},
     .Res = {.Piles = 2, .StartX = 1665, .PileWidth = 1165},
     .Stock = {.StockMove = StockMove::Waste3, .PosWidth = 30, .StockNum = StockNum::Stop,
               .StockType = StockType::Open}},

    {.Name = "Penguin",
     .Ext = {.BaseX = 9520, .BaseY = 200, .Tag = Tag::Penguin},
     .Home = {.Piles = 7, .Order = OrderCode::DownSuit, .Cards = 49, .AK = kTrue,
              .EmptyNum = kKing, .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .Cards = 3, .GoalType = GoalType::FirstCard,
              .AK = 1, .StartX = 8455, .StartY = 440, .Div = 1, .DivWidth = 1540},
     .Res = {.Piles = 7, .StartY = 5500, .PileWidth = 1165},
     .Stock = {.StartY = 5500}},

    {.Name = "SeaTowers",
     .Ext = {.BaseX = 11550, .BaseY = 200},
     .Home = {.Piles = 10, .Order = OrderCode::DownSuit, .Cards = 50, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .PileWidth = 1165, .Div = 2,
              .DivWidth = 9320, .PileOrder = PileOrder::DownOneLine},
     .Res = {.Piles = 4, .Cards = 2, .StartX = 3495, .PileWidth = 1140}},

    {.Name = "See-Saw",
     .Ext = {.BaseX = 9220, .BaseY = 200},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 52, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250, .HomeType = HomeType::AtRandom},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 4960, .PileWidth = 1115},
     .Res = {.Piles = 4, .StartX = -150, .PileWidth = 1115},
     .Stock = {.StartX = -150}},

    {.Name = "Seven By Four",
     .Ext = {.BaseX = 8655, .BaseY = 200},
     .Home = {.Piles = 7, .Order = OrderCode::DownColor, .Cards = 52, .StartY = 1640,
              .PileWidth = 1265, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 4578, .PileWidth = 1115},
     .Res = {.Piles = 4, .StartX = -332, .PileWidth = 1115},
     .Stock = {.StartX = -332}},

    {.Name = "Spidercells",
     .Ext = {.BaseX = 9220, .BaseY = 200, .Tag = Tag::Spider, .DisAutoPlay = kTrue},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 52, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpColor, .GoalType = GoalType::WholeRuns,
              .StartX = 4960, .PileWidth = 1115},
     .Res = {.Piles = 4, .StartX = -150, .PileWidth = 1115},
     .Stock = {.StartX = -150}},

    {.Name = "Stalactites",
     .Ext = {.BaseX = 9220, .BaseY = 200, .Tag = Tag::Stala, .DisAutoPlay = kTrue},
     .Home = {.Piles = 8, .Order = OrderCode::Nothing, .Cards = 48, .EmptyNum = kNoCardAtAll,
              .StartY = 1840, .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpAny, .Cards = 4, .GoalType = GoalType::FirstCards,
              .AK = 1, .StartX = 4660, .PileWidth = 1165},
     .Res = {.Piles = 2, .PileWidth = 1165}},

    {.Name = "Stripped Freecell",
     .Ext = {.BaseX = 7390, .BaseY = 200, .TotalCards = 26},
     .Home = {.Piles = 6, .Order = OrderCode::DownColor, .Cards = 24, .StartY = 1640,
              .PileWidth = 1265, .PosWidth = 250},
     .Goal = {.Piles = 2, .Order = OrderCode::UpSuit, .Cards = 2, .StartX = 5060,
              .PileWidth = 1265},
     .Res = {.Piles = 2, .PileWidth = 1265},
     .Stock = {.StockType = StockType::TwoSuits}},

    {.Name = "Tuxedo",
     .Ext = {.BaseX = 9520, .BaseY = 200},
     .Home = {.Piles = 7, .Order = OrderCode::DownSuit, .Cards = 52, .EmptyNum = kKing,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 8455, .StartY = 440, .Div = 1,
              .DivWidth = 1540},
     .Res = {.Piles = 7, .StartY = 5500, .PileWidth = 1165},
     .Stock = {.StartY = 5500}},

    {.Name = "Two Cells",
     .Ext = {.BaseX = 9220, .BaseY = 200},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 52, .StartY = 1640,
              .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .StartX = 4660, .PileWidth = 1165},
     .Res = {.Piles = 2, .PileWidth = 1165}},

    {.Name = "Vertical Freecell",
     .Ext = {.BaseX = 9020, .BaseY = 200},
     .Home = {.Piles = 4, .Order = OrderCode::DownColor, .Cards = 48, .StartX = 2430,
              .StartY = 500, .PileWidth = 1540, .PosWidth = 180, .Div = 4, .DivWidth = 4000,
              .PileOrder = PileOrder::RightColumns},
     .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .Cards = 4, .StartX = 7955, .StartY = 500,
              .PileWidth = 1540, .PileOrder = PileOrder::RightColumns},
     .Res = {.Piles = 8, .StartY = 500, .PileWidth = 1540, .Div = 4, .DivWidth = 1165,
             .PileOrder = PileOrder::RightColumns},
     .Stock = {.StartY = 500}},

    {.Name = "Zodiac",
     .Ext = {.BaseX = 11550, .BaseY = 200, .TotalCards = 104},
     .Home = {.Piles = 8, .Order = OrderCode::DownColor, .Cards = 96, .StartX = 1165,
              .StartY = 1540, .PileWidth = 1165, .PosWidth = 250},
     .Goal = {.Piles = 8, .Order = OrderCode::UpSuit, .Cards = 8, .StartX = 1165,
              .PileWidth = 1165},
     .Res = {.Piles = 8, .StartY = 720, .PileWidth = 1540, .Div = 4, .DivWidth = 10485,
             .PileOrder = PileOrder::RightColumns},
     .Stock = {.StartY = 720}},
};
// clang-format on

constexpr std::size_t kGames = std::size(kRows);

/// A text that a compiler's message shows.
template <std::size_t N>
struct Words {
    std::array<char, N + 1> Text{};
};

template <std::size_t N>
constexpr Words<N> WordsOf(std::string_view text) {
    Words<N> words;
    std::copy(text.begin(), text.end(), words.Text.begin());
    return words;
}

template <auto Game, auto Fault>
constexpr bool IsPossible() {
    static_assert(Fault.Text.size() == 1,
                  "this row of the catalogue is impossible: see Game, Fault");
    return true;
}

template <std::size_t... I>
constexpr bool ArePossible(std::index_sequence<I...>) {
    return (IsPossible<WordsOf<kRows[I].Name.size()>(kRows[I].Name),
                       WordsOf<FaultOf(kRows[I]).size()>(FaultOf(kRows[I]))>() &&
            ...);
}
static_assert(ArePossible(std::make_index_sequence<kGames>{}));

static_assert(std::is_sorted(std::begin(kRows), std::end(kRows),
                             [](auto& a, auto& b) { return a.Name < b.Name; }),
              "the games of the catalogue aren't in alphabetical order");
static_assert(std::adjacent_find(std::begin(kRows), std::end(kRows),
                                 [](auto& a, auto& b) { return a.Name == b.Name; }) ==
                  std::end(kRows),
              "a name stands twice in the catalogue");

}  // namespace

constexpr std::span<const GameRow> kCatalogue = kRows;

}  // namespace varnello
