#include <QDir>
#include <random>

#include "fixture.h"
#include "script/looking.h"
#include "script/scripted_table.h"

// The window against the engine: table scripts are played by mouse and key events in a window in
// which cards take their time, and by the scripted table. Both must tell the same, and the screen
// must show it.
using namespace varnello;

namespace {

/// The window as the player of a script.
class WindowPlayer : public WindowFixture {
public:
    WindowPlayer() { window.motion().SetPaced(true); }

    /// Carries out a line by events; false for one that isn't about play.
    bool Do(const std::string& line) {
        std::istringstream words(line);
        std::string command;
        words >> command;
        if (command == "drop" || command == "press") {
            int card = 0;
            words >> card;
            Press(static_cast<PicID>(card));
            if (command == "drop") return DragOn(words);
            return engine().gestures().Dragging() || LetGo();  // a click on the stock
        }
        if (command == "drag") return DragOn(words, false);
        if (command == "release") return LetGo();
        if (command == "slot") return ClickSlot();
        static const std::map<std::string, QKeyCombination> kKeys{
            {"undo", Qt::CTRL | Qt::Key_Z},
            {"redo", Qt::CTRL | Qt::Key_X},
            {"undoall", Qt::CTRL | Qt::Key_C},
            {"redoall", Qt::CTRL | Qt::Key_V},
            {"autoplay", QKeyCombination(Qt::Key_F7)},
            {"restart", Qt::CTRL | Qt::Key_F3},
            {"close", Qt::CTRL | Qt::Key_F1}};
        if (const auto key = kKeys.find(command); key != kKeys.end()) {
            QTest::keyClick(&window, key->second.key(), key->second.keyboardModifiers());
            return true;
        }
        return false;
    }

    /// What the scripted table would print of it.
    std::string Told() {
        window.motion().Finish();
        std::ostringstream out;
        script::PrintBoard(out, engine());
        script::PrintLog(out, engine());
        script::PrintState(out, engine());
        script::PrintMarks(out, engine());
        return out.str();
    }

    /// A point of the card, in twips inside it, that no other card covers; none: (-1, -1).
    QPoint Grip(PicID id) {
        const KesCard& card = Card(id);
        for (const int x : {532, 30, 1030}) {
            for (const int y : {720, 60, 1400}) {
                if (engine().table().CardAt(card.Left + x, card.Top + y) == id) return {x, y};
            }
        }
        return {-1, -1};
    }

private:
    void Send(QEvent::Type type, double x, double y, Qt::MouseButtons held) {
        TableView& table = window.table();
        const double left = std::round((table.width() - 1032) / 2.0 - 20 / 15.0);
        const QPointF at(left + x / 15, y / 15);
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, table.mapToGlobal(at), button, held, {});
        QCoreApplication::sendEvent(&table, &event);
    }
    bool Press(PicID id) {
        window.motion().Finish();
        if (!Card(id).Visible) return true;
        pressed_ = id;
        grip_ = Grip(id);
        Send(QEvent::MouseButtonPress, Card(id).Left + grip_.x(), Card(id).Top + grip_.y(),
             Qt::LeftButton);
        held_ = true;
        return true;
    }
    bool DragOn(std::istringstream& words, bool letGo = true) {
        double left = 0;
        double top = 0;
        words >> left >> top;
        if (held_) {
            Send(QEvent::MouseMove, left + grip_.x(), top + grip_.y(), Qt::LeftButton);
            at_ = {left + grip_.x(), top + grip_.y()};
        }
        return letGo ? LetGo() : true;
    }
    bool LetGo() {
        if (std::exchange(held_, false)) {
            Send(QEvent::MouseButtonRelease, at_.x(), at_.y(), Qt::NoButton);
        }
        return true;
    }
    bool ClickSlot() {
        const KesEmpty& slot = engine().table().PicStock[0];
        if (!slot.Visible || engine().array().GetTop(Cell::Stock, 0) >= 0) return true;
        Send(QEvent::MouseButtonPress, slot.Left + 500, slot.Top + 700, Qt::LeftButton);
        Send(QEvent::MouseButtonRelease, slot.Left + 500, slot.Top + 700, Qt::NoButton);
        return true;
    }

    PicID pressed_ = kNoCard;
    QPoint grip_;
    QPointF at_;
    bool held_ = false;
};

