#include <sstream>
#include <string_view>

#include "engine/common/number_text.h"
#include "engine/flow/engine.h"
#include "engine/null_desktop.h"
#include "target.h"

// Settings edited by hand, as text: [Section] and KEY=VALUE. Whatever they hold, the program
// starts, plays, shows its marks, and writes nowhere but into its data folder.
namespace varnello::test {
namespace {

void Fill(SettingsStore& store, const std::string& text) {
    std::istringstream lines(text);
    std::string section = "Data";
    for (std::string line; std::getline(lines, line);) {
        const std::size_t equals = line.find('=');
        if (line.starts_with('[') && line.ends_with(']')) {
            section = line.substr(1, line.size() - 2);
        } else if (equals != std::string::npos) {
            store.Write(section, line.substr(0, equals), line.substr(equals + 1));
        }
    }
}

void CheckNumbers(const Engine& engine, const SettingsStore& store) {
    for (const NumberKey& key : NumberKeys()) {
        const auto stored = ParseWhole<std::int16_t>(store.Read("Data", key.Key, ""));
        Require(engine.data().Get(key) == stored.value_or(key.Default), std::string(key.Key));
    }
    const double limit = engine.choosing().MaxGNo();
    Require(limit >= 0 && limit < 1e15, "the highest number");
    Require(engine.choosing().RangeText().English().starts_with("0 and "), "the range's text");
    (void)engine.data().CustomColor();
}

/// A file of the data folder itself, by a name that names a file.
void CheckPlayers(const cData& data) {
    const std::int16_t players = data.TotalPlayers();
    Require(players >= 1 && players <= kMaxPlayers, "number of players");
    Require(!data.CurPlayer().empty(), "no current player");
    for (std::int16_t slot = 0; slot <= kMaxPlayers; ++slot) {
        const std::string name = slot == 0 ? data.CurPlayer() : data.GetPlayer(slot);
        Require((slot > players) == name.empty(), "a gap between the players");
        const std::filesystem::path file = ScorePath(data, name);
        Require(file.parent_path() / "" == data.AppDir(), "results outside the data folder");
        Require(file.native().find('\0') == std::string::npos, "a name that a file can't have");
    }
}

void Play(Engine& engine) {
    engine.commands().NewGame();
    Require(engine.data().GameRunning, "no game");
    Require(engine.data().GetGameID(engine.data().CurGName()) != 0, "a game of no name");
    for (int tick = 0; tick < 3; ++tick) engine.counters().TimeTick();
    const PicID top = engine.table().VisibleCards().back();
    engine.gestures().MouseDown(top, 0, 0);
    engine.gestures().MouseUp(top);
    engine.commands().ToggleAutoplay();
    engine.commands().ToggleToolbar();
    engine.commands().Undo();
    engine.commands().Redo();
    for (std::int16_t i = 1; i <= kMaxRecent; ++i) engine.commands().RecentGame(i);
    Require(engine.commands().UpdateRecent()[0].starts_with("&1 "), "the newest game");
    if (engine.players().MayAddPlayer()) engine.players().EnterPlayer("", "Ada");
    engine.players().EnterPlayer(engine.data().GetPlayer(1), "Grace");
    engine.commands().CloseGame();
    Require(engine.score().SesTop() >= 1, "the game isn't in the list of this run");
}

}  // namespace
}  // namespace varnello::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varnello;
    constexpr std::size_t kMostBytes = 4096;
    if (size > kMostBytes) return 0;
    const test::TempFolder folder;
    NullDesktop nothing;
    test::Fill(nothing.settings, std::string(reinterpret_cast<const char*>(data), size));
    Engine engine(nothing.Interfaces(folder.Path()));
    engine.InitMain();
    test::CheckNumbers(engine, nothing.settings);
    test::CheckPlayers(engine.data());
    test::Play(engine);
    test::CheckPlayers(engine.data());
    return 0;
}
