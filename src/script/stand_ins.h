#pragma once

#include <functional>
#include <map>
#include <ostream>
#include <string>

#include "engine/desktop.h"

/// The desktop of the scripted table: settings in memory, a clock that stands still, a surface
/// without pixels.
namespace varnello::script {

class MemoryStore : public SettingsStore {
public:
    std::string Read(std::string_view section, std::string_view key,
                     std::string_view fallback) const override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;

private:
    using Section = std::map<std::string, std::string, std::less<>>;
    std::map<std::string, Section, std::less<>> sections_;
};

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

class NoSurface : public TableSurface {
public:
    void Repaint() override {}
    void RepaintFlight() override {}
    void Yield() override {}
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

/// Prints message boxes; the won dialog is handed to `finish`.
class PrintedDialogs : public Dialogs {
public:
    explicit PrintedDialogs(std::ostream& out) : out_(out) {}
    void Inform(const std::string& text) override;
    void ShowFinish() override { finish(); }
    std::function<void()> finish;

private:
    std::ostream& out_;
};

}  // namespace varnello::script
