#include "script/stand_ins.h"

#include <algorithm>

namespace varnello::script {

bool ScriptClock::Advance(std::int64_t seconds) {
    constexpr std::int64_t kLongest = 400'000'000'000;  // more than all years of the calendar
    if (seconds > kLongest) return false;
    const DateTime moment = FromSecondsSinceEpoch(SecondsSinceEpoch(now_) + seconds);
    if (!IsValid(moment)) return false;
    now_ = moment;
    return true;
}

void PrintedSounds::Play(Sound event) {
    if (on) out_ << "sound: " << RowOf(event).Name() << '\n';
}

void PrintedMessages::Inform(const Phrase& text) {
    std::string line = text.English();
    std::replace(line.begin(), line.end(), '\n', ' ');
    out_ << "message: " << line << '\n';
}

}  // namespace varnello::script
