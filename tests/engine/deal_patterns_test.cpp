#include "board_fixture.h"

// What a definition can say and no game of the catalogue does.
namespace varnello::test {
namespace {

class Patterns : public EngineTest {
protected:
    void SetUp() override { engine.data.Set(keys::Autoplay, 0); }
    void Deal(double number = 1) {
        Play(row);
        Start("Made Up", number);
    }
    /// One character a card of a tableau pile, bottom first: "c" closed, "o" open.
    std::string Faces(int pile) const {
        std::string faces;
        for (int pos = 0; pos <= engine.array().GetTop(Cell::Home, pile); ++pos) {
            const PicID id = engine.array().GetPicID(Cell::Home, pile, pos);
            faces += engine.table.Card(id).FaceMode == FaceMode::Closed ? 'c' : 'o';
        }
        return faces;
    }
    std::vector<std::string> AllFaces() const {
        std::vector<std::string> all;
        for (int pile = 0; pile < engine.games.Piles(Cell::Home); ++pile)
            all.push_back(Faces(pile));
        return all;
    }
    const KesCard& TopCard(Cell cell, int pile) const { return engine.table.Card(Top(cell, pile)); }
    using Strings = std::vector<std::string>;
    GameRow row = Freecells();
};

TEST_F(Patterns, LastCardsOfTheRowsAreOpen) {
    row.Home.Cards = 10;
    row.Home.CardsOpen = 3;
    Deal();
    EXPECT_EQ(AllFaces(), (Strings{"cco", "cco", "cc", "co"}));
    row.Home.CardsOpen = 10;
    Deal();
    EXPECT_EQ(AllFaces(), (Strings{"ooo", "ooo", "oo", "oo"}));
}

TEST_F(Patterns, StaircaseWithClosedSteps) {
    row.Home.HomeType = HomeType::Staircase;
    Deal();
    EXPECT_EQ(AllFaces(), (Strings{"o", "oo", "ooo", "oooo"}));
    row.Home.CardsOpen = 1;
    Deal();
    EXPECT_EQ(AllFaces(), (Strings{"o", "co", "cco", "ccco"}));
}

TEST_F(Patterns, ReverseStaircase) {
    row.Home.HomeType = HomeType::ReverseStaircase;
    Deal();
    EXPECT_EQ(AllFaces(), (Strings{"oooo", "ooo", "oo", "o"}));
    EXPECT_EQ(engine.array().GetPicID(Cell::Home, 0, 1), 47) << "the fifth card dealt";
    row.Home.CardsOpen = 5;
    Deal();
    EXPECT_EQ(AllFaces(), (Strings{"oooo", "ccc", "cc", "c"}));
}

TEST_F(Patterns, ReverseStaircaseStopsWithTheStock) {
    row.Home.HomeType = HomeType::ReverseStaircase;
    row.Ext.TotalCards = 6;
    Deal();
    EXPECT_EQ(AllFaces(), (Strings{"oo", "oo", "o", "o"}));
    EXPECT_EQ(engine.array().GetTop(Cell::Stock, 0), -1);
}

TEST_F(Patterns, ClosedCorner) {
    row.Home.Piles = 6;
    row.Home.Cards = 26;
    row.Home.HomeType = HomeType::ClosedCorner;
    row.Home.CardsOpen = 4;
    Deal();
    EXPECT_EQ(AllFaces(), (Strings{"cccoo", "cccoo", "ccco", "ccco", "oooo", "oooo"}));
}

TEST_F(Patterns, FoundationsFromAnyRank) {
    for (const int rank : {1, 12}) {
        row.Goal.GoalType = static_cast<GoalType>(rank);
        row.Goal.Cards = 3;
        Deal(5);
        for (int pile = 0; pile < 3; ++pile) {
            EXPECT_EQ(TopCard(Cell::Goal, pile).Num, rank);
            EXPECT_EQ(TopCard(Cell::Goal, pile).Suitpile, pile);
        }
        EXPECT_EQ(engine.array().GetTop(Cell::Goal, 3), -1);
        EXPECT_EQ(engine.table.PicRight[3].Picture, rank);
        EXPECT_TRUE(engine.table.PicRight[3].Visible);
        EXPECT_EQ(engine.array().GetTop(Cell::Stock, 0), 48);
        EXPECT_EQ(engine.games.GoalBase(), 0);
    }
}

TEST_F(Patterns, FoundationsOfRisingRanks) {
    row.Goal.GoalType = GoalType::SuitpileRank;
    row.Goal.Cards = 4;
    Deal(5);
    for (int pile = 0; pile < 4; ++pile) {
        EXPECT_EQ(TopCard(Cell::Goal, pile).Num, pile);
        EXPECT_EQ(TopCard(Cell::Goal, pile).Suitpile, pile);
        EXPECT_EQ(engine.table.PicRight[static_cast<std::size_t>(pile)].Picture, pile);
    }
}

TEST_F(Patterns, OddNumberOfAcesAndKingsIsHalvedWithoutRounding) {
    row.Goal.GoalType = GoalType::AcesAndKings;
    row.Goal.Cards = 3;
    Deal(5);
    const int ranks[] = {kAce, kAce, kKing, kKing};
    for (int pile = 0; pile < 4; ++pile) {
        EXPECT_EQ(TopCard(Cell::Goal, pile).Num, ranks[pile]) << pile;
        EXPECT_EQ(engine.table.PicRight[static_cast<std::size_t>(pile)].Picture, ranks[pile]);
    }
}

TEST_F(Patterns, FoundationsOfOtherTypesShowNoSlot) {
    row.Goal.GoalType = GoalType::FirstCards;
    row.Goal.Cards = 2;
    Deal();
    EXPECT_TRUE(engine.table.PicRight[1].Visible);
    EXPECT_FALSE(engine.table.PicRight[2].Visible);
    row.Goal.GoalType = static_cast<GoalType>(5);
    row.Goal.Cards = 0;
    Deal();
    EXPECT_FALSE(engine.table.PicRight[0].Visible);
}

TEST_F(Patterns, WasteMayStartWithCards) {
    row.Waste = WasteDef{.Piles = 1, .Cards = 2};
    row.Home.Cards = 4;
    Deal();
    EXPECT_EQ(Top(Cell::Waste, 0), 51);
    EXPECT_EQ(Top(Cell::Waste, 1), 50);
    EXPECT_EQ(engine.table.Card(51).FaceMode, FaceMode::Open);
    EXPECT_EQ(Top(Cell::Home, 0), 49);
}

TEST_F(Patterns, EmptyPileShowsTheRankItTakes) {
    row.Home.EmptyNum = 4;
    row.Home.Cards = 2;
    Deal();
    EXPECT_EQ(engine.table.PicHome[3].Picture, 4);
    row.Home.EmptyNum = -3;
    Deal();
    EXPECT_EQ(engine.table.PicHome[3].Picture, 14);
}

TEST_F(Patterns, TwoSuitsStripTheirDeckToo) {
    row.Home.SuitType = SuitType::Two;
    row.Stock.StockType = StockType::TwoSuits;
    row.Home.Cards = 52;
    Deal();
    EXPECT_EQ(engine.table.VisibleCards().size(), 52U) << "all are of suit 0 or 1";
    row.Home.SuitType = SuitType::Four;
    row.Home.Cards = 26;
    Deal();
    EXPECT_EQ(engine.table.VisibleCards().size(), 26U);
}

TEST_F(Patterns, StockWithoutAPileStaysEmpty) {
    row.Stock.Piles = 0;
    row.Stock.StockNum = StockNum::Redeal;
    Deal();
    EXPECT_EQ(engine.array().GetTop(Cell::Stock, 0), -1);
    EXPECT_TRUE(engine.table.PicStock[0].Visible);
    EXPECT_EQ(engine.table.PicStock[0].Picture, 16);
}

TEST_F(Patterns, ClosedGameComesBackByUndo) {
    row.Home.HomeType = HomeType::Staircase;
    row.Home.CardsOpen = 1;
    row.Home.Order = OrderCode::Anything;
    Deal();
    const std::string dealt = Board();
    for (const int from : {3, 2, 1, 3}) DropOn(Top(Cell::Home, from), Cell::Home, 0);
    EXPECT_EQ(AllFaces(), (Strings{"ooooo", "o", "co", "co"}));
    EXPECT_EQ(engine.trans().Record(1).MoveKind, MoveKind::Uncover);
    const std::string played = Board();
    engine.UndoAll();
    EXPECT_EQ(Board(), dealt);
    engine.RedoAll();
    EXPECT_EQ(Board(), played);
}

}  // namespace
}  // namespace varnello::test
