#pragma once

#include <QAction>
#include <QCoreApplication>
#include <QMenuBar>
#include <array>

#include "desktop/window/counter_label.h"
#include "engine/flow/engine.h"

namespace varnello {

/// What the menus ask of the window.
class Shell {
public:
    virtual ~Shell() = default;
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

/// The actions of one menu, by their enumeration.
template <typename Item>
class MenuItems {
public:
    QAction*& operator[](Item item) { return actions_.at(static_cast<std::size_t>(item)); }
    QAction* operator[](Item item) const { return actions_.at(static_cast<std::size_t>(item)); }

private:
    std::array<QAction*, 12> actions_{};
};

/// The menu bar of the main window, with the counters at its right end.
class MainMenu {
    Q_DECLARE_TR_FUNCTIONS(MainMenu)

public:
    MainMenu(QMenuBar& bar, Engine& engine, Shell& shell);

    /// Copies every mark and caption that the engine works out from its state.
    void UpdateMenus();
    const MenuMarks& Marks() const { return marks_; }

    QAction* mFile(FileItem item) const { return file_[item]; }
    QAction* mGame(GameItem item) const { return game_[item]; }
    QAction* mReplay(ReplayItem item) const { return replay_[item]; }
    QAction* mFav(FavItem item) const { return fav_[item]; }
    QAction* mStat(StatItem item) const { return stat_[item]; }
    QAction* mTools(ToolsItem item) const { return tools_[item]; }
    QAction* mHelp(HelpItem item) const { return help_[item]; }
    /// `index` from 1, the newest.
    QAction* mRecent(int index) const { return recent_.at(static_cast<std::size_t>(index)); }
    CounterLabel& Counters() const { return *counters_; }

private:
    void BuildFile();
    void BuildGame();
    void BuildReplay();
    void BuildFavorites();
    void BuildStatistics();
    void BuildTools();
    void BuildHelp();
    void UpdateRecent();

    template <typename Action>
    void Add(QMenu* menu, QAction*& item, const QString& caption, const QKeySequence& key,
             Action&& action);
    /// The same for an item that begins a game or chooses one: a deal in motion isn't finished for
    /// it, but gives way to the next one.
    template <typename Action>
    void AddStart(QMenu* menu, QAction*& item, const QString& caption, const QKeySequence& key,
                  Action&& action);

    QMenuBar& bar_;
    Engine& engine_;
    Shell& shell_;
    MenuItems<FileItem> file_;
    MenuItems<GameItem> game_;
    MenuItems<ReplayItem> replay_;
    MenuItems<FavItem> fav_;
    MenuItems<StatItem> stat_;
    MenuItems<ToolsItem> tools_;
    MenuItems<HelpItem> help_;
    std::array<QAction*, kMaxRecent + 1> recent_{};
    CounterLabel* counters_;
    MenuMarks marks_;
};

}  // namespace varnello
