#include <QSignalSpy>
#include <QToolButton>
#include <random>

#include "fixture.h"

// Every command at every moment at which something is in motion, and many of them at random.
using namespace varnello;

namespace {

enum Moment { Deal, Flight, UndoAll, Replay, Cascade, Breath, kMoments };
const char* const kMomentNames[] = {"a deal",   "a flight",         "Undo All",
                                    "a replay", "the last cascade", "the breath after a win"};

/// Thirteen hearts on piles of their own: with autoplay they all go up at once.
void SelectHearts(cGames& games, const std::string&) {
    SelectRow(games, {.Name = "Hearts",
                      .Ext = {.BaseX = 11900, .TotalCards = 13},
                      .Home = {.Piles = 13,
                               .Order = OrderCode::DownColor,
                               .Cards = 13,
                               .StartX = -1000,
                               .StartY = 2000,
                               .PileWidth = 1100,
                               .PosWidth = 250},
                      .Goal = {.Piles = 4, .Order = OrderCode::UpSuit, .PileWidth = 1100},
                      .Res = {.Piles = 4, .StartX = 6000, .PileWidth = 1100}});
}

/// A window in which everything takes its time, and whose dialogs are noted and closed.
class Paced : public WindowFixture {
public:
    Paced() {
        window.motion().SetPaced(true);
        window.SetBreath(60000);
        QObject::connect(&closer_, &QTimer::timeout, &window, [this] {
            if (QWidget* modal = QApplication::activeModalWidget()) {
                opened << modal->metaObject()->className();
                modal->close();
            }
        });
        closer_.start(1);
    }

    void Key(const QKeySequence& keys) {
        const QKeyCombination key = keys[0];
        QTest::keyClick(&window, key.key(), key.keyboardModifiers());
    }
    void Bring(Moment moment) {
        engine().data().Set(keys::Autoplay, 0);
        engine().data().Set(keys::UndoallSpeed, 50);
        engine().data().Set(keys::ReplaySpeed, 50);
        engine().life().SelectBy(SelectHearts);
        Start("Freecell", 7);
        QTRY_VERIFY2(Seen() > 3, "no cards are dealt");
        if (moment == Deal) return;
        window.motion().Finish();
        for (int i = 0; i < 3; ++i) {
            window.motion().Finish();
            Drag(Top(Cell::Home, i), At(engine().table().PicRes[std::size_t(i)].Left + 532, 1000));
        }
        QVERIFY2(window.motion().Showing(), "no card flies");
        if (moment == Flight) return;
        if (moment == UndoAll) return Key(Qt::CTRL | Qt::Key_C);
        if (moment == Replay) {
            window.motion().Finish();
            Key(Qt::CTRL | Qt::Key_C);
            window.motion().Finish();
            Key(Qt::SHIFT | Qt::Key_F3);
            QTRY_VERIFY2(window.motion().Showing(), "nothing is replayed");
            return;
        }
        window.motion().Finish();
        engine().data().CurMoves = 0;
        Key(Qt::Key_F7);
        QVERIFY2(window.motion().Showing(), "no cascade");
        if (moment == Breath) window.motion().Finish();
    }
    int Seen() const { return int(window_.motion().Scene().VisibleCards().size()); }

    /// What came of it: the results booked, the phase of the game, the windows that opened.
    QString Outcome() {
        QStringList told;
        for (const std::string& line : Scores()) told << (line.ends_with(",1") ? "won" : "lost");
        const char* const phases[] = {"idle", "dealing", "playing", "won"};
        told << phases[int(engine().life().phase())];
        if (window.select()) opened << "varnello::SelectDialog";
        for (const QString& name : opened) told << name.mid(int(strlen("varnello::")));
        return told.join(' ');
    }

