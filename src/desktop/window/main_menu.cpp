#include "desktop/window/main_menu.h"

#include <QMenu>
#include <cstdlib>

#include "desktop/platform/text.h"

namespace varnello {

MainMenu::MainMenu(QMenuBar& bar, Engine& engine, Shell& shell)
    : bar_(bar), engine_(engine), shell_(shell) {
    BuildFile();
    BuildGame();
    BuildReplay();
    BuildFavorites();
    BuildStatistics();
    BuildTools();
    BuildHelp();
    BuildCounters();
}

template <std::size_t N, typename Action>
QAction* MainMenu::AddStart(QMenu* menu, std::array<QAction*, N>& items, int index,
                            const QString& caption, const QKeySequence& key, Action&& action) {
    QAction* item = menu->addAction(caption);
    item->setShortcut(key);
    QObject::connect(item, &QAction::triggered, item, [this, action] {
        action();
        shell_.Refresh();
    });
    items.at(static_cast<std::size_t>(index)) = item;
    return item;
}

template <std::size_t N, typename Action>
void MainMenu::Add(QMenu* menu, std::array<QAction*, N>& items, int index, const QString& caption,
                   const QKeySequence& key, Action&& action) {
    AddStart(menu, items, index, caption, key, [this, action] {
        shell_.Settle();
        action();
    });
}

void MainMenu::BuildFile() {
    QMenu* menu = bar_.addMenu(QStringLiteral("&File"));
    AddStart(menu, file_, 1, QStringLiteral("&New Game"), Qt::Key_F2, [this] { shell_.NewGame(); });
    AddStart(menu, file_, 2, QStringLiteral("&Select Game"), Qt::Key_F3,
             [this] { shell_.ShowSelect(); });
    menu->addSeparator();
    AddStart(menu, file_, 4, QStringLiteral("&Restart Game"), Qt::CTRL | Qt::Key_F3,
             [this] { shell_.RestartGame(); });
    Add(menu, file_, 5, QStringLiteral("&Close Game"), Qt::CTRL | Qt::Key_F1,
        [this] { engine_.CloseGame(); });
    menu->addSeparator();
    AddStart(menu, file_, 7, QStringLiteral("Select a Number"), Qt::SHIFT | Qt::Key_F2,
             [this] { shell_.ShowChoose(); });
    menu->addSeparator();
    QMenu* recent = menu->addMenu(QStringLiteral("Recent Games"));
    file_[9] = recent->menuAction();
    for (int i = 1; i <= kMaxRecent; ++i) {
        AddStart(recent, recent_, i, {}, {}, [this, i] { shell_.RecentGame(i); });
    }
    menu->addSeparator();
    // Ends the process at once: a running game leaves no record.
    Add(menu, file_, 11, QStringLiteral("E&xit"), {}, [] { std::_Exit(0); });
}

void MainMenu::BuildGame() {
    QMenu* menu = bar_.addMenu(QStringLiteral("&Game"));
    Add(menu, game_, 1, QStringLiteral("&Undo"), Qt::CTRL | Qt::Key_Z, [this] { engine_.Undo(); });
    Add(menu, game_, 2, QStringLiteral("&Redo"), Qt::CTRL | Qt::Key_X, [this] { engine_.Redo(); });
    menu->addSeparator();
    Add(menu, game_, 4, QStringLiteral("Autoplay"), Qt::Key_F7,
        [this] { engine_.ToggleAutoplay(); });
    menu->addSeparator();
    Add(menu, game_, 6, QStringLiteral("U&ndo All"), Qt::CTRL | Qt::Key_C,
        [this] { engine_.UndoAll(); });
    Add(menu, game_, 7, QStringLiteral("R&edo All"), Qt::CTRL | Qt::Key_V,
        [this] { engine_.RedoAll(); });
    menu->addSeparator();
    Add(menu, game_, 9, QStringLiteral("View Toolbar"), {}, [this] {
        engine_.ToggleToolbar();
        shell_.LayoutMain();
    });
    game_[4]->setCheckable(true);
    game_[9]->setCheckable(true);
}

void MainMenu::BuildReplay() {
    QMenu* menu = bar_.addMenu(QStringLiteral("&Replay"));
    Add(menu, replay_, 1, QStringLiteral("&Forward"), Qt::SHIFT | Qt::Key_F3,
        [this] { engine_.ReplayForward(); });
    Add(menu, replay_, 2, QStringLiteral("&Back"), Qt::SHIFT | Qt::Key_F4,
        [this] { engine_.ReplayBack(); });
    menu->addSeparator();
    Add(menu, replay_, 4, QStringLiteral("Replay &All"), {}, [this] { engine_.ReplayAll(); });
    menu->addSeparator();
    Add(menu, replay_, 6, QStringLiteral("Sto&p"), {}, [this] { engine_.StopReplay(); });
}

void MainMenu::BuildFavorites() {
    QMenu* menu = bar_.addMenu(QStringLiteral("Favorites"));
    Add(menu, fav_, 1, QStringLiteral("&Add to Favorites"), Qt::CTRL | Qt::Key_A,
        [this] { engine_.AddFavorite(); });
    Add(menu, fav_, 2, QStringLiteral("&Organize Favorites"), Qt::CTRL | Qt::Key_F,
        [this] { shell_.ShowOrganizeFavorites(); });
    menu->addSeparator();
    AddStart(menu, fav_, 4, QStringLiteral("&Play from Favorites"), Qt::CTRL | Qt::Key_P,
             [this] { shell_.ShowPlayFavorites(); });
}

void MainMenu::BuildStatistics() {
    QMenu* menu = bar_.addMenu(QStringLiteral("Statistics"));
    Add(menu, stat_, 1, QStringLiteral("&Game Statistics"), Qt::Key_F4,
        [this] { shell_.ShowGameStat(); });
    Add(menu, stat_, 2, QStringLiteral("&Session Statistics"), {},
        [this] { shell_.ShowSesStat(); });
    menu->addSeparator();
    Add(menu, stat_, 4, QStringLiteral("&High Scores"), Qt::Key_F9,
        [this] { shell_.ShowHighScore(); });
    menu->addSeparator();
    Add(menu, stat_, 6, QStringLiteral("&Log Statistics"), {}, [this] { shell_.ShowLogStat(); });
}

void MainMenu::BuildTools() {
    QMenu* menu = bar_.addMenu(QStringLiteral("&Tools"));
    Add(menu, tools_, 1, QStringLiteral("Customize"), Qt::CTRL | Qt::Key_U,
        [this] { shell_.ShowCustomize(); });
    menu->addSeparator();
    Add(menu, tools_, 3, QStringLiteral("&Players"), Qt::CTRL | Qt::Key_L,
        [this] { shell_.ShowPlayers(); });
    menu->addSeparator();
    Add(menu, tools_, 5, QStringLiteral("&History"), Qt::CTRL | Qt::Key_H,
        [this] { shell_.ShowHistory(); });
}

void MainMenu::BuildHelp() {
    QMenu* menu = bar_.addMenu(QStringLiteral("&Help"));
    Add(menu, help_, 1, QStringLiteral("Rules"), Qt::Key_F1, [this] { shell_.ShowHelp(); });
    Add(menu, help_, 2, QStringLiteral("Contents"), {}, [this] { shell_.ShowContents(); });
    menu->addSeparator();
    Add(menu, help_, 4, QStringLiteral("About %1...").arg(ToQt(kProductName)), {},
        [this] { shell_.ShowAbout(); });
}

void MainMenu::BuildCounters() {
    counters_ = new QLabel(&bar_);
    counters_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    counters_->setContentsMargins(0, 0, 12, 0);
    counters_->setMinimumWidth(counters_->fontMetrics().horizontalAdvance(
        QStringLiteral("Score :-32768     Time :99:59:59     Moves :32767    ")));
    counters_->setAccessibleName(QStringLiteral("Score, time and moves"));
    bar_.setCornerWidget(counters_, Qt::TopRightCorner);
}

void MainMenu::ShowCounters(const CounterCaptions& captions) {
    QStringList shown;
    for (const std::string& caption : {captions.mScore, captions.mTime, captions.mMoves}) {
        if (!caption.empty()) shown << ToQt(caption);
    }
    counters_->setText(shown.join(QStringLiteral("     ")));
}

void MainMenu::UpdateMenus() {
    const MenuMarks marks = engine_.UpdateMenus();
    file_[4]->setEnabled(marks.mFile4);
    file_[5]->setEnabled(marks.mFile5);
    fav_[1]->setEnabled(marks.mFav1);
    tools_[5]->setEnabled(marks.mTools5);
    game_[1]->setEnabled(marks.mGame1);
    game_[2]->setEnabled(marks.mGame2);
    game_[4]->setEnabled(marks.mGame4);
    game_[4]->setChecked(marks.mGame4Checked);
    game_[6]->setEnabled(marks.mGame6);
    game_[7]->setEnabled(marks.mGame7);
    game_[9]->setChecked(marks.mGame9Checked);
    replay_[1]->setEnabled(marks.mReplay1);
    replay_[2]->setEnabled(marks.mReplay2);
    replay_[4]->setEnabled(marks.mReplay4);
    replay_[6]->setEnabled(marks.mReplay6);
    UpdateRecent();
}

void MainMenu::UpdateRecent() {
    const auto captions = engine_.UpdateRecent();
    for (int i = 1; i <= kMaxRecent; ++i) {
        const QString caption = ToQt(captions[static_cast<std::size_t>(i - 1)]);
        mRecent(i)->setText(caption);
        mRecent(i)->setVisible(i == 1 || !caption.isEmpty());
    }
}

}  // namespace varnello
