#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "engine/desktop.h"

/// A desktop without a screen: settings in memory, a clock that stands still, nothing shown or
/// heard.
namespace varnello {

class MemoryStore : public SettingsStore {
public:
    std::string Read(std::string_view section, std::string_view key,
                     std::string_view fallback) const override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;

private:
    using Section = std::map<std::string, std::string, std::less<>>;
    std::map<std::string, Section, std::less<>> sections_;
};

class NoSurface : public TableSurface {
public:
    void Repaint() override {}
    void RepaintFlight() override {}
    void Yield() override {}
};

class NoSounds : public SoundPlayer {
public:
    void Play(Sound) override {}
};

class NoDialogs : public Dialogs {
public:
    void Inform(const std::string&) override {}
    void Refuse(const std::string&) override {}
    bool Ask(const std::string&) override { return true; }
    bool AskToStop(const std::string&) override { return true; }
    std::optional<ChosenFile> AskForTextFile(const std::string&) override { return {}; }
    void ShowFinish() override {}
};

class StillClock : public Clock {
public:
    DateTime Now() const override { return {}; }
    double Timer() const override { return 0; }
};

/// All of them together.
struct NullDesktop {
    MemoryStore settings;
    StillClock clock;
    NoSurface surface;
    NoSounds sounds;
    NoDialogs dialogs;

    Desktop Interfaces(const std::filesystem::path& dataFolder) {
        return {settings, clock, surface, sounds, dialogs, dataFolder};
    }
};

}  // namespace varnello
