#include "desktop/window/main_menu.h"

#include <QMenu>
#include <QShortcut>
#include <cstdlib>

#include "desktop/platform/text.h"

namespace varnello {

MainMenu::MainMenu(QMenuBar& bar, Engine& engine, Shell& shell)
    : bar_(bar), engine_(engine), shell_(shell), counters_(new CounterLabel(bar)) {
    BuildFile();
    BuildGame();
    BuildReplay();
    BuildFavorites();
    BuildStatistics();
    BuildTools();
    BuildHelp();
    auto* open = new QShortcut(Qt::Key_F10, &bar_);
    QObject::connect(open, &QShortcut::activated, &bar_, [this] {
        shell_.Settle();
        bar_.setActiveAction(bar_.actions().first());
    });
}

template <typename Action>
void MainMenu::AddStart(QMenu* menu, QAction*& item, const QString& caption,
                        const QKeySequence& key, Action&& action) {
    item = menu->addAction(caption);
    item->setShortcut(key);
    QObject::connect(item, &QAction::triggered, item, [this, action] {
        action();
        shell_.Refresh();
    });
}

template <typename Action>
void MainMenu::Add(QMenu* menu, QAction*& item, const QString& caption, const QKeySequence& key,
                   Action&& action) {
    AddStart(menu, item, caption, key, [this, action] {
        shell_.Settle();
        action();
    });
}

void MainMenu::BuildFile() {
    QMenu* menu = bar_.addMenu(tr("&File"));
    AddStart(menu, file_[FileItem::New], tr("&New Game"), Qt::Key_F2,
             [this] { engine_.commands().NewGame(); });
    AddStart(menu, file_[FileItem::Select], tr("&Select Game"), Qt::Key_F3,
             [this] { shell_.ShowSelect(); });
    menu->addSeparator();
    AddStart(menu, file_[FileItem::Restart], tr("&Restart Game"), Qt::CTRL | Qt::Key_F3,
             [this] { engine_.commands().RestartGame(); });
    Add(menu, file_[FileItem::Close], tr("&Close Game"), Qt::CTRL | Qt::Key_F1,
        [this] { engine_.commands().CloseGame(); });
    menu->addSeparator();
    AddStart(menu, file_[FileItem::Number], tr("Select a Number"), Qt::SHIFT | Qt::Key_F2,
             [this] { shell_.ShowChoose(); });
    menu->addSeparator();
    QMenu* recent = menu->addMenu(tr("Recent Games"));
    file_[FileItem::Recent] = recent->menuAction();
    for (int i = 1; i <= kMaxRecent; ++i) {
        AddStart(recent, recent_[static_cast<std::size_t>(i)], {}, {},
                 [this, i] { engine_.commands().RecentGame(Narrow16(i)); });
    }
    menu->addSeparator();
    // Ends the process at once: a running game leaves no record.
    Add(menu, file_[FileItem::Exit], tr("E&xit"), {}, [] { std::_Exit(0); });
}

void MainMenu::BuildGame() {
    QMenu* menu = bar_.addMenu(tr("&Game"));
    Add(menu, game_[GameItem::Undo], tr("&Undo"), Qt::CTRL | Qt::Key_Z,
        [this] { engine_.commands().Undo(); });
    Add(menu, game_[GameItem::Redo], tr("&Redo"), Qt::CTRL | Qt::Key_X,
        [this] { engine_.commands().Redo(); });
    menu->addSeparator();
    Add(menu, game_[GameItem::Autoplay], tr("Autoplay"), Qt::Key_F7,
        [this] { engine_.commands().ToggleAutoplay(); });
    menu->addSeparator();
    Add(menu, game_[GameItem::UndoAll], tr("U&ndo All"), Qt::CTRL | Qt::Key_C,
        [this] { engine_.commands().UndoAll(); });
    Add(menu, game_[GameItem::RedoAll], tr("R&edo All"), Qt::CTRL | Qt::Key_V,
        [this] { engine_.commands().RedoAll(); });
    menu->addSeparator();
    Add(menu, game_[GameItem::Toolbar], tr("View Toolbar"), {}, [this] {
        engine_.commands().ToggleToolbar();
        shell_.LayoutMain();
    });
    game_[GameItem::Autoplay]->setCheckable(true);
    game_[GameItem::Toolbar]->setCheckable(true);
}

void MainMenu::BuildReplay() {
    QMenu* menu = bar_.addMenu(tr("&Replay"));
    Add(menu, replay_[ReplayItem::Forward], tr("&Forward"), Qt::SHIFT | Qt::Key_F3,
        [this] { engine_.commands().ReplayForward(); });
    Add(menu, replay_[ReplayItem::Back], tr("&Back"), Qt::SHIFT | Qt::Key_F4,
        [this] { engine_.commands().ReplayBack(); });
    menu->addSeparator();
    Add(menu, replay_[ReplayItem::All], tr("Replay &All"), {},
        [this] { engine_.commands().ReplayAll(); });
    menu->addSeparator();
    Add(menu, replay_[ReplayItem::Stop], tr("Sto&p"), {},
        [this] { engine_.commands().StopReplay(); });
}

void MainMenu::BuildFavorites() {
    QMenu* menu = bar_.addMenu(tr("Favorites"));
    Add(menu, fav_[FavItem::Add], tr("&Add to Favorites"), Qt::CTRL | Qt::Key_A,
        [this] { engine_.commands().AddFavorite(); });
    Add(menu, fav_[FavItem::Organize], tr("&Organize Favorites"), Qt::CTRL | Qt::Key_F,
        [this] { shell_.ShowOrganizeFavorites(); });
    menu->addSeparator();
    AddStart(menu, fav_[FavItem::Play], tr("&Play from Favorites"), Qt::CTRL | Qt::Key_P,
             [this] { shell_.ShowPlayFavorites(); });
}

void MainMenu::BuildStatistics() {
    QMenu* menu = bar_.addMenu(tr("Statistics"));
    Add(menu, stat_[StatItem::Game], tr("&Game Statistics"), Qt::Key_F4,
        [this] { shell_.ShowGameStat(); });
    Add(menu, stat_[StatItem::Session], tr("&Session Statistics"), {},
        [this] { shell_.ShowSesStat(); });
    menu->addSeparator();
    Add(menu, stat_[StatItem::HighScore], tr("&High Scores"), Qt::Key_F9,
        [this] { shell_.ShowHighScore(); });
    menu->addSeparator();
    Add(menu, stat_[StatItem::Log], tr("&Log Statistics"), {}, [this] { shell_.ShowLogStat(); });
}

void MainMenu::BuildTools() {
    QMenu* menu = bar_.addMenu(tr("&Tools"));
    Add(menu, tools_[ToolsItem::Customize], tr("Customize"), Qt::CTRL | Qt::Key_U,
        [this] { shell_.ShowCustomize(); });
    menu->addSeparator();
    Add(menu, tools_[ToolsItem::Players], tr("&Players"), Qt::CTRL | Qt::Key_L,
        [this] { shell_.ShowPlayers(); });
    menu->addSeparator();
    Add(menu, tools_[ToolsItem::History], tr("&History"), Qt::CTRL | Qt::Key_H,
        [this] { shell_.ShowHistory(); });
}

void MainMenu::BuildHelp() {
    QMenu* menu = bar_.addMenu(tr("&Help"));
    Add(menu, help_[HelpItem::Rules], tr("Rules"), Qt::Key_F1, [this] { shell_.ShowHelp(); });
    Add(menu, help_[HelpItem::Contents], tr("Contents"), {}, [this] { shell_.ShowContents(); });
    menu->addSeparator();
    Add(menu, help_[HelpItem::About], tr("About %1...").arg(ToQt(kProductName)), {},
        [this] { shell_.ShowAbout(); });
}

void MainMenu::UpdateMenus() {
    marks_ = engine_.commands().UpdateMenus();
    file_[FileItem::Restart]->setEnabled(marks_.Restart);
    file_[FileItem::Close]->setEnabled(marks_.Close);
    fav_[FavItem::Add]->setEnabled(marks_.AddFavorite);
    tools_[ToolsItem::History]->setEnabled(marks_.History);
    game_[GameItem::Undo]->setEnabled(marks_.Undo);
    game_[GameItem::Redo]->setEnabled(marks_.Redo);
    game_[GameItem::Autoplay]->setEnabled(marks_.Autoplay);
    game_[GameItem::Autoplay]->setChecked(marks_.AutoplayChecked);
    game_[GameItem::UndoAll]->setEnabled(marks_.UndoAll);
    game_[GameItem::RedoAll]->setEnabled(marks_.RedoAll);
    game_[GameItem::Toolbar]->setChecked(marks_.ToolbarChecked);
    replay_[ReplayItem::Forward]->setEnabled(marks_.Forward);
    replay_[ReplayItem::Back]->setEnabled(marks_.Back);
    replay_[ReplayItem::All]->setEnabled(marks_.ReplayAll);
    replay_[ReplayItem::Stop]->setEnabled(marks_.Stop);
    UpdateRecent();
}

void MainMenu::UpdateRecent() {
    const auto captions = engine_.commands().UpdateRecent();
    for (int i = 1; i <= kMaxRecent; ++i) {
        const QString caption = ToQt(captions[static_cast<std::size_t>(i - 1)]);
        mRecent(i)->setText(caption);
        mRecent(i)->setVisible(i == 1 || !caption.isEmpty());
    }
}

}  // namespace varnello
