#include "engine/flow/menus.h"

namespace varnello {

MenuMarks MarksOf(const MenuState& state) {
    const bool logOpen = state.GameRunning && !state.ReplayOn;
    const bool undo = logOpen && state.UndoPossible;
    const bool redo = logOpen && state.RedoPossible;
    return {.mFile4 = state.GameRunning,
            .mFile5 = state.GameRunning,
            .mFav1 = state.GameRunning,
            .mTools5 = state.GameRunning,
            .mGame1 = undo,
            .mGame2 = redo,
            .mGame4 = !state.DisAutoPlay,
            .mGame4Checked = state.Autoplay,
            .mGame6 = undo,
            .mGame7 = redo,
            .mGame9 = true,
            .mGame9Checked = state.ShowToolbar,
            .mReplay1 = redo,
            .mReplay2 = undo,
            .mReplay4 = undo || redo,
            .mReplay6 = state.StopEnabled};
}

}  // namespace varnello
