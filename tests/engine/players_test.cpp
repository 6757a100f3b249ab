#include "fixture.h"

// The lists of players and of recent games.
namespace varnello::test {
namespace {

class Players : public EngineTest {
protected:
    std::string Recent() const {
        std::string list;
        for (std::int16_t i = 1; i <= kMaxRecent; ++i) list += engine.data.GetRecent(i) + '|';
        return list;
    }
    cData& data = engine.data;
};

TEST_F(Players, TwentyOfThemAndNoMore) {
    for (int i = 2; i <= 20; ++i) EXPECT_TRUE(data.AddPlayer("P" + std::to_string(i)));
    EXPECT_EQ(data.TotalPlayers(), 20);
    EXPECT_FALSE(data.AddPlayer("P21"));
    EXPECT_EQ(data.GetPlayer(20), "P20");
    EXPECT_EQ(data.GetPlayer(21), "");
    EXPECT_EQ(data.CurPlayer(), "Player1") << "adding leaves the current one";
}

TEST_F(Players, AreTakenIntoTheFirstFreeSlot) {
    data.AddPlayer("Ada");
    data.AddPlayer("Bob");
    data.SetPlayer(2, "", false);
    EXPECT_EQ(data.TotalPlayers(), 2);
    data.AddPlayer("Cyd");
    EXPECT_EQ(data.GetPlayer(2), "Cyd");
}

TEST_F(Players, AreToldApartByCase) {
    data.AddPlayer("player1");
    EXPECT_EQ(data.FindPlayer("player1"), 2);
    EXPECT_EQ(data.FindPlayer("Player1"), 1);
    EXPECT_EQ(data.FindPlayer("PLAYER1"), 0);
}

TEST_F(Players, CurrentOneIsBookedTo) {
    data.SetPlayer(2, "Zoë K.", true);
    Start("Freecell");
    engine.CloseGame();
    EXPECT_TRUE(std::filesystem::exists(data.AppDir() / std::filesystem::path(u8"Zoë K..sre")));
    EXPECT_FALSE(std::filesystem::exists(ScoreFile()));
}

TEST_F(Players, NamesThatCanBeNoFileAreRefused) {
    for (const char* good : {"A", " A ", "Zoë", "x.y", "..", "a:b"}) {
        EXPECT_TRUE(IsPlayerName(good)) << good;
    }
    for (const char* bad : {"", " ", "   ", "a/b", "/", "a\tb", "a\nb", "\x7f", "\x01"}) {
        EXPECT_FALSE(IsPlayerName(bad)) << bad;
    }
}

TEST_F(Players, RecentGamesComeNewestFirst) {
    EXPECT_EQ(data.RecentCount(), 0);
    for (const char* game : {"A", "B", "A", "A", "C"}) data.SetRecent(game);
    EXPECT_EQ(Recent(), "C|A|B|A||");
    EXPECT_EQ(data.RecentCount(), 4);
    data.SetRecent("D");
    data.SetRecent("E");
    EXPECT_EQ(Recent(), "E|D|C|A|B|");
    data.SetRecent("a");
    data.SetRecent("A");
    EXPECT_EQ(Recent(), "A|a|E|D|C|");
    data.ClearRecent();
    EXPECT_EQ(Recent(), "|||||");
    EXPECT_EQ(data.RecentCount(), 0);
}

TEST_F(Players, EveryStartIsEntered) {
    for (const char* game : {"Avenue", "Zodiac", "Zodiac", "Avenue"}) Start(game);
    EXPECT_EQ(Recent(), "Avenue|Zodiac|Avenue|||");
}

}  // namespace
}  // namespace varnello::test
