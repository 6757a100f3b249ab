#include "engine/flow/players.h"

#include <system_error>
#include <vector>

#include "engine/common/text_file.h"

namespace varnello {
namespace {

constexpr const char* kAside = ".deleted";  // behind the name of a file on its way out

}  // namespace

bool Players::MayAddPlayer() {
    if (data_.TotalPlayers() < kMaxPlayers) return true;
    messages_.Inform(Say("Maximum 20 Players Only!"));
    return false;
}

bool Players::EnterPlayer(const std::string& oldName, const std::string& newName) {
    if (!IsNewPlayerName(newName)) {
        messages_.Refuse(Say("Please Enter a Valid Name"));
        return false;
    }
    if (data_.FindPlayer(newName) != 0) {
        messages_.Refuse(Say("Player Exists !"));
        return false;
    }
    if (!oldName.empty()) return RenamePlayer(oldName, newName);
    bool added = false;
    const bool written = data_.Change([&] { added = data_.AddPlayer(newName); });
    if (!written) RefuseSettings();
    return added && written;
}

void Players::RefuseSettings() {
    messages_.Refuse(Say("The players stay as they were, because the settings can't be written."));
}

void Players::RefuseFile(std::string_view why, const std::filesystem::path& file) {
    messages_.Refuse(Say(why, {PathText(file)}));
}

// The settings first, with a note of the rename, then the file: whatever comes between them, the
// next start finds out and goes on.
bool Players::RenamePlayer(const std::string& oldName, const std::string& newName) {
    const std::filesystem::path from = ScorePath(data_, oldName);
    const std::filesystem::path to = ScorePath(data_, newName);
    std::error_code error;
    const bool taken = std::filesystem::exists(to, error);
    const bool hasFile = !error && std::filesystem::exists(from, error);
    if (taken) {
        messages_.Refuse(Say("Player Exists !"));
        return false;
    }
    constexpr std::string_view kKept =
        say::Text("The player keeps the old name, because this file can't be renamed:\n%1");
    if (error) {
        RefuseFile(kKept, from);
        return false;
    }
    const auto rename = [&](const std::string& name, const std::string& other, bool noted) {
        return data_.Change([&] {
            const std::int16_t slot = data_.FindPlayer(name);
            if (slot == 0) return;
            const bool current = data_.CurPlayer() == name;
            data_.SetPlayer(slot, other, current);
            data_.SetRenamed(noted ? oldName : "", noted ? newName : "");
        });
    };
    if (data_.FindPlayer(oldName) == 0) return true;
    if (!rename(oldName, newName, hasFile)) {
        RefuseSettings();
        return false;
    }
    if (hasFile) {
        std::filesystem::rename(from, to, error);
        if (error) {
            rename(newName, oldName, false);
            RefuseFile(kKept, from);
            return false;
        }
        disk_.Flush(data_.AppDir());
        data_.Change([&] { data_.SetRenamed("", ""); });
    }
    score_.RenameKept(oldName, newName);
    return true;
}

void Players::Mend() {
    const std::string from = data_.RenamedFrom();
    const std::string to = data_.RenamedTo();
    if (!from.empty() && !to.empty() && data_.FindPlayer(to) != 0 && data_.FindPlayer(from) == 0) {
        std::error_code ignored;
        const bool done = std::filesystem::exists(ScorePath(data_, to), ignored);
        if (!done) std::filesystem::rename(ScorePath(data_, from), ScorePath(data_, to), ignored);
    }
    const auto order = [&] {
        data_.SetRenamed("", "");
        data_.PackPlayers();  // settings edited by hand may have gaps and doubled names
        if (data_.TotalPlayers() == 0) data_.SetPlayer(1, "Player1", true);
        data_.CurPlayer(std::string(data_.CurPlayer()));
    };
    if (!data_.Change(order)) order();  // for this run alone
    TakeBackUnfinishedDeletes();
}

void Players::TakeBackUnfinishedDeletes() {
    std::error_code ignored;
    std::vector<std::filesystem::path> left;
    for (const auto& entry : std::filesystem::directory_iterator(data_.AppDir(), ignored)) {
        if (entry.path().extension() == kAside) left.push_back(entry.path());
    }
    for (const std::filesystem::path& aside : left) {
        std::filesystem::path file = aside;
        file.replace_extension();
        const bool listed = data_.FindPlayer(PathText(file.stem())) != 0;
        if (listed && !std::filesystem::exists(file, ignored)) {
            std::filesystem::rename(aside, file, ignored);
        } else if (!listed) {
            std::filesystem::remove(aside, ignored);
        }
    }
}

// The file goes aside first: a player whose file can't be removed stays, and one who stays because
// the settings can't be written gets it back.
bool Players::DeletePlayer(const std::string& name) {
    if (name == data_.CurPlayer() || data_.FindPlayer(name) == 0) return false;
    const std::filesystem::path file = ScorePath(data_, name);
    std::filesystem::path aside = file;
    aside += kAside;
    std::error_code error;
    const bool hasFile = std::filesystem::exists(file, error);
    if (hasFile) std::filesystem::rename(file, aside, error);
    if (error) {
        RefuseFile(say::Text("The player stays, because this file can't be removed:\n%1"), file);
        return false;
    }
    const bool written = data_.Change([&] {
        if (const std::int16_t slot = data_.FindPlayer(name)) data_.SetPlayer(slot, {}, false);
        data_.PackPlayers();
    });
    std::error_code ignored;
    if (!written) {
        if (hasFile) std::filesystem::rename(aside, file, ignored);
        RefuseSettings();
        return false;
    }
    std::filesystem::remove(aside, ignored);
    disk_.Flush(data_.AppDir());
    score_.DropKept(name);
    return true;
}

}  // namespace varnello
