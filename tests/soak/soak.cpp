#include <malloc.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QMessageBox>
#include <QPixmapCache>
#include <QTabWidget>
#include <QTreeWidget>
#include <cstdio>
#include <fstream>
#include <random>

#include "../desktop/fixture.h"
#include "desktop/customize/customize_dialog.h"
#include "desktop/reports/finish_dialog.h"

// varnello-soak [GAMES [SEED]]: plays games of all kinds at random by mouse in a real window, with
// undo, replay, dialogs over running games, changed settings and sizes. Ends with 1 when memory
// grows after the first games or a game is missing in the score file. See soak.sh.
using namespace varnello;

namespace {

constexpr int kWarmUp = 50;           // games
constexpr double kAllowedGrowth = 3;  // megabytes after the warm-up
constexpr int kActions = 60;          // a game

double Megabytes(double bytes) { return bytes / 1048576; }

/// What the program holds on its heap; the toolkit's cache of pictures, which has a limit of its
/// own, is left out.
double Allocated() {
    QPixmapCache::clear();
    return Megabytes(static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd));
}

double Resident() {
    std::ifstream statm("/proc/self/statm");
    double pages = 0;
    statm >> pages >> pages;
    return Megabytes(pages * 4096);
}

class Soak {
public:
    explicit Soak(unsigned seed) : random_(seed) {
        QObject::connect(&modals_, &QTimer::timeout, &modals_, [this] { WorkModal(); });
        modals_.start(3);
    }

    void PlayGame(int number) {
        const GameRow& row = kCatalogue[static_cast<std::size_t>(number * 8 % TotalGames())];
        fixture_.Start(row.Name.data(), Below(65536));
        for (int i = 0; i < kActions && fixture_.engine().data().GameRunning; ++i) Act();
        if (Below(3) == 0)
            Menu(fixture_.window.menu().mFile(FileItem::Close));  // the others end under the next
    }
    /// Ends the last game; the result is how many games the score file lacks or has too many.
    int Missing() {
        fixture_.engine().commands().CloseGame();
        return fixture_.engine().score().SesTop() - static_cast<int>(fixture_.Scores().size());
    }

    int Moves() { return fixture_.engine().score().SesSummary().Moves; }

private:
    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

    void Menu(QAction* item) {
        if (item->isEnabled()) item->trigger();
        QCoreApplication::processEvents();
    }

    void Act() {
        const MainMenu& menu = fixture_.window.menu();
        const int dice = Below(100);
        if (dice < 74) return DragSomething();
        if (dice < 82) return ClickStock();
        if (dice < 88) return Menu(menu.mGame(Below(2) == 0 ? GameItem::Undo : GameItem::Redo));
        if (dice < 90)
            return Menu(menu.mGame(Below(2) == 0 ? GameItem::UndoAll : GameItem::RedoAll));
        if (dice < 92) return Replay();
        if (dice < 93)
            return Menu(Below(2) == 0 ? menu.mGame(GameItem::Autoplay)
                                      : menu.mGame(GameItem::Toolbar));
        if (dice < 95) return fixture_.window.resize(700 + Below(580), 500 + Below(380));
        OpenDialog();
    }

    void DragSomething() {
        const auto cards = fixture_.engine().table().VisibleCards();
        if (cards.empty()) return;
        const PicID card = cards[static_cast<std::size_t>(Below(static_cast<int>(cards.size())))];
        const PicID onto = cards[static_cast<std::size_t>(Below(static_cast<int>(cards.size())))];
        const QPoint to = Below(4) == 0 ? fixture_.At(Below(15000), Below(9000))
                                        : fixture_.CentreOf(onto) + QPoint(0, 10);
        fixture_.Drag(card, to);
        QCoreApplication::processEvents();
    }

    void ClickStock() {
        const KesEmpty& slot = fixture_.engine().table().PicStock[0];
        const QPoint at = fixture_.At(slot.Left + 500, slot.Top + 700);
        fixture_.Press(at);
        fixture_.Release(at);
        QCoreApplication::processEvents();
    }

    void Replay() {
        const MainMenu& menu = fixture_.window.menu();
        constexpr ReplayItem kItems[] = {ReplayItem::All, ReplayItem::Forward, ReplayItem::Back};
        Menu(menu.mReplay(kItems[Below(3)]));
        for (int i = Below(6); i > 0; --i) {
            fixture_.engine().replay().ForwardTick();
            fixture_.engine().replay().BackwardTick();
            QCoreApplication::processEvents();
        }
        Menu(menu.mReplay(ReplayItem::Stop));
    }

    void OpenDialog() {
        const MainMenu& menu = fixture_.window.menu();
        QAction* const items[] = {
            menu.mFile(FileItem::Select),    menu.mFile(FileItem::Number),
            menu.mFav(FavItem::Add),         menu.mFav(FavItem::Organize),
            menu.mFav(FavItem::Play),        menu.mStat(StatItem::Game),
            menu.mStat(StatItem::Session),   menu.mStat(StatItem::HighScore),
            menu.mStat(StatItem::Log),       menu.mTools(ToolsItem::Customize),
            menu.mTools(ToolsItem::Players), menu.mTools(ToolsItem::History),
            menu.mHelp(HelpItem::Rules),     menu.mHelp(HelpItem::About)};
        Menu(items[Below(static_cast<int>(std::size(items)))]);
    }

    /// Does something in the window on top, and closes it before long.
    void WorkModal() {
        QWidget* window = QApplication::activeModalWidget();
        if (!window) return;
        for (QTabWidget* tabs : window->findChildren<QTabWidget*>()) {
            tabs->setCurrentIndex(Below(tabs->count()));
        }
        for (QComboBox* combo : window->findChildren<QComboBox*>()) {
            combo->setCurrentIndex(Below(combo->count()));
            Q_EMIT combo->activated(combo->currentIndex());
        }
        for (QTreeWidget* tree : window->findChildren<QTreeWidget*>()) {
            if (QTreeWidgetItem* item = tree->itemAt(9, Below(tree->height()))) {
                tree->setCurrentItem(item);
            }
        }
        auto* dialog = qobject_cast<QDialog*>(window);
        if (!dialog) {
            window->close();
        } else if (auto* box = qobject_cast<QMessageBox*>(window)) {
            box->buttons().constLast()->click();
        } else if (qobject_cast<CustomizeDialog*>(window) && Below(2) == 0) {
            dialog->accept();
        } else {
            dialog->reject();
        }
    }

    std::mt19937 random_;
    WindowFixture fixture_;
    QTimer modals_;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const int games = argc > 1 ? std::atoi(argv[1]) : 500;
    Soak soak(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1);
    double start = 0;
    for (int game = 1; game <= games; ++game) {
        soak.PlayGame(game);
        if (game == kWarmUp) start = Allocated();
        if (game % 50 == 0 || game == games) {
            std::printf("%d games, %.1f MB allocated, %.0f MB resident\n", game, Allocated(),
                        Resident());
            std::fflush(stdout);
        }
    }
    const int missing = soak.Missing();
    const double growth = games > kWarmUp ? Allocated() - start : 0;
    std::printf("%d moves in all games; ", soak.Moves());
    std::printf("%d missing in the score file, %.1f MB more than after %d games\n", missing, growth,
                kWarmUp);
    return missing == 0 && growth <= kAllowedGrowth ? 0 : 1;
}
