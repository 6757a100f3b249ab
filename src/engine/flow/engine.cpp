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
      score(data, desktop.clock, desktop.dates),
      favorites(data),
      selectGame([](cGames& record, const std::string& name) { SelectGame(record, name); }),
      desktop_(desktop),
      array_(games, table, generator_, desktop.surface, *this),
      trans_(std::make_shared<cTrans>(array_, table, data)),
      field_{data, games, generator_, table, array_, trans_},
      gestures_(field_) {
    data.SesStartTime = desktop_.clock.Now();
}

void Engine::InitMain() {
    // A folder that can't be made shows when the first result is booked.
    std::error_code ignored;
    std::filesystem::create_directories(data.AppDir(), ignored);
    data.PackPlayers();  // settings edited by hand may have gaps, or nobody as the current player
    if (data.TotalPlayers() == 0) data.SetPlayer(1, "Player1", true);
    if (data.CurPlayer().empty()) data.CurPlayer(data.GetPlayer(1));
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

void Engine::StartGame(const std::string& name, const GameNumber& number) {
    if (dealing_) {
        AbandonDeal();
        nextGame_ = {name, number};
        return;
    }
    Begin({name, number});
    while (nextGame_) {
        const GameRequest next = *std::exchange(nextGame_, std::nullopt);
        Begin(next);
    }
}

void Engine::Begin(const GameRequest& request) {
    if (data.GameRunning) EndGame(0);
    data.SetRecent(request.name);
    selectGame(games, request.name);
    data.CurGNo = request.number;
    data.CurGName(request.name);
    caption_ = std::string(kProductName) + " [" + data.CurGName() + "] [" + data.CurPlayer() +
               "] [" + data.CurGNo.Shown() + "]";

    generator_.rtcRandomize(desktop_.clock.Timer());
    array_.Init(data.CurGNo.Value());
    SetCardValues(field_);
    trans_ = std::make_shared<cTrans>(array_, table, data);

    dealing_ = true;
    NewDeal(field_);
    if (!dealAbandoned_) varnello::AutoPlay(field_);
    dealing_ = false;
    if (std::exchange(dealAbandoned_, false)) {
        array_.SetMotion(true);
        array_.Clear();
        table.Clear();
        desktop_.surface.Repaint();
        return;
    }
    data.GameRunning = true;
    data.GameStartTime = desktop_.clock.Now();
}

void Engine::AbandonDeal() {
    if (!dealing_) return;
    dealAbandoned_ = true;
    array_.SetMotion(false);
}

void Engine::EndGame(std::int16_t won) {
    if (!score.AddScore(won)) {
        const auto file = ScorePath(data, data.CurPlayer()).u8string();
        desktop_.dialogs.Inform("The result of this game could not be written to the file\n" +
                                std::string(file.begin(), file.end()));
    }
    score.AddSesGame(won);
    data.GameRunning = false;
    EndReplay();
    gestures_.Reset();
    array_.Clear();
    table.Clear();
    desktop_.surface.Repaint();
}

void Engine::CheckWon() {
    if (array_.TotalGoalCards() == games.TotalCards()) desktop_.dialogs.ShowFinish();
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
    EndGame(1);
    return figures;
}

void Engine::MoveBegins(const CardMove& move) {
    if (onMove) onMove(move);
}

void Engine::AutoPlay() { varnello::AutoPlay(field_); }

}  // namespace varnello
