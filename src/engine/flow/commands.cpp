#include "engine/flow/engine.h"
#include "engine/rules/autoplay.h"

// The commands of menus and toolbar. A mark is polled ten times a second, so a command can come
// when its item is no longer enabled; then it does nothing.
namespace varnello {

MenuMarks Engine::UpdateMenus() const {
    return MarksOf({.GameRunning = data.GameRunning,
                    .ReplayOn = forwardOn_ || backwardOn_,
                    .StopEnabled = stopEnabled_,
                    .UndoPossible = !data.GameWon && trans_.UndoPossible(),
                    .RedoPossible = !data.GameWon && trans_.RedoPossible(),
                    .DisAutoPlay = games.DisAutoPlay(),
                    .Autoplay = data.Get(keys::Autoplay) != 0,
                    .ShowToolbar = data.Get(keys::ShowToolbar) != 0});
}

std::array<std::string, kMaxRecent> Engine::UpdateRecent() const {
    std::array<std::string, kMaxRecent> captions;
    for (std::int16_t i = 1; i <= kMaxRecent; ++i) {
        const std::string name = data.GetRecent(i);
        if (name.empty()) continue;
        std::string& caption = captions[static_cast<std::size_t>(i - 1)];
        caption.append("&").append(std::to_string(i)).append(" ").append(name);
    }
    return captions;
}

void Engine::RecentGame(std::int16_t index) {
    const std::string name = data.GetRecent(index);
    if (data.GetGameID(name) != 0) StartGame(name, RandomGNo());
}

void Engine::RestartGame() {
    if (UpdateMenus().mFile4) StartGame(data.CurGName(), data.CurGNo);
}

void Engine::CloseGame() {
    if (UpdateMenus().mFile5) LeaveGame();
}

void Engine::Undo() {
    int speed = data.Get(keys::UndoSpeed);
    if (UpdateMenus().mGame1) trans_.Undo(speed);
}

void Engine::Redo() {
    int speed = data.Get(keys::UndoSpeed);
    if (UpdateMenus().mGame2) trans_.Redo(speed);
}

void Engine::UndoAll() {
    if (UpdateMenus().mGame6) trans_.UndoAll(data.Get(keys::UndoallSpeed));
}

void Engine::RedoAll() {
    if (UpdateMenus().mGame7) trans_.RedoAll(data.Get(keys::UndoallSpeed));
}

void Engine::ToggleAutoplay() {
    if (!UpdateMenus().mGame4) return;
    const bool turnedOn = data.Get(keys::Autoplay) == 0;
    data.Set(keys::Autoplay, turnedOn ? 1 : 0);
    if (turnedOn && data.Playing()) varnello::AutoPlay(field_);
}

void Engine::ToggleToolbar() {
    data.Set(keys::ShowToolbar, data.Get(keys::ShowToolbar) == 0 ? 1 : 0);
}

void Engine::ReplayForward() {
    if (UpdateMenus().mReplay1) forwardOn_ = true;
}

void Engine::ReplayBack() {
    if (UpdateMenus().mReplay2) backwardOn_ = true;
}

void Engine::ReplayAll() {
    if (!UpdateMenus().mReplay4) return;
    trans_.UndoAll(1);
    forwardOn_ = data.Playing();
}

void Engine::StopReplay() {
    if (stopEnabled_) EndReplay();
}

void Engine::EndReplay() {
    stopEnabled_ = false;
    forwardOn_ = false;
    backwardOn_ = false;
}

void Engine::ForwardTick() {
    if (!data.Playing()) return;
    backwardOn_ = false;
    stopEnabled_ = true;
    int speed = data.Get(keys::ReplaySpeed);
    if (!trans_.Redo(speed)) EndReplay();
}

void Engine::BackwardTick() {
    if (!data.Playing()) return;
    forwardOn_ = false;
    stopEnabled_ = true;
    int speed = data.Get(keys::ReplaySpeed);
    if (!trans_.Undo(speed)) EndReplay();
}

}  // namespace varnello
