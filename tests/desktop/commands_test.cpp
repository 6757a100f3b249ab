#include <QAction>
#include <QMap>
#include <QMenu>
#include <QMessageBox>
#include <QToolButton>

#include "desktop/platform/text.h"
#include "engine/common/text_file.h"
#include "fixture.h"

// What each command of the main window does, by its item, its key and its button alike, and which
// of them can be given when.
using namespace varnello;

namespace {

struct Command {
    const char* name;
    QAction* item;
    const char* key;
    int button;           ///< of the toolbar; 0 for none
    const char* changes;  ///< what must be another afterwards
};

std::vector<Command> CommandsOf(const MainMenu& menu) {
    const auto file = [&](FileItem item) { return menu.mFile(item); };
    const auto game = [&](GameItem item) { return menu.mGame(item); };
    const auto replay = [&](ReplayItem item) { return menu.mReplay(item); };
    const auto fav = [&](FavItem item) { return menu.mFav(item); };
    const auto stat = [&](StatItem item) { return menu.mStat(item); };
    const auto tools = [&](ToolsItem item) { return menu.mTools(item); };
    const auto help = [&](HelpItem item) { return menu.mHelp(item); };
    return {
        {"New Game", file(FileItem::New), "F2", 1, "deal moves=0/0 results=2"},
        {"Select Game", file(FileItem::Select), "F3", 2, "opened=[Varnello]"},
        {"Restart Game", file(FileItem::Restart), "Ctrl+F3", 3, "moves=0/0 results=2"},
        {"Close Game", file(FileItem::Close), "Ctrl+F1", 0, "game=none results=2"},
        {"Select a Number", file(FileItem::Number), "Shift+F2", 0, "opened=[Select a Game Number]"},
        {"the second recent game", menu.mRecent(2), "", 0, "deal game=Zodiac moves=0/0 results=2"},
        {"Undo", game(GameItem::Undo), "Ctrl+Z", 7, "moves=1/4"},
        {"Redo", game(GameItem::Redo), "Ctrl+X", 8, "moves=3/4"},
        {"Autoplay", game(GameItem::Autoplay), "F7", 5, "autoplay=1"},
        {"Undo All", game(GameItem::UndoAll), "Ctrl+C", 0, "moves=0/4"},
        {"Redo All", game(GameItem::RedoAll), "Ctrl+V", 0, "moves=4/4"},
        {"View Toolbar", game(GameItem::Toolbar), "", 0, "toolbar=0"},
        {"Forward", replay(ReplayItem::Forward), "Shift+F3", 12, "replay=forward"},
        {"Back", replay(ReplayItem::Back), "Shift+F4", 10, "replay=back"},
        {"Replay All", replay(ReplayItem::All), "", 0, "moves=0/4 replay=forward"},
        {"Stop", replay(ReplayItem::Stop), "", 11, "replay="},
        {"Add to Favorites", fav(FavItem::Add), "Ctrl+A", 0,
         "favorites=1 opened=[Game <6> Successfully Added to Favorites Under <Freecell> Folder]"},
        {"Organize Favorites", fav(FavItem::Organize), "Ctrl+F", 0, "opened=[Organize Favorites]"},
        {"Play from Favorites", fav(FavItem::Play), "Ctrl+P", 0, "opened=[Play from Favorites]"},
        {"Game Statistics", stat(StatItem::Game), "F4", 14, "opened=[Game Statistics]"},
        {"Session Statistics", stat(StatItem::Session), "", 0, "opened=[Session Statistics]"},
        {"High Scores", stat(StatItem::HighScore), "F9", 0, "opened=[High Score]"},
        {"Log Statistics", stat(StatItem::Log), "", 0, "opened=[Log Statistics]"},
        {"Customize", tools(ToolsItem::Customize), "Ctrl+U", 0, "opened=[Customize]"},
        {"Players", tools(ToolsItem::Players), "Ctrl+L", 0, "opened=[Players]"},
        {"History", tools(ToolsItem::History), "Ctrl+H", 0, "opened=[Game History]"},
        {"Rules", help(HelpItem::Rules), "F1", 16, "opened=[Freecell - Varnello]"},
        {"Contents", help(HelpItem::Contents), "", 0, "opened=[Contents - Varnello]"},
        {"About", help(HelpItem::About), "", 0, "opened=[About Varnello]"},
        {"larger", nullptr, "Ctrl++", 0, "zoom=175"},
        {"larger, without Shift", nullptr, "Ctrl+=", 0, "zoom=175"},
        {"smaller", nullptr, "Ctrl+-", 0, "zoom=125"},
        {"as large as made", nullptr, "Ctrl+0", 0, "zoom=100"},
    };
}

/// A game under way in a window that closes whatever opens over it, and knows what that was.
struct Scene : WindowFixture {
    Scene() {
        Start("Zodiac");
        StartWithoutAutoplay("Freecell", 6);
        for (int pile = 0; pile < 4; ++pile) {
            Drag(Top(Cell::Home, pile),
                 At(engine().table().PicRes[static_cast<std::size_t>(pile)].Left + 532, 920));
        }
        for (int undone = 0; undone < 2; ++undone) {
            (void)QTest::qWaitFor([&] { return window.menu().mGame(GameItem::Undo)->isEnabled(); });
            window.menu().mGame(GameItem::Undo)->trigger();
        }
        for (int step = 0; step < 2; ++step) window.table().ZoomBy(1);
        QObject::connect(&closer, &QTimer::timeout, [this] {
            QWidget* over = QApplication::activeModalWidget();
            if (!over) return;
            const auto* box = qobject_cast<QMessageBox*>(over);
            opened << (box ? box->text() : over->windowTitle());
            over->close();
        });
        closer.start(5);
    }

