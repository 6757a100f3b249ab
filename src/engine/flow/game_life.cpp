#include "engine/flow/game_life.h"

#include <algorithm>
#include <utility>

#include "engine/common/text_file.h"
#include "engine/definitions/catalogue.h"
#include "engine/rules/autoplay.h"
#include "engine/rules/deal.h"

namespace varnello {

GameLife::GameLife(const Playfield& field, Gestures& gestures, cScore& score, Replay& replay,
                   const Desktop& desktop)
    : field_(field),
      gestures_(gestures),
      score_(score),
      replay_(replay),
      surface_(desktop.surface),
      clock_(desktop.clock),
      messages_(desktop.messages),
      select_([](cGames& record, const std::string& name) { SelectGame(record, name); }) {}

Phase GameLife::phase() const {
    if (dealing_) return Phase::Dealing;
    if (!field_.data.GameRunning) return Phase::Idle;
    return field_.data.GameWon ? Phase::Won : Phase::Playing;
}

void GameLife::StartGame(const std::string& name, const GameNumber& number) {
    if (onStart_) onStart_();
    LeaveGame();
    if (dealing_) ClearTable();
    cData& data = field_.data;
    data.Together([&] {
        data.SetRecent(name);
        data.CurGName(name);
    });
    select_(field_.games, name);
    data.CurGNo = number;
    caption_ = std::string(kProductName) + " [" + data.CurGName() + "] [" + data.CurPlayer() +
               "] [" + data.CurGNo.Shown() + "]";

    field_.generator.rtcRandomize(clock_.Timer());
    field_.array.Init(data.CurGNo.Value());
    SetCardValues(field_);
    field_.trans.Clear();

    dealing_ = true;
    NewDeal(field_);
    AutoPlay(field_);
    if (!surface_.Showing()) Shown();
}

void GameLife::Shown() {
    if (!std::exchange(dealing_, false)) return;
    field_.data.GameRunning = true;
    field_.data.GameStartTime = clock_.Now();
    field_.data.GameStartSeconds = clock_.Seconds();
}

void GameLife::LeaveGame() {
    if (field_.data.GameRunning) EndGame(field_.data.GameWon ? Outcome::Won : Outcome::NotWon);
}

void GameLife::EndGame(Outcome outcome) {
    if (!score_.AddScore(outcome)) {
        messages_.Warn(Say("The result of this game could not be written to the file\n%1",
                           {PathText(ScorePath(field_.data, field_.data.CurPlayer()))}));
    }
    score_.AddSesGame(outcome);
    field_.data.GameRunning = false;
    field_.data.GameWon = false;
    replay_.End();
    gestures_.Reset();
    ClearTable();
}

void GameLife::ClearTable() {
    dealing_ = false;
    field_.array.Clear();
    field_.table.Clear();
    surface_.Cleared();
}

void GameLife::CheckWon() {
    if (field_.array.TotalGoalCards() != field_.games.TotalCards()) return;
    field_.data.GameWon = true;
    replay_.End();
    if (onWon_) onWon_();
}

FinishFigures GameLife::LoadFinish() {
    cData& data = field_.data;
    FinishFigures figures{
        .Game = data.CurGName(),
        .Lines = {Say(" Game : %1", {data.CurGNo.Shown()}), Say(" Player : %1", {data.CurPlayer()}),
                  Say(" Time : %1", {Duration{data.CurTime}}), Say(" Moves : %1", {data.CurMoves}),
                  Say(" Score : %1", {data.CurScore})},
        .Score = std::max(data.CurScore, std::int16_t{0}),
        .Moves = data.CurMoves,
        .Time = data.CurTime};
    data.PlaySound(Sound::Win);
    EndGame(Outcome::Won);
    return figures;
}

}  // namespace varnello
