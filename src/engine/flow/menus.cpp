#include "engine/flow/menus.h"

namespace varnello {

MenuMarks MarksOf(const MenuState& state) {
    const bool logOpen = state.GameRunning && !state.ReplayOn;
    const bool undo = logOpen && state.UndoPossible;
    const bool redo = logOpen && state.RedoPossible;
    return {.Restart = state.GameRunning,
            .Close = state.GameRunning,
            .AddFavorite = state.GameRunning,
            .History = state.GameRunning,
            .Undo = undo,
            .Redo = redo,
            .Autoplay = !state.DisAutoPlay,
            .AutoplayChecked = state.Autoplay != 0,
            .AutoplayPressed = state.Autoplay == 1,
            .UndoAll = undo,
            .RedoAll = redo,
            .ToolbarChecked = state.ShowToolbar,
            .Forward = redo,
            .Back = undo,
            .ReplayAll = undo || redo,
            .Stop = state.StopEnabled};
}

}  // namespace varnello
