#pragma once

#include <array>
#include <string>

#include "engine/flow/choosing.h"
#include "engine/flow/game_life.h"
#include "engine/flow/menus.h"

namespace varnello {

/// The commands of menus and toolbar, and what these show. Each is ignored when its item would be
/// disabled now: marks are polled, so a command can come when its item no longer is enabled.
class Commands {
public:
    Commands(const Playfield& field, GameLife& life, Replay& replay, Choosing& choosing)
        : field_(field), life_(life), replay_(replay), choosing_(choosing) {}

    /// The last game once more, with a number drawn for it.
    void NewGame();
    /// A game of the recent list, `index` from 1, the newest.
    void RecentGame(std::int16_t index);
    void RestartGame();
    void CloseGame();
    void AddFavorite();

    void Undo();
    void Redo();
    void UndoAll();
    void RedoAll();
    void ToggleAutoplay();
    void ToggleToolbar();

    void ReplayForward();
    void ReplayBack();
    void ReplayAll();
    void StopReplay() { replay_.Stop(); }

    MenuMarks UpdateMenus() const;
    /// The captions of the recent list's items; empty for one that isn't shown.
    std::array<std::string, kMaxRecent> UpdateRecent() const;

private:
    Playfield field_;
    GameLife& life_;
    Replay& replay_;
    Choosing& choosing_;
};

}  // namespace varnello
