#include <QDir>
#include <QProcess>

#include "desktop/platform/system.h"
#include "desktop/reports/finish_dialog.h"
#include "fixture.h"

// The real window on a real X server: another program moves the mouse and presses the keys.
using namespace varnello;

namespace {

constexpr int kPatience = 60000;  // milliseconds: others may keep the machine busy

/// Only sends events to the X server; what they set off happens in the event loop.
void xdotool(const QStringList& words) { QProcess::execute("xdotool", words); }

QStringList MoveTo(const QWidget& widget, const QPoint& at) {
    const QPoint global = widget.mapToGlobal(at);
    return {"mousemove", QString::number(global.x()), QString::number(global.y())};
}

/// Plays winning lines with the mouse alone.
class MousePlayer {
public:
    MousePlayer(MainWindow& window) : engine_(window.engine()), view_(window.table()) {}

    /// Presses the card where it shows and lets it go with its corner at these twips.
    void Drop(PicID card, int left, int top) {
        const QPoint grip = Grip(card);
        const QPoint from = PointOn(card, grip);
        const QPoint by = view_.CardRect(left, top).topLeft() - PlaceOf(card).topLeft();
        xdotool(MoveTo(view_, from) + QStringList{"mousedown", "1"} + MoveTo(view_, from + by / 2) +
                MoveTo(view_, from + by) + QStringList{"mouseup", "1"});
    }
    void Click(PicID card) {
        xdotool(MoveTo(view_, PointOn(card, Grip(card))) + QStringList{"click", "1"});
    }

private:
    /// A point inside the card, in twips, that no other card covers.
    QPoint Grip(PicID id) const {
        const KesCard& card = engine_.table().Card(id);
        for (const QPoint at : {QPoint(532, 720), QPoint(532, 120), QPoint(90, 720)}) {
            if (engine_.table().CardAt(card.Left + at.x(), card.Top + at.y()) == id) return at;
        }
        return {532, 720};
    }
    QPoint PointOn(PicID id, const QPoint& grip) const {
        const QRect at = PlaceOf(id);
        return at.topLeft() +
               QPoint(grip.x() * at.width() / kCardWidth, grip.y() * at.height() / kCardHeight);
    }
    QRect PlaceOf(PicID id) const {
        const KesCard& card = engine_.table().Card(id);
        return view_.CardRect(card.Left, card.Top);
    }

    Engine& engine_;
    TableView& view_;
};

}  // namespace

class XTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void WinsWholeGames_data() {
        QTest::addColumn<int>("zoom");  // steps
        // One with a stock, one with reserves, one of two packs; the others are played without X.
        QTest::newRow("cascade") << 0;
        QTest::newRow("freecell") << -1;
        QTest::newRow("zodiac") << 1;
    }

    void WinsWholeGames() {
        if (QGuiApplication::platformName() != "xcb") QSKIP("needs an X server");
        QFETCH(int, zoom);
        const auto line = std::string(VARNELLO_WINS "/") + QTest::currentDataTag() + ".script";
        QTemporaryDir home;
        MemoryStore settings;
        SystemClock clock;
        NoSounds sounds;
        const std::filesystem::path data = home.path().toStdString() + "/data";
        MainWindow window({settings, clock, sounds, data});
        window.motion().SetPaced(qEnvironmentVariableIsSet("VARNELLO_PACED"));
        window.showMaximized();
        QVERIFY2(QTest::qWaitForWindowActive(&window, kPatience), "the window isn't active");

        if (zoom != 0) window.table().ZoomBy(zoom);
        Engine& engine = window.engine();
        MousePlayer player(window);
        bool shown = false;
        QTimer finish;
        connect(&finish, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<FinishDialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isActiveWindow() || std::exchange(shown, true)) return;
            xdotool({"key", "Escape"});
        });
        finish.start(20);

        for (const std::string& command : ReadLines(line)) {
            const QStringList words = QString::fromStdString(command).split(' ');
            const auto number = [&](int i) { return words.value(i).toShort(); };
            if (words[0] == "set")
                engine.data().SetText(words[1].toStdString(), words[2].toStdString());
            if (words[0] == "start") {
                engine.life().StartGame(words.mid(2).join(' ').toStdString(),
                                        *GameNumber::ParseBare(words[1].toStdString()));
            }
            const int before = engine.trans().TransTop();
            if (words[0] == "drop") player.Drop(number(1), number(2), number(3));
            if (words[0] == "press") player.Click(number(1));
            if (words[0] == "drop" || words[0] == "press") {
                QTRY_VERIFY2_WITH_TIMEOUT(engine.trans().TransTop() > before, command.c_str(),
                                          kPatience);
            }
        }
        QTRY_VERIFY2_WITH_TIMEOUT(shown, "the won dialog didn't open", kPatience);
        QTRY_VERIFY2_WITH_TIMEOUT(!QApplication::activeModalWidget(),
                                  "Escape doesn't close the won dialog", kPatience);
        const auto lines = ReadLines(data / "Player1.sre");
        QCOMPARE(lines.size(), std::size_t{1});
        QVERIFY2(lines[0].ends_with(",1"), "booked as lost");
    }
};

QTEST_MAIN(XTest)
#include "x_test.moc"
