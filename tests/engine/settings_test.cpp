#include "fixture.h"

// The settings: their defaults, and what a store edited by hand may hold.
namespace varnello::test {
namespace {

class Settings : public EngineTest {
protected:
    std::string Stored(std::string_view key) const { return store.Read("Data", key, "(none)"); }
    cData& data = engine.data;
};

TEST_F(Settings, FirstRunHasTheDefaults) {
    const std::pair<const char*, int> defaults[] = {
        {"Autoplay", 1},     {"ShowToolbar", 1}, {"CardSpeed", 5},   {"UndoSpeed", 5},
        {"UndoallSpeed", 2}, {"ReplaySpeed", 7}, {"SoundStart", -1}, {"SoundCardDown", 0},
        {"SoundCardUp", 0},  {"SoundUndo", -1},  {"SoundRedo", -1},  {"SoundAutoPlay", -1},
        {"SoundWin", -1},    {"ShowTime", 1},    {"ShowScore", 1},   {"ShowMoves", 1},
        {"BGIndex", 1007},   {"RangeIndex", 15}, {"DeckIndex", 531}, {"Fade", 1}};
    ASSERT_EQ(NumberKeys().size(), std::size(defaults));
    for (std::size_t i = 0; i < std::size(defaults); ++i) {
        EXPECT_EQ(NumberKeys()[i].Key, defaults[i].first);
        EXPECT_EQ(data.Get(NumberKeys()[i]), defaults[i].second) << defaults[i].first;
    }
    EXPECT_EQ(data.LastGName(), "Avenue");
    EXPECT_EQ(data.CustomColor(), 128);
}

TEST_F(Settings, AreWrittenAtOnceInPlainDecimal) {
    data.Set(keys::BGIndex, -12);
    EXPECT_EQ(Stored("BGIndex"), "-12");
    data.CustomColor(16777215);
    EXPECT_EQ(Stored("CustomColor"), "16777215");
    data.CurGName("Zodiac");
    EXPECT_EQ(Stored("LastGName"), "Zodiac");
    store.Write("Data", "BGIndex", "1001");
    EXPECT_EQ(data.Get(keys::BGIndex), 1001) << "nothing is cached";
}

TEST_F(Settings, NonsenseCountsAsTheDefault) {
    for (const char* nonsense : {"", " ", "x", "5x", "5.0", "1e1", "0x10", "32768", "-32769",
                                 "99999999999999999999", "--5", "5 ", " 5", "\xd9\xa3"}) {
        store.Write("Data", "UndoSpeed", nonsense);
        EXPECT_EQ(data.Get(keys::UndoSpeed), 5) << nonsense;
    }
    for (const auto& [text, value] :
         {std::pair<const char*, int>{"32767", 32767},
          std::pair<const char*, int>{"-32768", -32768}, std::pair<const char*, int>{"007", 7}}) {
        store.Write("Data", "UndoSpeed", text);
        EXPECT_EQ(data.Get(keys::UndoSpeed), value);
    }
    store.Write("Data", "CustomColor", "2147483648");
    EXPECT_EQ(data.CustomColor(), 128);
    store.Write("Data", "CustomColor", "40000");
    EXPECT_EQ(data.CustomColor(), 40000) << "32 bits wide";
}

TEST_F(Settings, TextsAreCheckedBeforeTheyAreWritten) {
    const std::pair<const char*, const char*> refused[] = {
        {"Nonsense", "1"},    {"undospeed", "1"},        {"UndoSpeed", "a"},
        {"UndoSpeed", "1.5"}, {"UndoSpeed", ""},         {"UndoSpeed", "-"},
        {"LastGName", "x"},   {"LastGName", "freecell"}, {"CustomColor", "#"}};
    for (const auto& [key, value] : refused) {
        EXPECT_FALSE(data.SetText(key, value)) << key << '=' << value;
        EXPECT_EQ(Stored(key), "(none)");
    }
    EXPECT_TRUE(data.SetText("UndoSpeed", "-7"));
    EXPECT_EQ(data.Get(keys::UndoSpeed), -7);
    EXPECT_TRUE(data.SetText("LastGName", "Baker's Game"));
    EXPECT_TRUE(data.SetText("CustomColor", "16711680"));
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
        for (const NumberKey& other : NumberKeys()) {
            if (other.Key.starts_with("Sound")) data.Set(other, 0);
        }
        data.PlaySound(sound);
        EXPECT_EQ(Heard(), "") << key.Key;
        data.Set(key, -1);
        data.PlaySound(sound);
        EXPECT_EQ(Heard(), "sound: " + std::string(key.Key.substr(5)) + "\n");
    }
}

TEST_F(Settings, SilentSwitchesSilenceTheGame) {
    data.Set(keys::SoundStart, 0);
    Start("Freecell");
    EXPECT_EQ(Heard().find("sound"), std::string::npos);
}

}  // namespace
}  // namespace varnello::test
