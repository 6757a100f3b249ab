#include <vector>

#include "board_fixture.h"
#include "engine/rules/order.h"

// Which card may lie on which.
namespace varnello::test {
namespace {

KesCard Card(std::string_view text) {
    const CardText value(text);
    KesCard card;
    card.SetValue(value.suit, value.num, value.suitpile);
    return card;
}

bool Fits(int order, std::string_view target, std::string_view moved, bool AK = false) {
    return FitsOrder(Card(target), Card(moved), static_cast<OrderCode>(order), AK);
}

struct OrderCase {
    int order;
    const char* target;
    const char* moved;
    bool plain;    // fits when ranks end at Ace and King
    bool goRound;  // fits when ranks go round
};

class Orders : public ::testing::TestWithParam<OrderCase> {};

TEST_P(Orders, DecideByRankSuitAndWrapping) {
    const auto& [order, target, moved, plain, goRound] = GetParam();
    EXPECT_EQ(Fits(order, target, moved, false), plain) << order << ' ' << target << ' ' << moved;
    EXPECT_EQ(Fits(order, target, moved, true), goRound) << order << ' ' << target << ' ' << moved;
}

INSTANTIATE_TEST_SUITE_P(
    Table, Orders,
    ::testing::Values(
        OrderCase{0, "TS", "9S", false, false}, OrderCase{1, "TS", "9S", true, true},
        OrderCase{1, "TS", "9C", false, false}, OrderCase{1, "9S", "TS", false, false},
        OrderCase{1, "AS", "KS", false, true}, OrderCase{1, "AS", "KC", false, false},
        OrderCase{1, "KS", "AS", false, false}, OrderCase{2, "9D", "TD", true, true},
        OrderCase{2, "KD", "AD", false, true}, OrderCase{2, "AD", "KD", false, false},
        OrderCase{3, "9D", "8D", true, true}, OrderCase{3, "9D", "TD", true, true},
        OrderCase{3, "9D", "TH", false, false}, OrderCase{3, "AD", "KD", false, true},
        OrderCase{3, "KD", "AD", false, true}, OrderCase{4, "TS", "9H", true, true},
        OrderCase{4, "TS", "9D", true, true}, OrderCase{4, "TD", "9H", false, false},
        OrderCase{4, "AS", "KH", false, true}, OrderCase{5, "9H", "TC", true, true},
        OrderCase{5, "9H", "TD", false, false}, OrderCase{5, "KC", "AD", false, true},
        OrderCase{6, "9H", "TC", true, true}, OrderCase{6, "9H", "8S", true, true},
        OrderCase{6, "9H", "8D", false, false}, OrderCase{7, "TS", "9S", true, true},
        OrderCase{7, "TS", "9H", true, true}, OrderCase{7, "TS", "JH", false, false},
        OrderCase{8, "KS", "AH", false, true}, OrderCase{8, "TS", "JC", true, true},
        OrderCase{9, "TS", "TS", true, true}, OrderCase{9, "2H", "KC", true, true},
        OrderCase{10, "TS", "9S", false, false}, OrderCase{11, "TS", "9H", false, false},
        OrderCase{12, "TS", "9H", true, true}, OrderCase{12, "TS", "JS", true, true},
        OrderCase{12, "TS", "TH", false, false}, OrderCase{12, "AC", "KC", false, true}));

class AllPairs : public ::testing::TestWithParam<bool> {
protected:
    template <typename Check>
    void ForEachPair(Check&& check) const {
        static constexpr std::string_view kRanks = "A23456789TJQK";
        static constexpr std::string_view kSuits = "HSDC";
        std::vector<std::string> deck;
        for (const char rank : kRanks) {
            for (const char suit : kSuits) deck.push_back({rank, suit});
        }
        for (const std::string& target : deck) {
            for (const std::string& moved : deck) check(target, moved);
        }
    }
    bool Fit(int order, const std::string& target, const std::string& moved) const {
        return Fits(order, target, moved, GetParam());
    }
};

TEST_P(AllPairs, EitherIsDownOrUp) {
    ForEachPair([&](const std::string& a, const std::string& b) {
        EXPECT_EQ(Fit(3, a, b), Fit(1, a, b) || Fit(2, a, b)) << a << b;
        EXPECT_EQ(Fit(6, a, b), Fit(4, a, b) || Fit(5, a, b)) << a << b;
        EXPECT_EQ(Fit(12, a, b), Fit(7, a, b) || Fit(8, a, b)) << a << b;
    });
}

TEST_P(AllPairs, UpIsDownTurnedRound) {
    ForEachPair([&](const std::string& a, const std::string& b) {
        EXPECT_EQ(Fit(2, a, b), Fit(1, b, a)) << a << b;
        EXPECT_EQ(Fit(5, a, b), Fit(4, b, a)) << a << b;
        EXPECT_EQ(Fit(8, a, b), Fit(7, b, a)) << a << b;
    });
}

TEST_P(AllPairs, EachCardHasItsNumberOfNeighbours) {
    // Without wrapping 12 of 13 ranks have a next one; with it all 13. Suits: 1, 2 and 4 of 4 fit.
    int counts[13] = {};
    for (int order = 0; order <= 12; ++order) {
        ForEachPair([&](const std::string& a, const std::string& b) {
            if (Fit(order, a, b)) ++counts[order];
        });
    }
    const int ranks = GetParam() ? 13 : 12;
    const std::vector<int> expected{0,         ranks * 4,  ranks * 4,  ranks * 8,  ranks * 8,
                                    ranks * 8, ranks * 16, ranks * 16, ranks * 16, 52 * 52,
                                    0,         0,          ranks * 32};
    EXPECT_EQ(std::vector<int>(counts, counts + 13), expected);
}

INSTANTIATE_TEST_SUITE_P(Wrapping, AllPairs, ::testing::Bool());

TEST(OneSuit, NeverDiffersInColor) {
    for (const char rank : std::string_view("A23456789TJQK")) {
        EXPECT_FALSE(Fits(4, "7H", std::string{rank, 'H'}));
        EXPECT_FALSE(Fits(5, "7H", std::string{rank, 'H'}));
    }
}

TEST(Faces, ArentLookedAt) {
    KesCard target = Card("TS");
    KesCard moved = Card("9H");
    target.FaceMode = FaceMode::Closed;
    moved.FaceMode = FaceMode::Closed;
    EXPECT_TRUE(FitsOrder(target, moved, OrderCode::DownColor, false));
}

}  // namespace
}  // namespace varnello::test
