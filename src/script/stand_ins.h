#pragma once

#include <ostream>

#include "engine/null_desktop.h"

/// What the scripted table needs of a desktop besides a null one: a clock that the script moves,
/// sounds and boxes that print.
namespace varnello::script {

using varnello::MemoryStore;
using varnello::NoSurface;

class ScriptClock : public Clock {
public:
    DateTime Now() const override { return now_; }
    double Timer() const override { return static_cast<double>(SecondsSinceEpoch(now_)); }
    void Set(const DateTime& moment) { now_ = moment; }
    /// False, with the clock unchanged, when that would leave the years 1 to 9999.
    bool Advance(std::int64_t seconds);

private:
    DateTime now_{.year = 2026, .month = 1, .day = 1, .hour = 12};
};

/// Prints each sound while `on` is set.
class PrintedSounds : public SoundPlayer {
public:
    explicit PrintedSounds(std::ostream& out) : out_(out) {}
    void Play(Sound event) override;
    bool on = false;

private:
    std::ostream& out_;
};

/// Prints message boxes.
class PrintedMessages : public Messages {
public:
    explicit PrintedMessages(std::ostream& out) : out_(out) {}
    void Inform(const Phrase& text) override;
    void Refuse(const Phrase& text) override { Inform(text); }
    void Warn(const Phrase& text) override { Inform(text); }

private:
    std::ostream& out_;
};

}  // namespace varnello::script
