#include "engine/flow/commands.h"

#include "engine/rules/autoplay.h"

namespace varnello {

MenuMarks Commands::UpdateMenus() const {
    const cData& data = field_.data;
    return MarksOf({.GameRunning = data.GameRunning,
                    .ReplayOn = replay_.ForwardOn() || replay_.BackwardOn(),
                    .StopEnabled = replay_.StopEnabled(),
                    .UndoPossible = !data.GameWon && field_.trans.UndoPossible(),
                    .RedoPossible = !data.GameWon && field_.trans.RedoPossible(),
                    .DisAutoPlay = field_.games.DisAutoPlay(),
                    .Autoplay = data.Get(keys::Autoplay),
                    .ShowToolbar = data.Get(keys::ShowToolbar) != 0});
}

std::array<std::string, kMaxRecent> Commands::UpdateRecent() const {
    std::array<std::string, kMaxRecent> captions;
    for (std::int16_t i = 1; i <= kMaxRecent; ++i) {
        const std::string name = field_.data.GetRecent(i);
        if (name.empty()) continue;
        std::string& caption = captions[static_cast<std::size_t>(i - 1)];
        caption.append("&").append(std::to_string(i)).append(" ").append(name);
    }
    return captions;
}

void Commands::NewGame() { life_.StartGame(field_.data.LastGName(), choosing_.RandomGNo()); }

void Commands::RecentGame(std::int16_t index) {
    const std::string name = field_.data.GetRecent(index);
    if (field_.data.GetGameID(name) != 0) life_.StartGame(name, choosing_.RandomGNo());
}

void Commands::RestartGame() {
    if (!UpdateMenus().Restart) return;
    life_.StartGame(field_.data.CurGName(), field_.data.CurGNo);
}

void Commands::CloseGame() {
    if (UpdateMenus().Close) life_.LeaveGame();
}

void Commands::AddFavorite() {
    if (UpdateMenus().AddFavorite) choosing_.AddFavorite();
}

void Commands::Undo() {
    int speed = field_.data.Get(keys::UndoSpeed);
    if (UpdateMenus().Undo) field_.trans.Undo(speed);
}

void Commands::Redo() {
    int speed = field_.data.Get(keys::UndoSpeed);
    if (UpdateMenus().Redo) field_.trans.Redo(speed);
}

void Commands::UndoAll() {
    if (UpdateMenus().UndoAll) field_.trans.UndoAll(field_.data.Get(keys::UndoallSpeed));
}

void Commands::RedoAll() {
    if (UpdateMenus().RedoAll) field_.trans.RedoAll(field_.data.Get(keys::UndoallSpeed));
}

void Commands::ToggleAutoplay() {
    if (!UpdateMenus().Autoplay) return;
    cData& data = field_.data;
    const bool turnedOn = data.Get(keys::Autoplay) == 0;
    data.Set(keys::Autoplay, turnedOn ? 1 : 0);
    if (turnedOn && data.Playing()) AutoPlay(field_);
}

void Commands::ToggleToolbar() {
    cData& data = field_.data;
    data.Set(keys::ShowToolbar, data.Get(keys::ShowToolbar) == 0 ? 1 : 0);
}

void Commands::ReplayForward() {
    if (UpdateMenus().Forward) replay_.Forward();
}

void Commands::ReplayBack() {
    if (UpdateMenus().Back) replay_.Back();
}

void Commands::ReplayAll() {
    if (UpdateMenus().ReplayAll) replay_.All();
}

}  // namespace varnello
