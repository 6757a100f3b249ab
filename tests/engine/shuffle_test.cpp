#include "fixture.h"

// The order of the cards that a game number stands for.
namespace varnello::test {
namespace {

class Shuffle : public EngineTest {
protected:
    /// The card values in shuffled order. `game` gives the size of the deck.
    std::vector<int> Order(const GameNumber& number, const std::string& game = "Freecell") {
        engine.life().StartGame(game, number);
        std::vector<int> values;
        for (int i = 0; i < engine.games().TotalCards(); ++i) {
            values.push_back(engine.array().GetRandom(i));
        }
        return values;
    }
    std::vector<int> Order(double number) { return Order(GameNumber::Number(number)); }
};

TEST_F(Shuffle, GoesByTheNumbersValue) {
    for (const char* text : {"1", "1.0", "+1", "0.1e1", "10e-1"}) {
        EXPECT_EQ(Order(GameNumber::Text(text)), Order(1)) << text;
    }
    EXPECT_NE(Order(GameNumber::Text("12.5")), Order(12));
    EXPECT_NE(Order(GameNumber::Text("12.5")), Order(13));
    EXPECT_EQ(Order(32), Order(8193)) << "numbers with the same mixture";
    EXPECT_NE(Order(32), Order(33));
}

}  // namespace
}  // namespace varnello::test
