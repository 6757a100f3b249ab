#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "engine/desktop.h"
#include "engine/settings/game_number.h"

namespace varnello {

inline constexpr std::string_view kProductName = "Varnello";
inline constexpr std::string_view kVersion = "3.0";
inline constexpr std::int16_t kMaxPlayers = 20;
inline constexpr std::int16_t kMaxRecent = 5;
inline constexpr std::size_t kMaxPlayerName = 25;  ///< characters

/// A whole-number key of the settings section "Data" and its default.
struct NumberKey {
    std::string_view Key;
    std::int16_t Default;
};

namespace keys {
inline constexpr NumberKey Autoplay{"Autoplay", 1};
inline constexpr NumberKey ShowToolbar{"ShowToolbar", 1};
inline constexpr NumberKey CardSpeed{"CardSpeed", 5};
inline constexpr NumberKey UndoSpeed{"UndoSpeed", 5};
inline constexpr NumberKey UndoallSpeed{"UndoallSpeed", 2};
inline constexpr NumberKey ReplaySpeed{"ReplaySpeed", 7};
inline constexpr NumberKey ShowTime{"ShowTime", 1};
inline constexpr NumberKey ShowScore{"ShowScore", 1};
inline constexpr NumberKey ShowMoves{"ShowMoves", 1};
inline constexpr NumberKey BGIndex{"BGIndex", 1007};
inline constexpr NumberKey RangeIndex{"RangeIndex", 15};
inline constexpr NumberKey DeckIndex{"DeckIndex", 531};
inline constexpr NumberKey Fade{"Fade", 1};
}  // namespace keys

/// The switch of a sound: -1 on, 0 off.
constexpr NumberKey SwitchOf(Sound event) {
    return {RowOf(event).Switch, RowOf(event).On ? std::int16_t{-1} : std::int16_t{0}};
}

/// All of them, and the switches of the sounds.
std::span<const NumberKey> NumberKeys();

inline constexpr std::string_view kLastGNameKey = "LastGName";
inline constexpr std::string_view kCustomColorKey = "CustomColor";
inline constexpr std::int32_t kDefaultCustomColor = 128;  // red + 256 x green + 65536 x blue

/// Settings, players, recent games, and the record of the current game. Settings aren't cached:
/// every read goes to the store, unless the command that reads holds a `OneReading`, and every
/// write is durable at once. What stands there already isn't written again.
class cData {
public:
    cData(SettingsStore& store, SoundPlayer& sounds, const std::filesystem::path& appDir);

    /// The folder of all data files. Its text ends with the separator.
    const std::filesystem::path& AppDir() const { return appDir_; }
    /// For what a desktop remembers beside the program's own settings.
    SettingsStore& Store() { return store_; }

    // Settings. A stored text that isn't a 16-bit number counts as the default.
    std::int16_t Get(const NumberKey& key) const;
    void Set(const NumberKey& key, std::int16_t value);
    /// Writes a key of section "Data" as text. False, with nothing written, for an unknown key, a
    /// value that isn't a whole number, or a last game that is no game.
    bool SetText(std::string_view key, std::string_view value);
    /// The game last started; the first of the catalogue when none was, or none that exists.
    std::string LastGName() const;
    void LastGName(std::string_view name);
    /// 32-bit colour: red + 256 x green + 65536 x blue.
    std::int32_t CustomColor() const;
    void CustomColor(std::int32_t color);

    // Game names. Ids count from 1; 0 stands for no game, and the name of no game is empty.
    std::int16_t TotalGames() const;
    std::string GetGName(std::int16_t id) const;
    std::int16_t GetGameID(std::string_view name) const;

    // Players. Slots 1 to 20 are kept packed.
    std::int16_t TotalPlayers() const;
    std::string GetPlayer(std::int16_t slot) const;
    void SetPlayer(std::int16_t slot, std::string_view name, bool makeCurrent);
    /// Always a listed player, the first when the stored name isn't listed; empty without any.
    std::string CurPlayer() const;
    void CurPlayer(std::string_view name);
    /// The slot that holds exactly this name, or 0.
    std::int16_t FindPlayer(std::string_view name) const;
    /// Puts the name into the first free slot; false when all 20 are taken.
    bool AddPlayer(std::string_view name);
    /// Closes all gaps between the names, which keep their order; of a doubled name the first
    /// stays.
    void PackPlayers();
    /// The rename of a player whose score file may not have its new name yet; empty without one.
    std::string RenamedFrom() const;
    std::string RenamedTo() const;
    void SetRenamed(std::string_view from, std::string_view to);

    /// Several reads and writes as one change, see `SettingsStore::Change`.
    bool Change(const std::function<void()>& change) { return store_.Change(change); }
    /// The same for what is to hold in this run even if it can't be written.
    void Together(const std::function<void()>& change);

    /// While one lives, each whole-number setting is read from the store once: for what would ask
    /// for it again with every card.
    class OneReading {
    public:
        explicit OneReading(const cData& data) : data_(data) { ++data_.readers_; }
        ~OneReading() {
            if (--data_.readers_ == 0) data_.seen_.clear();
        }
        OneReading(const OneReading&) = delete;
        OneReading& operator=(const OneReading&) = delete;

    private:
        const cData& data_;
    };

    // Recent games, 1 the newest.
    std::string GetRecent(std::int16_t index) const;
    void SetRecent(std::string_view name);
    std::int16_t RecentCount() const;
    void ClearRecent();

    bool SoundOn(Sound event) const { return Get(SwitchOf(event)) == -1; }
    /// Plays the event's sound if its switch is on.
    void PlaySound(Sound event);
    /// Plays it whatever its switch says, for who wants to know how it sounds.
    void TrySound(Sound event) { sounds_.Play(event); }

    // The game on the table. These stay readable after it has ended.
    DateTime SesStartTime;
    DateTime GameStartTime;
    // The same moments as `Clock::Seconds` counts.
    std::int64_t SesStartSeconds = 0;
    std::int64_t GameStartSeconds = 0;
    bool GameRunning = false;
    bool GameWon = false;  ///< all cards are up, and the running game's result isn't booked yet
    /// Whether the running game can still be played.
    bool Playing() const { return GameRunning && !GameWon; }
    const std::string& CurGName() const { return curGName_; }
    /// Also makes it the game last started.
    void CurGName(std::string_view name);
    GameNumber CurGNo;
    std::int32_t CurTime = 0;  ///< seconds, as of the last counter tick
    std::int16_t CurMoves = 0;
    std::int16_t CurScore = 0;

private:
    std::int16_t ReadDataKey(std::string_view key, std::int16_t fallback) const;
    void SaveDataKey(std::string_view key, std::int16_t value);
    std::string Slot(std::string_view section, std::int16_t index) const;
    void Slot(std::string_view section, std::int16_t index, std::string_view text);
    std::int16_t CountSlots(std::string_view section, std::int16_t slots) const;

    SettingsStore& store_;
    SoundPlayer& sounds_;
    std::filesystem::path appDir_;
    std::string curGName_;
    mutable int readers_ = 0;  ///< living `OneReading`s
    mutable std::vector<std::pair<std::string_view, std::int16_t>> seen_;
};

/// A name that a player may have: not blank, and fit to be a file's name everywhere.
bool IsPlayerName(std::string_view name);

/// A name that may be entered: also without blanks of other kinds alone, and without anything that
/// can't be seen.
bool IsNewPlayerName(std::string_view name);

/// The name cut to the characters that a player's name may have.
std::string CutPlayerName(std::string_view name);

/// `AppDir` + name + ".sre".
std::filesystem::path ScorePath(const cData& data, std::string_view player);

}  // namespace varnello