/// The scripted table beside the window, and what it prints of itself.
class Script {
public:
    Script() : table_(folder_.path().toStdString(), out_) { Run("now 2026-11-22 13:00:00"); }
    void Run(const std::string& line) { table_.Run(line); }
    std::string Told() {
        out_ = {};
        for (const char* line : {"board", "log", "state", "marks"}) Run(line);
        return out_.str();
    }

private:
    QTemporaryDir folder_;
    std::ostringstream out_;
    script::ScriptedTable table_;
};

}  // namespace

class ScriptsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PlaysWonGames_data() {
        QTest::addColumn<QString>("file");
        for (const QString& file : QDir(VARNELLO_WINS).entryList({"*.script"})) {
            QTest::newRow(qPrintable(file.chopped(7))) << VARNELLO_WINS "/" + file;
        }
    }

    void PlaysWonGames() {
        QFETCH(QString, file);
        WindowPlayer player;
        player.window.SetBreath(60000);
        Script script;
        for (const std::string& line : ReadLines(file.toStdString())) {
            if (player.engine().life().phase() == Phase::Won) break;
            const QStringList words = QString::fromStdString(line).split(' ');
            if (words[0] == "start") {
                player.engine().life().StartGame(words.mid(2).join(' ').toStdString(),
                                                 *GameNumber::ParseBare(words[1].toStdString()));
            } else if (words[0] == "set") {
                player.engine().data().SetText(words[1].toStdString(), words[2].toStdString());
            } else if (!player.Do(line)) {
                continue;
            }
            script.Run(line);
            player.window.motion().Finish();
            if (player.engine().life().phase() == Phase::Won) break;
            QCOMPARE(player.Told(), script.Told());
        }
        QVERIFY2(player.engine().life().phase() == Phase::Won, "the window didn't see the win");
        QVERIFY2(player.ScreenIsTrue(), "the screen shows another table");
    }

    void PlaysAtRandom_data() {
        QTest::addColumn<int>("game");
        for (int game = 0; game < TotalGames(); ++game) {
            QTest::newRow(kCatalogue[std::size_t(game)].Name.data()) << game;
        }
    }

    void PlaysAtRandom() {
        QFETCH(int, game);
        std::mt19937 random(static_cast<unsigned>(game + 1));
        const auto below = [&](int limit) {
            return std::uniform_int_distribution<int>(0, limit - 1)(random);
        };
        const std::string name(kCatalogue[std::size_t(game)].Name);
        for (int round = 0; round < 4; ++round) {
            WindowPlayer player;
            Script script;
            const int number = below(99999) + 1;
            const int autoplay = below(2);
            player.engine().data().Set(keys::Autoplay, Narrow16(autoplay));
            player.engine().life().StartGame(name, GameNumber::Number(number));
            script.Run("set Autoplay " + std::to_string(autoplay));
            script.Run("start " + std::to_string(number) + " " + name);
            for (int act = 0; act < 40 && player.engine().life().phase() != Phase::Idle; ++act) {
                player.window.motion().Finish();
                if (player.engine().life().phase() == Phase::Won) return;
                const std::string line = SomeLine(player, below);
                QVERIFY2(player.Do(line), line.c_str());
                script.Run(line);
                const std::string told = player.Told();
                if (player.engine().life().phase() == Phase::Won) return;
                QVERIFY2(told == script.Told(),
                         (line + "\nwindow:\n" + told + "script:\n" + script.Told()).c_str());
                QVERIFY2(LooksSame(player.window.motion().Scene(), player.engine().table()),
                         line.c_str());
                if (act % 8 == 7) QVERIFY2(player.ScreenIsTrue(), line.c_str());
            }
        }
    }

private:
    template <typename Below>
    std::string SomeLine(WindowPlayer& player, Below below) {
        static const char* const kCommands[] = {"undo",    "undo",     "redo", "undoall",
                                                "redoall", "autoplay", "slot", "restart"};
        const auto cards = player.engine().table().VisibleCards();
        if (below(5) == 0) return kCommands[below(int(std::size(kCommands)))];
        for (int tries = 0; tries < 50; ++tries) {
            const PicID card = cards[std::size_t(below(int(cards.size())))];
            if (player.Grip(card).x() < 0) continue;
            const KesCard& onto = player.Card(cards[std::size_t(below(int(cards.size())))]);
            const bool anywhere = below(4) == 0;
            const int left = anywhere ? below(15000) : int(onto.Left) + below(400) - 200;
            const int top = anywhere ? below(9000) : int(onto.Top) + below(400) - 200;
            return "drop " + std::to_string(card) + " " + std::to_string(left) + " " +
                   std::to_string(top);
        }
        return "undo";
    }
};

QTEST_MAIN(ScriptsTest)
#include "scripts_test.moc"
