#include <algorithm>
#include <vector>

#include "fixture.h"

// The generator, and the order of the cards that a game number stands for.
namespace varnello::test {
namespace {

class Shuffle : public EngineTest {
protected:
    /// The card values in shuffled order. `game` gives the size of the deck.
    std::vector<int> Order(const GameNumber& number, const std::string& game = "Freecell") {
        engine.StartGame(game, number);
        std::vector<int> values;
        for (int i = 0; i < engine.games.TotalCards(); ++i) {
            values.push_back(engine.array().GetRandom(i));
        }
        return values;
    }
    std::vector<int> Order(double number) { return Order(GameNumber::Number(number)); }
};

TEST(Generator, NegativeArgumentSetsTheStateFromItselfAlone) {
    Generator fresh;
    Generator used;
    used.rtcRandomize(12345.0);
    used.rtcRandomNext();
    const auto expected = static_cast<float>(0x53E080) / 16777216.0F;
    EXPECT_EQ(fresh.rtcRandomNext(-10.0F), expected);
    EXPECT_EQ(used.rtcRandomNext(-10.0F), expected);
    EXPECT_EQ(fresh.rtcRandomNext(), used.rtcRandomNext());
}

TEST(Generator, StaysBelowOne) {
    Generator generator;
    for (int i = 0; i < 100'000; ++i) {
        const float drawn = generator.rtcRandomNext();
        ASSERT_GE(drawn, 0.0F);
        ASSERT_LT(drawn, 1.0F);
    }
}

TEST(Generator, RandomizeKeepsTheLowBitsOfTheState) {
    Generator generator;
    generator.rtcRandomNext(-10.0F);  // state 0x53E080
    generator.rtcRandomize(1.0);      // 0x3FF00000: mixed to 0x3FF0, so the state is 0x3FF080
    const std::uint32_t state = (0x3FF080ULL * 1140671485ULL + 12820163ULL) % (1U << 24);
    EXPECT_EQ(generator.rtcRandomNext(), static_cast<float>(state) / 16777216.0F);
}

TEST_F(Shuffle, FirstGameBeginsAsItAlwaysDid) {
    const std::vector<int> expected{20, 2, 5, 24, 50, 6, 18, 14, 43, 11};
    const std::vector<int> order = Order(1);
    EXPECT_EQ(std::vector<int>(order.begin(), order.begin() + 10), expected);
}

TEST_F(Shuffle, IsAPermutationForEverySize) {
    for (const char* game : {"Stripped Freecell", "Freecell", "Zodiac"}) {
        std::vector<int> order = Order(GameNumber::Number(987654321), game);
        std::sort(order.begin(), order.end());
        for (std::size_t i = 0; i < order.size(); ++i) EXPECT_EQ(order[i], static_cast<int>(i));
    }
}

TEST_F(Shuffle, NumberAndTextActAlike) {
    for (const char* text : {"1", "1.0", "+1", "0.1e1", "10e-1"}) {
        EXPECT_EQ(Order(GameNumber::Text(text)), Order(1)) << text;
    }
    EXPECT_EQ(Order(GameNumber::Text("999999999999999")), Order(999'999'999'999'999));
}

TEST_F(Shuffle, FractionIsAGameOfItsOwn) {
    EXPECT_NE(Order(GameNumber::Text("12.5")), Order(12));
    EXPECT_NE(Order(GameNumber::Text("12.5")), Order(13));
}

TEST_F(Shuffle, NumbersWithTheSameMixtureGiveTheSameDeal) {
    EXPECT_EQ(Order(32), Order(8193));
    EXPECT_NE(Order(32), Order(33));
}

TEST_F(Shuffle, DependsOnTheSizeOfTheDeckAlone) {
    EXPECT_EQ(Order(GameNumber::Number(77), "Freecell"), Order(GameNumber::Number(77), "Penguin"));
    EXPECT_EQ(Order(GameNumber::Number(77), "Zodiac"),
              Order(GameNumber::Number(77), "Double Galaxy"));
}

TEST_F(Shuffle, TakesNoHeedOfEarlierDraws) {
    const std::vector<int> first = Order(5);
    for (int i = 0; i < 7; ++i) engine.RandomGNo();
    clock.Advance(12345);
    EXPECT_EQ(Order(5), first);
}

TEST_F(Shuffle, TwoPacksHaveEqualCardsWithTheirOwnFoundations) {
    Start("Zodiac", 3);
    const PicID first = Find(kKing, 3);
    const PicID second = Find(kKing, 7);
    ASSERT_NE(first, kNoCard);
    ASSERT_NE(second, kNoCard);
    EXPECT_EQ(engine.table.Card(first).Suit, 3);
    EXPECT_EQ(engine.table.Card(second).Suit, 3);
}

TEST_F(Shuffle, SuitTypesFoldThePackSuits) {
    const auto suits = [&](SuitType type) {
        GameRow row = *FindGame("Zodiac");
        row.Home.SuitType = type;
        Play(row);
        Start("Zodiac");
        std::vector<int> bySuitpile(8, -1);
        for (const KesCard& card : engine.table.PicCards) {
            auto& suit = bySuitpile[static_cast<std::size_t>(card.Suitpile)];
            EXPECT_TRUE(suit == -1 || suit == card.Suit);
            suit = card.Suit;
        }
        return bySuitpile;
    };
    EXPECT_EQ(suits(SuitType::One), (std::vector{0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(suits(SuitType::Two), (std::vector{0, 0, 1, 1, 0, 0, 1, 1}));
    EXPECT_EQ(suits(SuitType::Four), (std::vector{0, 1, 2, 3, 0, 1, 2, 3}));
}

}  // namespace
}  // namespace varnello::test
