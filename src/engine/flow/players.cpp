#include <system_error>

#include "engine/flow/engine.h"

// What the players dialog and its input box decide.
namespace varnello {

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
    std::error_code ignored;
    const bool renames = !oldName.empty();
    const bool taken = data.FindPlayer(newName) != 0 ||
                       (renames && std::filesystem::exists(ScorePath(data, newName), ignored));
    if (taken) {
        desktop_.messages.Refuse("Player Exists !");
        return false;
    }
    return renames ? RenamePlayer(oldName, newName) : data.AddPlayer(newName);
}

bool Engine::RenamePlayer(const std::string& oldName, const std::string& newName) {
    const std::int16_t slot = data.FindPlayer(oldName);
    if (slot == 0) return true;
    // The file first: if its name can't change, the player's doesn't either.
    const std::filesystem::path file = ScorePath(data, oldName);
    std::error_code error;
    if (std::filesystem::exists(file, error)) {
        std::filesystem::rename(file, ScorePath(data, newName), error);
        if (error) {
            const auto name = file.u8string();
            desktop_.messages.Refuse(
                "The player keeps the old name, because this file can't be "
                "renamed:\n" +
                std::string(name.begin(), name.end()));
            return false;
        }
    }
    data.SetPlayer(slot, newName, false);
    if (data.CurPlayer() == oldName) data.CurPlayer(newName);
    return true;
}

bool Engine::DeletePlayer(const std::string& name) {
    if (name == data.CurPlayer()) return false;
    const std::int16_t slot = data.FindPlayer(name);
    if (slot == 0) return false;
    data.SetPlayer(slot, {}, false);
    data.PackPlayers();
    std::error_code ignored;
    std::filesystem::remove(ScorePath(data, name), ignored);
    return true;
}

}  // namespace varnello
