#pragma once

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <array>

#include "engine/flow/engine.h"

namespace varnello {

/// What the menus ask of the window.
class Shell {
public:
    virtual ~Shell() = default;
    // These begin a game. Nothing else does.
    virtual void NewGame() = 0;
    virtual void RestartGame() = 0;
    /// `index` from 1, the newest.
    virtual void RecentGame(int index) = 0;

    /// Shows the rest of what is in motion at once, before a command acts on the table.
    virtual void Settle() = 0;
    virtual void ShowSelect() = 0;
    virtual void ShowChoose() = 0;
    virtual void ShowOrganizeFavorites() = 0;
    virtual void ShowPlayFavorites() = 0;
    virtual void ShowGameStat() = 0;
    virtual void ShowSesStat() = 0;
    virtual void ShowHighScore() = 0;
    virtual void ShowLogStat() = 0;
    virtual void ShowCustomize() = 0;
    virtual void ShowPlayers() = 0;
    virtual void ShowHistory() = 0;
    /// The rules of the running game, or the contents without one.
    virtual void ShowHelp() = 0;
    virtual void ShowContents() = 0;
    virtual void ShowAbout() = 0;
    virtual void LayoutMain() = 0;
    /// The window follows the engine after a command.
    virtual void Refresh() = 0;
};

/// The menu bar of the main window, with the counters at its right end. Its items are numbered in
/// each menu from 1, separators included.
class MainMenu {
public:
    MainMenu(QMenuBar& bar, Engine& engine, Shell& shell);

    /// Copies every mark and caption that the engine works out from its state.
    void UpdateMenus();
    void ShowCounters(const CounterCaptions& captions);

    QAction* mFile(int index) const { return file_.at(static_cast<std::size_t>(index)); }
    QAction* mGame(int index) const { return game_.at(static_cast<std::size_t>(index)); }
    QAction* mReplay(int index) const { return replay_.at(static_cast<std::size_t>(index)); }
    QAction* mFav(int index) const { return fav_.at(static_cast<std::size_t>(index)); }
    QAction* mStat(int index) const { return stat_.at(static_cast<std::size_t>(index)); }
    QAction* mTools(int index) const { return tools_.at(static_cast<std::size_t>(index)); }
    QAction* mHelp(int index) const { return help_.at(static_cast<std::size_t>(index)); }
    QAction* mRecent(int index) const { return recent_.at(static_cast<std::size_t>(index)); }
    const QLabel* Counters() const { return counters_; }

private:
    void BuildFile();
    void BuildGame();
    void BuildReplay();
    void BuildFavorites();
    void BuildStatistics();
    void BuildTools();
    void BuildHelp();
    void BuildCounters();
    void UpdateRecent();

    template <std::size_t N, typename Action>
    void Add(QMenu* menu, std::array<QAction*, N>& items, int index, const QString& caption,
             const QKeySequence& key, Action&& action);
    /// The same for an item that begins a game or chooses one: a deal in motion isn't finished for
    /// it, but gives way to the next one.
    template <std::size_t N, typename Action>
    QAction* AddStart(QMenu* menu, std::array<QAction*, N>& items, int index,
                      const QString& caption, const QKeySequence& key, Action&& action);

    QMenuBar& bar_;
    Engine& engine_;
    Shell& shell_;
    std::array<QAction*, 12> file_{};
    std::array<QAction*, 10> game_{};
    std::array<QAction*, 7> replay_{};
    std::array<QAction*, 5> fav_{};
    std::array<QAction*, 7> stat_{};
    std::array<QAction*, 6> tools_{};
    std::array<QAction*, 5> help_{};
    std::array<QAction*, kMaxRecent + 1> recent_{};
    QLabel* counters_ = nullptr;
};

}  // namespace varnello
