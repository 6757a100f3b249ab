#include <system_error>
#include <vector>

#include "engine/flow/engine.h"

// What the players dialog and its input box decide.
namespace varnello {
namespace {

constexpr const char* kAside = ".deleted";  // behind the name of a file on its way out

}  // namespace

bool Engine::MayAddPlayer() {
    if (data.TotalPlayers() < kMaxPlayers) return true;
    desktop_.messages.Inform("Maximum 20 Players Only!");
    return false;
}

bool Engine::EnterPlayer(const std::string& oldName, const std::string& newName) {
    if (!IsNewPlayerName(newName)) {
        desktop_.messages.Refuse("Please Enter a Valid Name");
        return false;
    }
    if (data.FindPlayer(newName) != 0) {
        desktop_.messages.Refuse("Player Exists !");
        return false;
    }
    if (!oldName.empty()) return RenamePlayer(oldName, newName);
    bool added = false;
    const bool written = data.Change([&] { added = data.AddPlayer(newName); });
    if (!written) RefuseSettings();
    return added && written;
}

void Engine::RefuseSettings() {
    desktop_.messages.Refuse(
        "The players stay as they were, because the settings can't be written.");
}

void Engine::RefuseFile(const std::string& what, const std::filesystem::path& file) {
    const auto name = file.u8string();
    desktop_.messages.Refuse(what + '\n' + std::string(name.begin(), name.end()));
}

// The settings first, with a note of the rename, then the file: whatever comes between them, the
// next start finds out and goes on.
bool Engine::RenamePlayer(const std::string& oldName, const std::string& newName) {
    const std::filesystem::path from = ScorePath(data, oldName);
    const std::filesystem::path to = ScorePath(data, newName);
    std::error_code error;
    const bool taken = std::filesystem::exists(to, error);
    const bool hasFile = !error && std::filesystem::exists(from, error);
    if (taken) {
        desktop_.messages.Refuse("Player Exists !");
        return false;
    }
    const char* const kKept = "The player keeps the old name, because this file can't be renamed:";
    if (error) {
        RefuseFile(kKept, from);
        return false;
    }
    const auto rename = [&](const std::string& name, const std::string& other, bool noted) {
        return data.Change([&] {
            const std::int16_t slot = data.FindPlayer(name);
            if (slot == 0) return;
            const bool current = data.CurPlayer() == name;
            data.SetPlayer(slot, other, current);
            data.SetRenamed(noted ? oldName : "", noted ? newName : "");
        });
    };
    if (data.FindPlayer(oldName) == 0) return true;
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
        desktop_.disk.Flush(data.AppDir());
        data.Change([&] { data.SetRenamed("", ""); });
    }
    score.RenameKept(oldName, newName);
    return true;
}

void Engine::MendPlayers() {
    const std::string from = data.RenamedFrom();
    const std::string to = data.RenamedTo();
    if (!from.empty() && !to.empty() && data.FindPlayer(to) != 0 && data.FindPlayer(from) == 0) {
        std::error_code ignored;
        const bool done = std::filesystem::exists(ScorePath(data, to), ignored);
        if (!done) std::filesystem::rename(ScorePath(data, from), ScorePath(data, to), ignored);
    }
    const auto order = [&] {
        data.SetRenamed("", "");
        data.PackPlayers();  // settings edited by hand may have gaps and doubled names
        if (data.TotalPlayers() == 0) data.SetPlayer(1, "Player1", true);
        data.CurPlayer(std::string(data.CurPlayer()));
    };
    if (!data.Change(order)) order();  // for this run alone
    TakeBackUnfinishedDeletes();
}

void Engine::TakeBackUnfinishedDeletes() {
    std::error_code ignored;
    std::vector<std::filesystem::path> left;
    for (const auto& entry : std::filesystem::directory_iterator(data.AppDir(), ignored)) {
        if (entry.path().extension() == kAside) left.push_back(entry.path());
    }
    for (const std::filesystem::path& aside : left) {
        std::filesystem::path file = aside;
        file.replace_extension();
        const auto player = file.stem().u8string();
        const bool listed = data.FindPlayer(std::string(player.begin(), player.end())) != 0;
        if (listed && !std::filesystem::exists(file, ignored)) {
            std::filesystem::rename(aside, file, ignored);
        } else if (!listed) {
            std::filesystem::remove(aside, ignored);
        }
    }
}

// The file goes aside first: a player whose file can't be removed stays, and one who stays because
// the settings can't be written gets it back.
bool Engine::DeletePlayer(const std::string& name) {
    if (name == data.CurPlayer() || data.FindPlayer(name) == 0) return false;
    const std::filesystem::path file = ScorePath(data, name);
    std::filesystem::path aside = file;
    aside += kAside;
    std::error_code error;
    const bool hasFile = std::filesystem::exists(file, error);
    if (hasFile) std::filesystem::rename(file, aside, error);
    if (error) {
        RefuseFile("The player stays, because this file can't be removed:", file);
        return false;
    }
    const bool written = data.Change([&] {
        if (const std::int16_t slot = data.FindPlayer(name)) data.SetPlayer(slot, {}, false);
        data.PackPlayers();
    });
    std::error_code ignored;
    if (!written) {
        if (hasFile) std::filesystem::rename(aside, file, ignored);
        RefuseSettings();
        return false;
    }
    std::filesystem::remove(aside, ignored);
    desktop_.disk.Flush(data.AppDir());
    score.RenameKept(name, "");
    return true;
}

}  // namespace varnello
