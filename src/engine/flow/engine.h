#pragma once

#include <array>
#include <functional>
#include <set>
#include <string>

#include "engine/board/board.h"
#include "engine/desktop.h"
#include "engine/flow/counters.h"
#include "engine/flow/menus.h"
#include "engine/movelog/log.h"
#include "engine/rules/gestures.h"
#include "engine/scores/favorites.h"
#include "engine/scores/score_store.h"

namespace varnello {

/// The figures that the won dialog shows.
struct FinishFigures {
    std::string Game;
    std::array<std::string, 5> Lines;  ///< game number, player, time, moves, score
    std::int16_t Score = 0;            ///< for the chart: 0 when negative
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

// What is asked before what can't be taken back.
inline constexpr std::string_view kClearRecentQuestion =
    "Are you sure you want to clear the Recent Games List ?";
inline constexpr std::string_view kClearStatQuestion =
    "Are you sure you want to clear the Statistics, High Score and Log for all Players and all "
    "Games ?";
inline constexpr std::string_view kDeletePlayerQuestion =
    "Are you sure you want to delete this player";

/// 10 to the power of a range index, at most 15; 0 for an index below 1.
double NumberLimit(std::int16_t rangeIndex);

/// The highest number of a range, 10 to its power less 1, with its digits in groups of three.
std::string HighestNumberText(std::int16_t rangeIndex);

/// The whole program without a window: the objects that live as long as the process, the life of a
/// game, and the commands that menus, toolbar and scripts give.
class Engine : private MoveFollower {
public:
    explicit Engine(const Desktop& desktop);
    ~Engine() override = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    /// Makes the data folder if it is missing, and on a first run the player "Player1".
    void InitMain();

    // The life of a game.
    /// Lays out a deal; a running game ends first. It becomes the running game when the surface has
    /// shown it. A deal that hasn't been shown yet goes without a record.
    void StartGame(const std::string& name, const GameNumber& number);
    /// The surface has shown everything: a deal becomes the running game.
    void Shown();
    /// Books the running game and empties the table.
    void EndGame(Outcome outcome);
    /// Ends the running game as what it is, won or not won; nothing without one.
    void LeaveGame();
    /// The program ends: so does the running game, and what couldn't be written is tried once more.
    void Leave();
    /// What the won dialog does when it loads: its figures, the sound, and the game's end as won.
    FinishFigures LoadFinish();
    GameNumber RandomGNo();
    Phase phase() const;

    // Commands. Each is ignored when its menu item would be disabled now.
    void NewGame() { StartGame(data.LastGName(), RandomGNo()); }
    void RecentGame(std::int16_t index);
    void RestartGame();
    void CloseGame();
    void Undo();
    void Redo();
    void UndoAll();
    void RedoAll();
    void ToggleAutoplay();
    void ToggleToolbar();
    void ReplayForward();
    void ReplayBack();
    void ReplayAll();
    void StopReplay();

    // Choosing a deal by its number. The text goes on exactly as it stands.
    /// The highest number, 10 to the power of the range less 1; numbers lie strictly below it.
    double MaxGNo() const;
    /// "0 and " and the highest number with its digits in groups.
    std::string RangeText() const;
    /// Whether the text reads as a number between 0 and `MaxGNo`, tested as a 32-bit float.
    bool IsChoosable(std::string_view text) const;
    /// The same, with a complaint when it doesn't.
    bool AcceptNumber(const std::string& text);
    /// Keeps the running game's deal as a favorite, and says so.
    void AddFavorite();

    /// Empties the recent list, and says so. To be asked before: `kClearRecentQuestion`.
    void ClearRecentGames();
    // Results.
    /// Deletes the score files of all listed players, and says so; the list of this run stays. To
    /// be asked before: `kClearStatQuestion`.
    void ClearStat();
    /// Opens the score list for a window, and tells of files that can't be read, of each once.
    void OpenScores();
    /// Deletes the favorites, and says so when that can't be done.
    void ClearFavorites();
    /// Writes the report over all results to a file, and says so. Silent when it can't be written.
    /// Closes the score list.
    void ExportStat(const ChosenFile& file);

    // Players.
    /// Whether there is room for one more; says so if not.
    bool MayAddPlayer();
    /// "OK" of the input box: adds a player, or renames `oldName` unless that is empty. False, with
    /// the reason told, when the box has to stay open.
    bool EnterPlayer(const std::string& oldName, const std::string& newName);
    /// Deletes a player other than the current one, with all results. To be asked before:
    /// `kDeletePlayerQuestion`.
    bool DeletePlayer(const std::string& name);

    // Timer ticks.
    /// `tmrForward`: one step of a forward replay. Nothing without a running game.
    void ForwardTick();
    /// `tmrBackward`: one step of a backward replay.
    void BackwardTick();
    /// `tmrTime`: refreshes the stored counters; the result is what the menu bar shows.
    CounterCaptions TimeTick();
    bool ForwardOn() const { return forwardOn_; }
    bool BackwardOn() const { return backwardOn_; }

    // What the shell shows.
    MenuMarks UpdateMenus() const;
    std::array<std::string, kMaxRecent> UpdateRecent() const;
    /// The main window's caption: the product name, from the first game on with the game, the
    /// player and the number that the last game began with.
    const std::string& Caption() const { return caption_; }

    std::int16_t CalcScore() const;
    std::int32_t ElapsedTime() const;
    DateTime Now() const { return desktop_.clock.Now(); }
    const DateForms& dates() const { return desktop_.dates; }

    cData data;
    cGames games;
    Table table;
    cScore score;
    Favorites favorites;
    Gestures& gestures() { return gestures_; }
    const cArray& array() const { return array_; }
    const cTrans& trans() const { return trans_; }
    /// Called before each card's move, for those who follow along.
    std::function<void(const CardMove&)> onMove;
    /// Called in the move that wins a game, after all that it changes.
    std::function<void()> onWon;
    /// Stands for the catalogue: fills `games` for a name. Tests put definitions of their own here.
    std::function<void(cGames&, const std::string&)> selectGame;

private:
    bool Playing() const override { return data.Playing(); }
    void MoveBegins(const CardMove& move) override;
    void SaveTrans(const CardMove& move) override { trans_.SaveTrans(move); }
    void AutoPlay() override;
    void CheckWon() override;

    void ClearTable();
    /// The stock's mark in games with a redeal: the stop sign once nothing is left to turn over.
    void ShowRedealMark();
    void TellUnread();
    void RefuseSettings();
    void RefuseFile(const std::string& what, const std::filesystem::path& file);
    /// Finishes a rename that was interrupted, and puts the list of players in order.
    void MendPlayers();
    void TakeBackUnfinishedDeletes();
    bool RenamePlayer(const std::string& oldName, const std::string& newName);
    void EndReplay();

    Desktop desktop_;
    Generator generator_;
    Generator numbers_;  ///< draws game numbers; a deal under way must not be disturbed
    cArray array_;
    cTrans trans_;
    Playfield field_;
    Gestures gestures_;
    bool dealing_ = false;
    std::string caption_{kProductName};
    bool forwardOn_ = false;
    bool backwardOn_ = false;
    bool stopEnabled_ = false;
    std::set<std::filesystem::path> toldUnread_;
};

}  // namespace varnello
