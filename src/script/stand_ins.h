#pragma once

#include <functional>
#include <ostream>
#include <string>

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

/// Prints message boxes; the won dialog is handed to `finish`.
class PrintedDialogs : public Dialogs {
public:
    explicit PrintedDialogs(std::ostream& out) : out_(out) {}
    void Inform(const std::string& text) override;
    void Refuse(const std::string& text) override { Inform(text); }
    bool Ask(const std::string& text) override;
    bool AskToStop(const std::string& text) override { return Ask(text); }
    std::optional<ChosenFile> AskForTextFile(const std::string&) override { return chosenFile; }
    bool answer = true;
    std::optional<ChosenFile> chosenFile;
    void ShowFinish() override { finish(); }
    std::function<void()> finish;

private:
    void Print(const char* what, std::string text);

    std::ostream& out_;
};

}  // namespace varnello::script
