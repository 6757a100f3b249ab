#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "engine/common/calendar.h"
#include "engine/common/phrase.h"
#include "engine/definitions/codes.h"
#include "engine/definitions/sounds.h"

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
    /// Carries out several reads and writes as one change: no other copy of the program comes
    /// between them, and all of it is written or nothing. False, with everything as it was, when it
    /// can't be written. Changes don't nest.
    virtual bool Change(const std::function<void()>& change) {
        change();
        return true;
    }
};

class Clock {
public:
    virtual ~Clock() = default;
    /// What the user's wall clock shows.
    virtual DateTime Now() const = 0;
    /// Seconds that don't jump when the wall clock does, with daylight saving or a change of zone:
    /// time that passes is a difference of these. A clock without a zone counts by the wall.
    virtual std::int64_t Seconds() const { return SecondsSinceEpoch(Now()); }
    /// Any value that differs from run to run and moment to moment in its first 21 binary digits.
    virtual double Timer() const = 0;
};

/// How dates are shown. These are the forms of files; a window may follow the user's locale.
class DateForms {
public:
    virtual ~DateForms() = default;
    virtual std::string Date(const DateTime& moment) const { return ShortDateText(moment); }
    virtual std::string DateAndTime(const DateTime& moment) const { return DateText(moment); }
    /// Days, months and years in a list of them: "Nov 18", "Nov 26" and "2026".
    virtual std::string DayOfYear(const DateTime& moment) const { return DayText(moment); }
    virtual std::string MonthOfYear(const DateTime& moment) const { return MonthText(moment); }
    virtual std::string Year(const DateTime& moment) const { return std::to_string(moment.year); }
};

inline const DateForms kFileDateForms;

struct KesCard;
struct KesEmpty;

/// The playing surface. The engine's `Table` is the truth about what lies where, at once. The
/// surface is told in order what a person is to see of it, and shows that in its own time: no call
/// waits, and none calls back.
class TableSurface {
public:
    virtual ~TableSurface() = default;
    /// The card looks like this from now on.
    virtual void CardChanged(PicID id, const KesCard& card) = 0;
    /// The same, but it flies there from where it was, in at least `steps` places; 1 or more.
    virtual void CardFlies(PicID id, const KesCard& card, int steps, MoveKind kind) = 0;
    /// The slot of a pile looks like this from now on.
    virtual void SlotChanged(Cell cell, int pile, const KesEmpty& slot) = 0;
    /// The table is empty. What hasn't been shown yet is dropped.
    virtual void Cleared() = 0;
    /// Whether something is still to be shown. A surface that says so calls `Engine::Shown` when it
    /// has come to the end.
    virtual bool Showing() const = 0;
};

class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;
    /// Has the event heard, in order with what the surface is told. A wave that still plays is cut
    /// off.
    virtual void Play(Sound event) = 0;
};

/// What has to be on the disk and not only in a cache.
class Disk {
public:
    virtual ~Disk() = default;
    /// The file's contents, or the names in a folder, are safe from a power cut when it returns.
    virtual void Flush(const std::filesystem::path&) const {}
};

inline const Disk kNoDisk;

/// A file that the user chose to write to.
struct ChosenFile {
    std::filesystem::path Path;
    std::string Name;  ///< as messages call it
};

/// What a person is told, in a box with the product name as its title. The engine asks nothing:
/// whoever calls it has asked before.
class Messages {
public:
    virtual ~Messages() = default;
    /// Information. Shown when the command that told it has returned.
    virtual void Inform(const Phrase& text) = 0;
    /// The same with a stop sign.
    virtual void Refuse(const Phrase& text) = 0;
    /// The same with the sign of a warning: something was kept or lost that shouldn't have been.
    virtual void Warn(const Phrase& text) = 0;
};

struct Desktop {
    SettingsStore& settings;
    Clock& clock;
    TableSurface& surface;
    SoundPlayer& sounds;
    Messages& messages;
    std::filesystem::path dataFolder;  ///< `AppDir`
    const DateForms& dates = kFileDateForms;
    const Disk& disk = kNoDisk;
};

}  // namespace varnello
