#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "engine/common/calendar.h"

/// What the engine asks of a desktop. The window implements these on its toolkit, the scripted
/// table and the tests in a few lines each.
namespace varnello {

/// Persistent texts addressed by section and key. A write is durable at once.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    /// The stored text, or `fallback` for a key that was never written.
    virtual std::string Read(std::string_view section, std::string_view key,
                             std::string_view fallback) const = 0;
    virtual void Write(std::string_view section, std::string_view key, std::string_view text) = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime Now() const = 0;
    /// Any value that differs from run to run and moment to moment in its first 21 binary digits.
    virtual double Timer() const = 0;
};

/// How dates are shown. These are the forms of files; a window may follow the user's locale.
class DateForms {
public:
    virtual ~DateForms() = default;
    virtual std::string Date(const DateTime& moment) const { return ShortDateText(moment); }
    virtual std::string DateAndTime(const DateTime& moment) const { return DateText(moment); }
    /// A month's short name; `month` from 1 to 12.
    virtual std::string Month(int month) const { return std::string(MonthName(month)); }
};

inline const DateForms kFileDateForms;

/// The playing surface. The engine's `Table` is the truth about what lies where; the surface is
/// told only when to show it.
class TableSurface {
public:
    virtual ~TableSurface() = default;
    /// Shows the table as it is now.
    virtual void Repaint() = 0;
    /// The same for one step of a card's flight, held long enough to be seen.
    virtual void RepaintFlight() = 0;
    /// Lets the event loop run once.
    virtual void Yield() = 0;
};

enum class Sound { Start, CardUp, CardDown, AutoPlay, Undo, Redo, Win };

class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;
    /// Starts the event's wave and returns; a wave that still plays is cut off.
    virtual void Play(Sound event) = 0;
};

/// A file that the user chose to write to.
struct ChosenFile {
    std::filesystem::path Path;
    std::string Name;  ///< as messages call it
};

class Dialogs {
public:
    virtual ~Dialogs() = default;
    /// An information box with the product name as its title.
    virtual void Inform(const std::string& text) = 0;
    /// A box with a stop sign and the product name as its title.
    virtual void Refuse(const std::string& text) = 0;
    /// A question with a question mark, or with a stop sign where something is lost; true for Yes.
    virtual bool Ask(const std::string& text) = 0;
    virtual bool AskToStop(const std::string& text) = 0;
    /// A save-file dialog for text files that asks before a file is overwritten; empty on cancel.
    virtual std::optional<ChosenFile> AskForTextFile(const std::string& proposal) = 0;
    /// The modal game won dialog. While it loads it calls `Engine::LoadFinish`.
    virtual void ShowFinish() = 0;
};

struct Desktop {
    SettingsStore& settings;
    Clock& clock;
    TableSurface& surface;
    SoundPlayer& sounds;
    Dialogs& dialogs;
    std::filesystem::path dataFolder;  ///< `AppDir`
    const DateForms& dates = kFileDateForms;
};

}  // namespace varnello
