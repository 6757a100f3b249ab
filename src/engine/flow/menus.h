#pragma once

namespace varnello {

/// What the menu marks depend on.
struct MenuState {
    bool GameRunning = false;
    bool ReplayOn = false;  ///< either replay timer is on
    bool StopEnabled = false;
    bool UndoPossible = false;
    bool RedoPossible = false;
    bool DisAutoPlay = false;
    bool Autoplay = false;
    bool ShowToolbar = false;
};

/// The enabled and checked marks of the items that any rule names; all other items stay enabled.
/// The toolbar's buttons take the marks of the items they stand for.
struct MenuMarks {
    bool mFile4 = false;   ///< Restart Game
    bool mFile5 = false;   ///< Close Game
    bool mFav1 = false;    ///< Add to Favorites
    bool mTools5 = false;  ///< History
    bool mGame1 = false;   ///< Undo
    bool mGame2 = false;   ///< Redo
    bool mGame4 = false;   ///< Autoplay
    bool mGame4Checked = false;
    bool mGame6 = false;  ///< Undo All
    bool mGame7 = false;  ///< Redo All
    bool mGame9 = true;   ///< View Toolbar
    bool mGame9Checked = false;
    bool mReplay1 = false;  ///< Forward
    bool mReplay2 = false;  ///< Back
    bool mReplay4 = false;  ///< Replay All
    bool mReplay6 = false;  ///< Stop

    bool operator==(const MenuMarks&) const = default;
};

MenuMarks MarksOf(const MenuState& state);

}  // namespace varnello