    QMap<QString, QString> Facts() {
        const cData& data = engine().data();
        QStringList windows = opened;
        for (const QWidget* other : QApplication::topLevelWidgets()) {
            if (other->isVisible() && other != &window) windows << other->windowTitle();
        }
        const Replay& replay = engine().replay();
        return {
            {"game", data.GameRunning ? ToQt(data.CurGName()) : "none"},
            {"deal", ToQt(data.CurGNo.Shown())},
            {"moves",
             QString("%1/%2").arg(engine().trans().GetTransID()).arg(engine().trans().TransTop())},
            {"autoplay", QString::number(data.Get(keys::Autoplay))},
            {"toolbar", QString::number(window.table().y() > 0)},
            {"replay", replay.ForwardOn()    ? "forward"
                       : replay.BackwardOn() ? "back"
                                             : ""},
            {"favorites", QString::number(ReadLines(Folder() + "/fav.dat").size())},
            {"results", QString::number(Scores().size())},
            {"zoom", QString::number(window.table().ZoomPercent())},
            {"opened", '[' + windows.join("] [") + ']'}};
    }

    /// What is another than in `before`, in the order of the alphabet.
    QString Changes(const QMap<QString, QString>& before) {
        QStringList changes;
        const auto now = Facts();
        for (auto fact = now.begin(); fact != now.end(); ++fact) {
            if (before[fact.key()] == *fact) continue;
            changes << (fact.key() == "deal" ? "deal" : fact.key() + '=' + *fact);
        }
        return changes.join(' ');
    }

    QStringList opened;
    QTimer closer;
};

}  // namespace

class CommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void DoesTheSameByItemKeyAndButton() {
        const std::size_t count = CommandsOf(Scene().window.menu()).size();
        for (std::size_t i = 0; i < count; ++i) {
            for (const char* way : {"item", "key", "button"}) {
                Scene scene;
                const Command command = CommandsOf(scene.window.menu())[i];
                if (QString(command.name) == "Stop") {
                    scene.window.menu().mReplay(ReplayItem::Forward)->trigger();
                    QTRY_VERIFY(command.item->isEnabled());
                }
                const auto before = scene.Facts();
                if (QString(way) == "item") {
                    if (!command.item) continue;
                    command.item->trigger();
                } else if (QString(way) == "key") {
                    if (!*command.key) continue;
                    const QKeyCombination key = QKeySequence(command.key)[0];
                    QTest::keyClick(&scene.window, key.key(), key.keyboardModifiers());
                } else {
                    if (command.button == 0) continue;
                    QTest::mouseClick(scene.window.toolbar().Button(command.button),
                                      Qt::LeftButton);
                }
                const QString wanted = command.changes;
                const bool done =
                    QTest::qWaitFor([&] { return scene.Changes(before) == wanted; }, 2000);
                QVERIFY2(done,
                         qPrintable(QString("%1, by its %2: %3, but should be %4")
                                        .arg(command.name, way, scene.Changes(before), wanted)));
            }
        }
    }

    void CanBeGivenWhenItMakesSense() {
        const auto disabled = [](WindowFixture& fixture) {
            QCoreApplication::processEvents();
            QStringList names;
            for (const Command& command : CommandsOf(fixture.window.menu())) {
                if (!command.item) continue;
                const bool on = command.item->isEnabled();
                if (!on) names << command.name;
                if (command.button == 0) continue;
                const auto* button = fixture.window.toolbar().Button(command.button);
                if (button->isEnabled() != on) names << QString("[button] ") + command.name;
            }
            return names.join(", ");
        };
        const QString moves = "Undo, Redo, Undo All, Redo All, Forward, Back, Replay All";
        {
            WindowFixture fixture;
            QCOMPARE(disabled(fixture), "Restart Game, Close Game, the second recent game, " +
                                            moves + ", Stop, Add to Favorites, History");
            fixture.StartWithoutAutoplay("Freecell", 6);
            QTRY_COMPARE(disabled(fixture), "the second recent game, " + moves + ", Stop");
        }
        Scene scene;
        QTRY_COMPARE(disabled(scene), "Stop");
        scene.window.menu().mGame(GameItem::RedoAll)->trigger();
        QTRY_COMPARE(disabled(scene), "Redo, Redo All, Forward, Stop");
        scene.window.menu().mReplay(ReplayItem::Back)->trigger();
        QTRY_COMPARE(disabled(scene), moves);
    }
};

QTEST_MAIN(CommandsTest)
#include "commands_test.moc"
