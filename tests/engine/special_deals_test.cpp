#include <set>
#include <vector>

#include "fixture.h"

// What is special in the deals of single games.
namespace varnello::test {
namespace {

class SpecialDeals : public EngineTest {
protected:
    void SetUp() override { engine.data.Set(keys::Autoplay, 0); }
    std::vector<int> Heights(Cell cell) const {
        std::vector<int> heights;
        for (int pile = 0; pile < engine.games.Piles(cell); ++pile) {
            heights.push_back(engine.array().GetTop(cell, pile) + 1);
        }
        return heights;
    }
    const KesCard& At(Cell cell, int pile, int pos) const {
        return engine.table.Card(engine.array().GetPicID(cell, pile, pos));
    }
    const KesCard& TopCard(Cell cell, int pile) const { return engine.table.Card(Top(cell, pile)); }
};

TEST_F(SpecialDeals, LastCardComesFirst) {
    Start("Freecell");
    EXPECT_EQ(engine.array().GetPicID(Cell::Home, 0, 0), 51);
    EXPECT_EQ(engine.array().GetPicID(Cell::Home, 1, 0), 50);
    EXPECT_EQ(engine.array().GetPicID(Cell::Home, 3, 6), 0);
}

TEST_F(SpecialDeals, PatternsGiveTheirHeights) {
    const std::pair<const char*, std::vector<int>> cases[] = {
        {"Freecell", {7, 7, 7, 7, 6, 6, 6, 6}},
        {"Klondike Freecell", {1, 2, 3, 4, 5, 6, 7, 8}},
        {"Double Klondike Freecell", {1, 2, 3, 4, 5, 6, 7, 8, 9}},
        {"Cone Freecell", {4, 5, 6, 7, 8, 7, 6, 5, 4}},
        {"Four Colors", {13, 13, 13, 13, 0, 0, 0}},
        {"Milligan Cell", {1, 1, 1, 1, 1, 1, 1, 1}}};
    for (const auto& [game, heights] : cases) {
        Start(game);
        EXPECT_EQ(Heights(Cell::Home), heights) << game;
    }
}

TEST_F(SpecialDeals, FourColorsSortsByColor) {
    Start("Four Colors", 99);
    for (int pile = 0; pile < 4; ++pile) {
        for (int pos = 0; pos < 13; ++pos) EXPECT_EQ(At(Cell::Home, pile, pos).Suit, pile);
    }
}

TEST_F(SpecialDeals, SeeSawRepeatsItselfAndFavoursTheInnerPiles) {
    std::vector<int> sums(8);
    for (int number = 1; number <= 60; ++number) {
        Start("See-Saw", number);
        const std::string board = Board();
        const std::vector<int> heights = Heights(Cell::Home);
        for (std::size_t i = 0; i < 8; ++i) sums[i] += heights[i];
        Start("Freecell", number + 1);
        Start("See-Saw", number);
        ASSERT_EQ(Board(), board);
    }
    for (std::size_t inner = 1; inner < 7; ++inner) {
        EXPECT_GT(sums[inner], sums[0]);
        EXPECT_GT(sums[inner], sums[7]);
    }
}

TEST_F(SpecialDeals, AcesAndKingsStartTheirFoundations) {
    Start("Freecell AK", 6);
    for (int pile = 0; pile < 4; ++pile) {
        const int rank = pile < 2 ? kAce : kKing;
        EXPECT_EQ(TopCard(Cell::Goal, pile).Num, rank);
        EXPECT_EQ(TopCard(Cell::Goal, pile).Suitpile, pile);
        EXPECT_EQ(engine.table.PicRight[static_cast<std::size_t>(pile)].Picture, rank);
    }
    EXPECT_EQ(engine.games.Order(Cell::Goal, 1), OrderCode::UpSuit);
    EXPECT_EQ(engine.games.Order(Cell::Goal, 2), OrderCode::DownSuit);
}

TEST_F(SpecialDeals, EightAcesLieOnTheirOwnFoundations) {
    Start("Zodiac", 12);
    for (int pile = 0; pile < 8; ++pile) {
        EXPECT_EQ(TopCard(Cell::Goal, pile).Num, kAce);
        EXPECT_EQ(TopCard(Cell::Goal, pile).Suitpile, pile);
    }
}

TEST_F(SpecialDeals, PenguinTakesItsBaseFromTheFirstCard) {
    std::set<int> bases;
    for (int number = 1; number <= 60; ++number) {
        Start("Penguin", number);
        const int base = engine.table.Card(0).Num;
        bases.insert(base);
        EXPECT_EQ(engine.games.GoalBase(), base);
        EXPECT_EQ(engine.games.EmptyNum(), base == 0 ? 12 : base - 1);
        EXPECT_EQ(Heights(Cell::Goal), (std::vector{1, 1, 1, 0}));
        EXPECT_EQ(Top(Cell::Goal, 0), 0);
        for (int pile = 0; pile < 3; ++pile) EXPECT_EQ(TopCard(Cell::Goal, pile).Num, base);
        for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(engine.table.PicRight[i].Picture, base);
        EXPECT_LT(Top(Cell::Goal, 1), Top(Cell::Goal, 2)) << "in the order found";
    }
    EXPECT_TRUE(bases.contains(0)) << "the numbers tried should reach the wrap-around";
    Start("Freecell");
    EXPECT_EQ(engine.games.GoalBase(), 0);
}

TEST_F(SpecialDeals, StalactitesHangFromTheFirstFourCards) {
    Start("Stalactites", 8);
    for (int pile = 0; pile < 4; ++pile) {
        EXPECT_EQ(Top(Cell::Goal, pile), pile);
        EXPECT_EQ(engine.table.PicRight[static_cast<std::size_t>(pile)].Picture,
                  engine.table.Card(I16(pile)).Num);
    }
}

TEST_F(SpecialDeals, StrippedDeckHasTwoSuits) {
    Start("Stripped Freecell");
    for (PicID id = 0; id < 26; ++id) EXPECT_LT(engine.table.Card(id).Suit, 2);
    EXPECT_FALSE(engine.table.Card(26).Visible);
}

TEST_F(SpecialDeals, RunFoundationsShowTheirMark) {
    for (const auto& [game, mark] : {std::pair<const char*, int>{"Galaxy", 13},
                                     std::pair<const char*, int>{"Double Galaxy", 0},
                                     std::pair<const char*, int>{"Freecell", 0}}) {
        Start(game);
        EXPECT_EQ(engine.table.PicRight[0].Picture, mark) << game;
    }
}

TEST_F(SpecialDeals, GameWithoutAWasteForgetsTheLastGames) {
    Start("Cascade");
    Start("Oasis");
    EXPECT_EQ(engine.games.Piles(Cell::Waste), 0);
    EXPECT_FALSE(engine.table.PicWaste[0].Visible);
}

}  // namespace
}  // namespace varnello::test
