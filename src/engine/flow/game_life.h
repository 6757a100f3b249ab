#pragma once

#include <array>
#include <functional>
#include <string>

#include "engine/desktop.h"
#include "engine/flow/replay.h"
#include "engine/rules/gestures.h"
#include "engine/scores/score_store.h"

namespace varnello {

/// The figures that the won dialog shows.
struct FinishFigures {
    std::string Game;
    std::array<Phrase, 5> Lines;  ///< game number, player, time, moves, score
    std::int16_t Score = 0;       ///< for the chart: 0 when negative
    std::int16_t Moves = 0;
    std::int32_t Time = 0;  ///< seconds
};

/// Where the life of a game stands.
enum class Phase {
    Idle,     ///< no game; the table is empty
    Dealing,  ///< a deal is laid out and not yet shown
    Playing,
    Won  ///< all cards are up; the game ends as won with whatever ends it
};

/// The life of a game, from its deal to its line in the file of its player.
class GameLife {
public:
    /// Fills the record of the game on the table for a name.
    using Select = std::function<void(cGames&, const std::string& name)>;

    GameLife(const Playfield& field, Gestures& gestures, cScore& score, Replay& replay,
             const Desktop& desktop);

    /// Stands for the catalogue: tests put definitions of their own here.
    void SelectBy(Select select) { select_ = std::move(select); }
    /// Called before a game begins, whoever asked for it.
    void OnStart(std::function<void()> follow) { onStart_ = std::move(follow); }
    /// Called in the move that wins a game, after all that it changes.
    void OnWon(std::function<void()> follow) { onWon_ = std::move(follow); }

    /// Lays out a deal; a running game ends first. It becomes the running game when the surface has
    /// shown it. A deal that hasn't been shown yet goes without a record.
    void StartGame(const std::string& name, const GameNumber& number);
    /// The surface has shown everything: a deal becomes the running game.
    void Shown();
    /// All cards may be up: the last step of a move.
    void CheckWon();
    /// Books the running game and empties the table.
    void EndGame(Outcome outcome);
    /// Ends the running game as what it is, won or not won; nothing without one.
    void LeaveGame();
    /// What the won dialog does when it loads: its figures, the sound, and the game's end as won.
    FinishFigures LoadFinish();

    Phase phase() const;
    /// The main window's caption: the product name, from the first game on with the game, the
    /// player and the number that the last game began with.
    const std::string& Caption() const { return caption_; }

private:
    void ClearTable();

    Playfield field_;
    Gestures& gestures_;
    cScore& score_;
    Replay& replay_;
    TableSurface& surface_;
    Clock& clock_;
    Messages& messages_;
    Select select_;
    std::function<void()> onStart_;
    std::function<void()> onWon_;
    bool dealing_ = false;
    std::string caption_{kProductName};
};

}  // namespace varnello
