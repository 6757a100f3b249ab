#pragma once

#include <functional>

#include "engine/flow/choosing.h"
#include "engine/flow/commands.h"
#include "engine/flow/counters.h"
#include "engine/flow/game_life.h"
#include "engine/flow/players.h"
#include "engine/flow/replay.h"
#include "engine/flow/results.h"

namespace varnello {

/// The whole program without a window: it owns the objects that live as long as the process and
/// connects them. What the program does stands in the parts.
class Engine : private MoveFollower {
public:
    explicit Engine(const Desktop& desktop);
    ~Engine() override = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    /// Makes the data folder if it is missing, and on a first run the player "Player1".
    void InitMain();
    /// The program ends: so does the running game, and what couldn't be written is tried once more.
    void Leave();
    /// Called before each card's move, for those who follow along.
    void OnMove(std::function<void(const CardMove&)> follow) { onMove_ = std::move(follow); }

    // What it does.
    GameLife& life() { return life_; }
    const GameLife& life() const { return life_; }
    Commands& commands() { return commands_; }
    const Commands& commands() const { return commands_; }
    Replay& replay() { return replay_; }
    Counters& counters() { return counters_; }
    const Counters& counters() const { return counters_; }
    Choosing& choosing() { return choosing_; }
    const Choosing& choosing() const { return choosing_; }
    Players& players() { return players_; }
    Results& results() { return results_; }
    Gestures& gestures() { return gestures_; }

    // What it knows.
    cData& data() { return data_; }
    const cData& data() const { return data_; }
    cScore& score() { return score_; }
    const cScore& score() const { return score_; }
    Favorites& favorites() { return favorites_; }
    const Favorites& favorites() const { return favorites_; }
    const cGames& games() const { return games_; }
    const Table& table() const { return table_; }
    const cArray& array() const { return array_; }
    const cTrans& trans() const { return trans_; }
    const DateForms& dates() const { return desktop_.dates; }
    DateTime Now() const { return desktop_.clock.Now(); }

private:
    bool Playing() const override { return data_.Playing(); }
    void MoveBegins(const CardMove& move) override;
    void SaveTrans(const CardMove& move) override { trans_.SaveTrans(move); }
    void AutoPlay() override;
    void CheckWon() override { life_.CheckWon(); }

    Desktop desktop_;
    cData data_;
    cGames games_;
    Table table_;
    cScore score_;
    Favorites favorites_;
    Generator generator_;
    cArray array_;
    cTrans trans_;
    Playfield field_;
    Gestures gestures_;
    Replay replay_;
    GameLife life_;
    Counters counters_;
    Choosing choosing_;
    Commands commands_;
    Players players_;
    Results results_;
    std::function<void(const CardMove&)> onMove_;
};

}  // namespace varnello