    QStringList opened;

private:
    MainWindow& window_ = window;
    QTimer closer_;
};

struct Row {
    const char* command;
    std::function<void(Paced&)> act;
    /// For each moment what must have come of it.
    std::array<const char*, kMoments> outcome;
};

std::function<void(Paced&)> Press(const QKeySequence& key) {
    return [key](Paced& paced) { paced.Key(key); };
}

std::function<void(Paced&)> Item(std::function<QAction*(const MainMenu&)> item) {
    return [item](Paced& paced) { item(paced.window.menu())->trigger(); };
}

std::function<void(Paced&)> Button(int index) {
    return [index](Paced& paced) {
        QTest::mouseClick(paced.window.toolbar().Button(index), Qt::LeftButton);
    };
}

// A win that is booked ahead of its dialog is followed by it; the test closes that as well.
const std::vector<Row>& Rows() {
    // In the order: deal, flight, Undo All, replay, last cascade, breath.
    static const std::array<const char*, kMoments> kBegins{
        "dealing", "lost dealing", "lost dealing", "lost dealing", "won dealing", "won dealing"};
    static const std::array<const char*, kMoments> kNothing{"playing",
                                                            "playing",
                                                            "playing",
                                                            "playing",
                                                            "won idle FinishDialog",
                                                            "won idle FinishDialog"};
    // A button that is grey during a deal doesn't finish it.
    static const std::array<const char*, kMoments> kButton{"dealing",
                                                           "playing",
                                                           "playing",
                                                           "playing",
                                                           "won idle FinishDialog",
                                                           "won idle FinishDialog"};
    const auto opens = [](const char* deal, const char* playing, const char* won) {
        return std::array<const char*, kMoments>{deal, playing, playing, playing, won, won};
    };
    static const std::vector<Row> rows{
        {"New Game", Press(Qt::Key_F2), kBegins},
        {"New Game's button", Button(1), kBegins},
        {"Restart",
         Press(Qt::CTRL | Qt::Key_F3),
         {"playing", "lost dealing", "lost dealing", "lost dealing", "won dealing", "won dealing"}},
        {"a recent game", Item([](const MainMenu& menu) { return menu.mRecent(1); }), kBegins},
        {"Close Game",
         Press(Qt::CTRL | Qt::Key_F1),
         {"playing", "lost idle", "lost idle", "lost idle", "won idle", "won idle"}},
        {"the close box",
         [](Paced& paced) { paced.window.close(); },
         {"dealing", "lost idle", "lost idle", "lost idle", "won idle", "won idle"}},
        {"Select Game", Press(Qt::Key_F3),
         opens("dealing SelectDialog", "playing SelectDialog",
               "won idle FinishDialog SelectDialog")},
        {"Select a Number", Press(Qt::SHIFT | Qt::Key_F2),
         opens("dealing NumberDialog", "playing NumberDialog",
               "won idle NumberDialog FinishDialog")},
        {"Play from Favorites", Press(Qt::CTRL | Qt::Key_P),
         opens("dealing PlayFavoriteDialog", "playing PlayFavoriteDialog",
               "won idle PlayFavoriteDialog FinishDialog")},
        {"Undo", Press(Qt::CTRL | Qt::Key_Z), kNothing},
        {"Undo's button", Button(7), kButton},
        {"Redo", Press(Qt::CTRL | Qt::Key_X), kNothing},
        {"Undo All", Press(Qt::CTRL | Qt::Key_C), kNothing},
        {"Redo All", Press(Qt::CTRL | Qt::Key_V), kNothing},
        {"Replay Back's button", Button(10), kButton},
        {"a key without a meaning", Press(Qt::Key_Q), kNothing},
        {"a click on the bare table",
         [](Paced& paced) {
             QTest::mouseClick(&paced.window.table(), Qt::LeftButton, {}, QPoint(40, 700));
         },
         kNothing},
        {"the wheel",
         [](Paced& paced) {
             QWheelEvent wheel(QPointF(40, 700), QPointF(40, 700), {}, QPoint(0, 120), {}, {},
                               Qt::NoScrollPhase, false);
             QCoreApplication::sendEvent(&paced.window.table(), &wheel);
         },
         kNothing},
        {"Game Statistics", Press(Qt::Key_F4),
         opens("playing GameStatDialog", "playing GameStatDialog",
               "won idle GameStatDialog FinishDialog")},
        {"Session Statistics",
         Item([](const MainMenu& menu) { return menu.mStat(StatItem::Session); }),
         opens("playing SessionDialog", "playing SessionDialog",
               "won idle SessionDialog FinishDialog")},
        {"Customize", Press(Qt::CTRL | Qt::Key_U),
         opens("playing CustomizeDialog", "playing CustomizeDialog",
               "won idle CustomizeDialog FinishDialog")},
        {"Players", Press(Qt::CTRL | Qt::Key_L),
         opens("playing PlayersDialog", "playing PlayersDialog",
               "won idle PlayersDialog FinishDialog")},
        {"History", Press(Qt::CTRL | Qt::Key_H),
         opens("playing", "playing HistoryDialog", "won idle HistoryDialog FinishDialog")},
    };
    return rows;
}

}  // namespace

class MomentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EveryCommandAtEveryMoment_data() {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("moment");
        for (std::size_t row = 0; row < Rows().size(); ++row) {
            for (int moment = 0; moment < kMoments; ++moment) {
                QTest::addRow("%s during %s", Rows()[row].command, kMomentNames[moment])
                    << int(row) << moment;
            }
        }
    }

    void EveryCommandAtEveryMoment() {
        QFETCH(int, row);
        QFETCH(int, moment);
        Paced paced;
        QSignalSpy closed(&paced.window, &MainWindow::Closed);
        paced.Bring(Moment(moment));
        const Row& command = Rows()[std::size_t(row)];
        const QString expected = command.outcome[std::size_t(moment)];
        command.act(paced);
        if (expected.contains("FinishDialog")) {
            QTRY_VERIFY2(paced.opened.contains("varnello::FinishDialog"),
                         "a win without its dialog");
        }
        QCOMPARE(paced.Outcome(), expected);
        if (closed.count() > 0) return;
        paced.window.motion().Finish();
        QVERIFY2(LooksSame(paced.window.motion().Scene(), paced.engine().table()),
                 "the window shows another table than the engine has");
    }

    void AKeysOwnRepetitionCountsForNothingDuringAFlight() {
        Paced paced;
        paced.Bring(Flight);
        paced.window.motion().Finish();
        paced.engine().data().Set(keys::UndoSpeed, 50);
        const auto key = [&](bool repeated) {
            // The way of a real key: first as a shortcut, then, if it was none, as itself.
            QKeyEvent press(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier, {}, repeated);
            press.ignore();
            QCoreApplication::sendEvent(&paced.window, &press);
            return press.isAccepted();
        };
        paced.Key(Qt::CTRL | Qt::Key_Z);
        QCOMPARE(paced.engine().trans().GetTransID(), 2);
        QVERIFY2(paced.window.motion().Showing(), "the flight is over");
        QVERIFY2(key(true), "a repetition would be taken for another command");
        QVERIFY2(paced.window.motion().Showing(), "the flight is over");
        QVERIFY2(!key(false), "a key pressed anew counts for nothing");
        QVERIFY2(!paced.window.motion().Showing(), "a real press finishes the flight");
        QVERIFY2(!key(true), "a repetition after the flight counts");
    }

    void SequencesOfCommandsAtRandomMoments() {
        std::mt19937 random(17);
        const auto below = [&](int limit) {
            return std::uniform_int_distribution<int>(0, limit - 1)(random);
        };
        int games = 0;
        for (int sequence = 0; sequence < 200; ++sequence) {
            Paced paced;
            paced.window.SetBreath(1);
            paced.Bring(Moment(below(kMoments)));
            for (int i = below(5); i >= 0 && paced.window.isVisible(); --i) {
                Rows()[std::size_t(below(int(Rows().size())))].act(paced);
                for (int turns = below(4); turns > 0; --turns) {
                    QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
                }
            }
            const int running = paced.engine().data().GameRunning ? 1 : 0;
            paced.window.close();
            QCOMPARE(paced.engine().score().SesTop(), int(paced.Scores().size()));
            QVERIFY2(!paced.engine().data().GameRunning, "a game is left behind");
            games += int(paced.Scores().size()) + running;
        }
        QVERIFY2(games > 100, "hardly a game was played");
    }
};

QTEST_MAIN(MomentsTest)
#include "moments_test.moc"
