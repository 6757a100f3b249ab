#include "fixture.h"

// The settings: their defaults, and what a store edited by hand may hold.
namespace varnello::test {
namespace {

class Settings : public EngineTest {
protected:
    cData& data = engine.data();
};

TEST_F(Settings, NonsenseCountsAsTheDefault) {
    for (const char* nonsense :
         {"", "-", "x", "5.0", "0x10", "32768", "-32769", "--5", "+-5", " 5", "5 "}) {
        store.Write("Data", "UndoSpeed", nonsense);
        EXPECT_EQ(data.Get(keys::UndoSpeed), 5) << nonsense;
    }
    data.Set(keys::UndoSpeed, -32768);
    EXPECT_EQ(store.Read("Data", "UndoSpeed", ""), "-32768");
    EXPECT_EQ(data.Get(keys::UndoSpeed), -32768);
    EXPECT_EQ(data.CustomColor(), 128);
    store.Write("Data", "CustomColor", "40000");
    EXPECT_EQ(data.CustomColor(), 40000) << "32 bits wide";
    store.Write("Data", "CustomColor", "2147483648");
    EXPECT_EQ(data.CustomColor(), 128);
    EXPECT_EQ(data.LastGName(), "Avenue");
    store.Write("Data", "LastGName", "freecell");
    EXPECT_EQ(data.LastGName(), "Avenue");
}

TEST_F(Settings, AreWrittenOnceForACommandAndOnlyWhenTheyChange) {
    const auto written = [&](const std::string& game) {
        store.writes = 0;
        Start(game);
        return store.writes;
    };
    EXPECT_EQ(written("Zodiac"), 1);
    EXPECT_EQ(written("Zodiac"), 0);
    EXPECT_EQ(written("Penguin"), 1);
    store.writes = 0;
    engine.choosing().ClearRecentGames();
    EXPECT_EQ(store.writes, 1);
    engine.choosing().ClearRecentGames();
    data.Set(keys::Fade, 1);
    data.CustomColor(128);
    data.CurPlayer("Player1");
    EXPECT_EQ(store.writes, 1) << "what stands there, or counts when nothing does";
}

TEST_F(Settings, SoundIsHeardOnlyWithItsSwitchAtMinusOne) {
    for (const SoundRow& row : kSounds) {
        for (const SoundRow& other : kSounds) data.Set(SwitchOf(other.Event), 1);
        data.PlaySound(row.Event);
        EXPECT_EQ(Heard(), "") << row.Switch;
        data.Set(SwitchOf(row.Event), -1);
        data.PlaySound(row.Event);
        EXPECT_EQ(Heard(), "sound: " + std::string(row.Name()) + "\n");
    }
}

}  // namespace
}  // namespace varnello::test
