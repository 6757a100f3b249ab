#pragma once

namespace varnello {

// The items of each menu by their numbers in it, from 1, separators included.
enum class FileItem {
    New = 1,
    Select = 2,
    Restart = 4,
    Close = 5,
    Number = 7,
    Recent = 9,
    Exit = 11
};
enum class GameItem { Undo = 1, Redo = 2, Autoplay = 4, UndoAll = 6, RedoAll = 7, Toolbar = 9 };
enum class ReplayItem { Forward = 1, Back = 2, All = 4, Stop = 6 };
enum class FavItem { Add = 1, Organize = 2, Play = 4 };
enum class StatItem { Game = 1, Session = 2, HighScore = 4, Log = 6 };
enum class ToolsItem { Customize = 1, Players = 3, History = 5 };
enum class HelpItem { Rules = 1, Contents = 2, About = 4 };

/// What the menu marks depend on.
struct MenuState {
    bool GameRunning = false;
    bool ReplayOn = false;  ///< either replay timer is on
    bool StopEnabled = false;
    bool UndoPossible = false;
    bool RedoPossible = false;
    bool DisAutoPlay = false;
    int Autoplay = 0;  ///< the setting
    bool ShowToolbar = false;
};

/// Which items are enabled and which are checked, of those that any rule names; all others stay
/// enabled. The toolbar's buttons take the marks of the items they stand for.
struct MenuMarks {
    bool Restart = false;
    bool Close = false;
    bool AddFavorite = false;
    bool History = false;
    bool Undo = false;
    bool Redo = false;
    bool Autoplay = false;
    bool AutoplayChecked = false;
    bool AutoplayPressed = false;  ///< the button
    bool UndoAll = false;
    bool RedoAll = false;
    bool ToolbarChecked = false;
    bool Forward = false;
    bool Back = false;
    bool ReplayAll = false;
    bool Stop = false;

    bool operator==(const MenuMarks&) const = default;
};

MenuMarks MarksOf(const MenuState& state);

}  // namespace varnello
