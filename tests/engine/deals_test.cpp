#include <set>

#include "hand_board.h"

// What lies on the table after a deal. The won games tell whether the cards of each game lie right.
namespace varnello::test {
namespace {

class Deals : public EngineTest {
protected:
    void SetUp() override { engine.data().Set(keys::Autoplay, 0); }
    void Deal() {
        Play(row);
        Start("Made Up", 5);
    }
    GameRow row = Freecells();
};

TEST_F(Deals, FirstCardMaySetTheBase) {
    std::set<int> bases;
    for (int number = 1; number <= 60; ++number) {
        Start("Penguin", number);
        const int base = engine.table().Card(0).Num;
        bases.insert(base);
        EXPECT_EQ(engine.games().GoalBase(), base);
        EXPECT_EQ(engine.games().EmptyNum(), base == 0 ? 12 : base - 1);
        EXPECT_EQ(engine.table().PicHome[0].Picture, engine.games().EmptyNum());
        EXPECT_EQ(engine.array().GetTop(Cell::Goal, 3), -1);
        for (int pile = 0; pile < 3; ++pile) {
            EXPECT_EQ(engine.table().Card(Top(Cell::Goal, pile)).Num, base);
        }
        EXPECT_LT(Top(Cell::Goal, 1), Top(Cell::Goal, 2)) << "in the order found";
    }
    EXPECT_EQ(bases.size(), 13U) << "the numbers tried should reach every base";
    Start("Freecell");
    EXPECT_EQ(engine.games().GoalBase(), 0);
}

TEST_F(Deals, WasteStockAndEmptyPilesAreUpToTheGame) {
    row.Waste = WasteDef{.Piles = 1, .Cards = 2};
    row.Res.Cards = 1;
    row.Home.Cards = 3;
    row.Home.EmptyNum = 4;
    Deal();
    EXPECT_EQ(Top(Cell::Waste, 0), 51);
    EXPECT_EQ(Top(Cell::Waste, 1), 50);
    EXPECT_EQ(Top(Cell::Res, 0), 49);
    EXPECT_EQ(Top(Cell::Home, 0), 48);
    EXPECT_EQ(engine.table().PicHome[3].Picture, 4);
    row.Waste = {};
    row.Res.Cards = 0;
    row.Home.EmptyNum = -3;
    row.Home.Cards = 26;
    row.Stock.StockType = StockType::TwoSuits;
    Deal();
    EXPECT_FALSE(engine.table().PicWaste[0].Visible);
    EXPECT_EQ(engine.table().PicHome[3].Picture, 14);
    EXPECT_EQ(engine.table().VisibleCards().size(), 26U);
    for (const PicID id : engine.table().VisibleCards()) EXPECT_LT(engine.table().Card(id).Suit, 2);
    row.Home.Cards = 0;
    row.Stock = {.Piles = 0, .StockNum = StockNum::Redeal};
    Deal();
    EXPECT_EQ(engine.array().GetTop(Cell::Stock, 0), -1);
    EXPECT_EQ(engine.table().PicStock[0].Picture, 16);
}

}  // namespace
}  // namespace varnello::test
