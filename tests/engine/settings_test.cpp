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
         {"", "x", "5.0", "0x10", "32768", "-32769", "--5", "+-5", " 5", "5 "}) {
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

TEST_F(Settings, SoundIsHeardOnlyWithItsSwitchAtMinusOne) {
    const std::pair<Sound, NumberKey> sounds[] = {{Sound::Start, keys::SoundStart},
                                                  {Sound::CardUp, keys::SoundCardUp},
                                                  {Sound::CardDown, keys::SoundCardDown},
                                                  {Sound::AutoPlay, keys::SoundAutoPlay},
                                                  {Sound::Undo, keys::SoundUndo},
                                                  {Sound::Redo, keys::SoundRedo},
                                                  {Sound::Win, keys::SoundWin}};
    for (const auto& [sound, key] : sounds) {
        for (const auto& other : sounds) data.Set(other.second, 1);
        data.PlaySound(sound);
        EXPECT_EQ(Heard(), "") << key.Key;
        data.Set(key, -1);
        data.PlaySound(sound);
        EXPECT_EQ(Heard(), "sound: " + std::string(key.Key.substr(5)) + "\n");
    }
}

}  // namespace
}  // namespace varnello::test
