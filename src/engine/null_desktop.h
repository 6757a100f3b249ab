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
    void CardChanged(PicID, const KesCard&) override {}
    void CardFlies(PicID, const KesCard&, int, MoveKind) override {}
    void SlotChanged(Cell, int, const KesEmpty&) override {}
    void Cleared() override {}
    bool Showing() const override { return false; }
};

class NoSounds : public SoundPlayer {
public:
    void Play(Sound) override {}
};

class NoMessages : public Messages {
public:
    void Inform(const Phrase&) override {}
    void Refuse(const Phrase&) override {}
    void Warn(const Phrase&) override {}
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
    NoMessages messages;

    Desktop Interfaces(const std::filesystem::path& dataFolder) {
        return {settings, clock, surface, sounds, messages, dataFolder};
    }
};

}  // namespace varnello
