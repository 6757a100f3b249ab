#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>

#include "desktop/platform/settings_store.h"
#include "desktop/platform/system.h"
#include "fixture.h"

// The real window on a real X server: another program moves the mouse and presses the keys.
using namespace varnello;

namespace {

void xdotool(const QStringList& words) {
    QProcess process;
    process.start("xdotool", words);
    QEventLoop loop;
    QObject::connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
    if (process.state() != QProcess::NotRunning) loop.exec();
}

QStringList MoveTo(const QWidget& widget, const QPoint& at) {
    const QPoint global = widget.mapToGlobal(at);
    return {"mousemove", "--sync", QString::number(global.x()), QString::number(global.y())};
}

}  // namespace

class XTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void PlaysByMouseAndKeys() {
        if (QGuiApplication::platformName() != "xcb") QSKIP("needs an X server");
        QTemporaryDir home;
        qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
        FileSettings settings;
        settings.Write("Data", "LastGName", "Freecell");
        settings.Write("Data", "Autoplay", "0");
        settings.Write("Data", "RangeIndex", "1");
        SystemClock clock;
        NoSounds sounds;
        const std::filesystem::path data = home.path().toStdString() + "/data";
        MainWindow window({settings, clock, sounds, data});
        QSignalSpy closed(&window, &MainWindow::Closed);
        window.showMaximized();
        QVERIFY(QTest::qWaitForWindowActive(&window));

        // By the menu, with the keyboard: File, New Game.
        xdotool({"key", "alt+f", "n"});
        QTRY_VERIFY(window.engine().data.GameRunning);
        QCOMPARE(window.engine().data.CurGName(), "Freecell");

        // Two cards to the reserve by dragging, and one of them back by the menu's key.
        TableView& table = window.table();
        for (const std::int16_t pile : {std::int16_t{0}, std::int16_t{1}}) {
            const PicID card = window.engine().array().GetTopPicID(Cell::Home, pile);
            const KesEmpty& slot = window.engine().table.PicRes[static_cast<std::size_t>(pile)];
            const QPoint from = table.CardCentre(card);
            const KesCard& before = window.engine().table.Card(card);
            const QPoint by((slot.Left - qRound(before.Left)) / 15,
                            (slot.Top - qRound(before.Top)) / 15);
            xdotool(MoveTo(table, from) + QStringList{"mousedown", "1"} +
                    MoveTo(table, from + by / 2) + MoveTo(table, from + by) +
                    QStringList{"mouseup", "1"});
            QTRY_COMPARE(window.engine().table.Card(card).Loc, (Place{Cell::Res, pile, 0}));
        }
        QTRY_VERIFY(window.menu().mGame(1)->isEnabled());
        xdotool({"key", "ctrl+z"});
        QTRY_COMPARE(window.engine().trans().GetTransID(), 1);
        QTRY_VERIFY(window.engine().data.CurMoves == 1);

        const std::string number = window.engine().data.CurGNo.Shown();
        window.close();
        QCOMPARE(closed.count(), 1);
        const auto lines = ReadLines(data / "Player1.sre");
        QCOMPARE(lines.size(), std::size_t{1});
        const QString line = QString::fromStdString(lines[0]);
        QVERIFY2(QRegularExpression("^\"\\d+/\\d+/\\d{4} \\d+:\\d\\d:\\d\\d [AP]M\",\"Freecell\"," +
                                    QString::fromStdString(number) + ",\\d+,1,-?\\d+,0$")
                     .match(line)
                     .hasMatch(),
                 qPrintable(line));
    }
};

QTEST_MAIN(XTest)
#include "x_test.moc"
