#include "script/stand_ins.h"

#include <algorithm>

namespace varnello::script {
namespace {

/// The argument of `PlaySound` for an event.
std::string_view SoundName(Sound event) {
    switch (event) {
        case Sound::Start: return "Start";
        case Sound::CardUp: return "CardUp";
        case Sound::CardDown: return "CardDown";
        case Sound::AutoPlay: return "AutoPlay";
        case Sound::Undo: return "Undo";
        case Sound::Redo: return "Redo";
        case Sound::Win: return "Win";
    }
    return {};
}

}  // namespace

bool ScriptClock::Advance(std::int64_t seconds) {
    constexpr std::int64_t kLongest = 400'000'000'000;  // more than all years of the calendar
    if (seconds > kLongest) return false;
    const DateTime moment = FromSecondsSinceEpoch(SecondsSinceEpoch(now_) + seconds);
    if (!IsValid(moment)) return false;
    now_ = moment;
    return true;
}

void PrintedSounds::Play(Sound event) {
    if (on) out_ << "sound: " << SoundName(event) << '\n';
}

void PrintedMessages::Inform(const std::string& text) {
    std::string line = text;
    std::replace(line.begin(), line.end(), '\n', ' ');
    out_ << "message: " << line << '\n';
}

}  // namespace varnello::script
