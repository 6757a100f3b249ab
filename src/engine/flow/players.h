#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "engine/desktop.h"
#include "engine/scores/score_store.h"

namespace varnello {

/// To be asked before a player is deleted.
inline constexpr std::string_view kDeletePlayerQuestion =
    say::Text("Are you sure you want to delete this player");

/// What the players dialog and its input box decide. List and files change together, or neither
/// does.
class Players {
public:
    Players(cData& data, cScore& score, const Desktop& desktop)
        : data_(data), score_(score), disk_(desktop.disk), messages_(desktop.messages) {}

    /// Finishes a change that was interrupted, and puts the list of players in order.
    void Mend();
    /// Whether there is room for one more; says so if not.
    bool MayAddPlayer();
    /// "OK" of the input box: adds a player, or renames `oldName` unless that is empty. False, with
    /// the reason told, when the box has to stay open.
    bool EnterPlayer(const std::string& oldName, const std::string& newName);
    /// Deletes a player other than the current one, with all results. To be asked before:
    /// `kDeletePlayerQuestion`.
    bool DeletePlayer(const std::string& name);

private:
    bool RenamePlayer(const std::string& oldName, const std::string& newName);
    void TakeBackUnfinishedDeletes();
    void RefuseSettings();
    void RefuseFile(std::string_view why, const std::filesystem::path& file);

    cData& data_;
    cScore& score_;
    const Disk& disk_;
    Messages& messages_;
};

}  // namespace varnello
