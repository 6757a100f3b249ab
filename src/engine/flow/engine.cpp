#include "engine/flow/engine.h"

#include <algorithm>
#include <cmath>
#include <system_error>
#include <utility>

#include "engine/definitions/catalogue.h"
#include "engine/rules/autoplay.h"
#include "engine/rules/deal.h"

namespace varnello {

Engine::Engine(const Desktop& desktop)
    : data(desktop.settings, desktop.sounds, desktop.dataFolder),
      score(data, desktop.clock, desktop.dates, desktop.disk),
      favorites(data),
      selectGame([](cGames& record, const std::string& name) { SelectGame(record, name); }),
      desktop_(desktop),
      array_(games, table, generator_, desktop.surface, *this),
      trans_(array_, table, data),
      field_{data, games, generator_, table, array_, trans_},
      gestures_(field_) {
    data.SesStartTime = desktop_.clock.Now();
}

void Engine::InitMain() {
    // A folder that can't be made shows when the first result is booked.
    std::error_code ignored;
    std::filesystem::create_directories(data.AppDir(), ignored);
    MendPlayers();
}

double NumberLimit(std::int16_t rangeIndex) {
    if (rangeIndex < 1) return 0;
    double limit = 1;
    for (int i = 0; i < std::min<int>(rangeIndex, 15); ++i) limit *= 10;
    return limit;
}

GameNumber Engine::RandomGNo() {
    const double limit = NumberLimit(data.Get(keys::RangeIndex));
    numbers_.rtcRandomize(desktop_.clock.Timer());
    const double drawn = limit * static_cast<double>(numbers_.rtcRandomNext());
    return GameNumber::Number(std::max(std::floor(drawn), 1.0));
}

Phase Engine::phase() const {
    if (dealing_) return Phase::Dealing;
    if (!data.GameRunning) return Phase::Idle;
    return data.GameWon ? Phase::Won : Phase::Playing;
}

void Engine::StartGame(const std::string& name, const GameNumber& number) {
    LeaveGame();
    if (dealing_) ClearTable();
    data.SetRecent(name);
    selectGame(games, name);
    data.CurGNo = number;
    data.CurGName(name);
    caption_ = std::string(kProductName) + " [" + data.CurGName() + "] [" + data.CurPlayer() +
               "] [" + data.CurGNo.Shown() + "]";

    generator_.rtcRandomize(desktop_.clock.Timer());
    array_.Init(data.CurGNo.Value());
    SetCardValues(field_);
    trans_.Clear();

    dealing_ = true;
    NewDeal(field_);
    varnello::AutoPlay(field_);
    if (!desktop_.surface.Showing()) Shown();
}

void Engine::Shown() {
    if (!std::exchange(dealing_, false)) return;
    data.GameRunning = true;
    data.GameStartTime = desktop_.clock.Now();
}

void Engine::LeaveGame() {
    if (data.GameRunning) EndGame(data.GameWon ? Outcome::Won : Outcome::NotWon);
}

void Engine::Leave() {
    LeaveGame();
    score.WriteKept();
}

void Engine::EndGame(Outcome outcome) {
    if (!score.AddScore(outcome)) {
        const auto file = ScorePath(data, data.CurPlayer()).u8string();
        desktop_.messages.Warn("The result of this game could not be written to the file\n" +
                               std::string(file.begin(), file.end()));
    }
    score.AddSesGame(outcome);
    data.GameRunning = false;
    data.GameWon = false;
    EndReplay();
    gestures_.Reset();
    ClearTable();
}

void Engine::ClearTable() {
    dealing_ = false;
    array_.Clear();
    table.Clear();
    desktop_.surface.Cleared();
}

void Engine::CheckWon() {
    if (array_.TotalGoalCards() != games.TotalCards()) return;
    data.GameWon = true;
    EndReplay();
    if (onWon) onWon();
}

FinishFigures Engine::LoadFinish() {
    FinishFigures figures{
        .Game = data.CurGName(),
        .Lines = {" Game : " + data.CurGNo.Shown(), " Player : " + data.CurPlayer(),
                  " Time : " + FormatTime(data.CurTime),
                  " Moves : " + std::to_string(data.CurMoves),
                  " Score : " + std::to_string(data.CurScore)},
        .Score = std::max(data.CurScore, std::int16_t{0}),
        .Moves = data.CurMoves,
        .Time = data.CurTime};
    data.PlaySound(Sound::Win);
    EndGame(Outcome::Won);
    return figures;
}

void Engine::MoveBegins(const CardMove& move) {
    if (onMove) onMove(move);
}

void Engine::AutoPlay() { varnello::AutoPlay(field_); }

}  // namespace varnello
