#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "engine/common/phrase.h"

namespace varnello {

/// What is heard of a game. `Count` is none.
enum class Sound : std::uint8_t { Start, CardUp, CardDown, AutoPlay, Undo, Redo, Win, Count };

/// All that is known of a sound. A new one is an enumerator, its row here, its wave in
/// `assets/sounds`, and the place that plays it.
struct SoundRow {
    Sound Event = Sound::Count;
    std::string_view Switch;   ///< its key in the settings: "Sound" and its name
    bool On = true;            ///< what the switch is worth when it isn't stored
    std::string_view Caption;  ///< what it is called where it is switched
    std::string_view Wave;     ///< the files `Wave`-1.wav and on, heard in turn

    constexpr std::string_view Name() const { return Switch.substr(5); }
};

inline constexpr std::size_t kSoundCount = static_cast<std::size_t>(Sound::Count);

/// In the order of `Sound`, which is also that of the list in which they are switched.
inline constexpr std::array<SoundRow, kSoundCount> kSounds{{
    {Sound::Start, "SoundStart", true, say::Text("Initial Shuffle"), "start"},
    {Sound::CardUp, "SoundCardUp", false, say::Text("Card Up"), "cardup"},
    {Sound::CardDown, "SoundCardDown", false, say::Text("Card Down"), "carddown"},
    {Sound::AutoPlay, "SoundAutoPlay", true, say::Text("Autoplay Move"), "autoplay"},
    {Sound::Undo, "SoundUndo", true, say::Text("Undo"), "undo"},
    {Sound::Redo, "SoundRedo", true, say::Text("Redo"), "undo"},
    {Sound::Win, "SoundWin", true, say::Text("Game Won"), "win"},
}};

constexpr const SoundRow& RowOf(Sound event) { return kSounds[static_cast<std::size_t>(event)]; }

constexpr bool EachSoundHasItsRow() {
    for (std::size_t i = 0; i < kSoundCount; ++i) {
        if (kSounds[i].Event != static_cast<Sound>(i)) return false;
    }
    return true;
}
static_assert(EachSoundHasItsRow(), "a sound has no row, or the rows aren't in the order of Sound");

}  // namespace varnello
