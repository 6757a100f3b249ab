#include <QDateTime>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>

#include "desktop/platform/system.h"
#include "desktop/platform/text.h"
#include "desktop/window/program.h"
#include "engine/null_desktop.h"
#include "fixture.h"

// Start, end, menus, dialogs: what the window does around the game.
using namespace varnello;

class ShellTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheSplashLeadsToTheSelectorOnce() {
        for (const int way : {0, 1, 2}) {
            NullDesktop desktop;
            const QTemporaryDir folder;
            Program program({desktop.settings, desktop.clock, desktop.sounds,
                             std::filesystem::path(folder.path().toStdString())});
            program.Main();
            QCOMPARE(program.splash()->size(), QSize(369, 237));
            const QSignalSpy ended(program.splash(), &Splash::Ended);
            if (way == 0) QTest::mouseClick(program.splash(), Qt::LeftButton);
            if (way == 1) QTest::keyClick(program.splash(), Qt::Key_Space);
            if (way < 2) QVERIFY2(ended.count() == 1, "a click or a key doesn't end the splash");
            if (way < 2) QTest::keyClick(program.splash(), Qt::Key_A);
            QTRY_VERIFY_WITH_TIMEOUT(program.window() && !program.splash(), 3000);
            QCOMPARE(ended.count(), 1);
            QVERIFY2(program.window()->isMaximized() && program.window()->select()->isVisible(),
                     "no selector over a maximized window");
            program.UnloadAll();
            QVERIFY2(!program.window(), "the window is still there");
        }
    }

    void DatesAreWholeInEveryLocale() {
        const DateTime moment{2026, 11, 23, 20, 37, 58};
        for (const QLocale& locale : QLocale::matchingLocales(
                 QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
            QLocale::setDefault(locale);
            const LocaleDates dates;
            const QString text = ToQt(dates.DateAndTime(moment));
            for (const int part : {23, 37, 58}) {
                QVERIFY2(text.contains(locale.toString(part)), qPrintable(text));
            }
            // Without the half of the day and the words that the locale puts in there is no letter
            // in a time, neither of a pattern nor of a zone.
            QString time = text.mid(ToQt(dates.Date(moment)).size() + 1).remove(locale.pmText());
            const QStringList words = locale.timeFormat().split('\'');
            for (qsizetype i = 1; i < words.size(); i += 2) {
                time.remove(time.indexOf(words[i]), words[i].size());
            }
            const QRegularExpression wrong("[A-Za-z()\\[\\]]"), tail("[\\s,]$");
            QVERIFY2(!time.contains(wrong) && !text.contains(tail),
                     qPrintable(locale.name() + ' ' + text));
        }
        QLocale::setDefault(QLocale::system());
    }

    void EachRunDrawsAnotherNumber() {
        const auto moment = [] { return QDateTime::currentMSecsSinceEpoch(); };
        SystemClock clock;
        QSet<double> numbers;
        for (int run = 0; run < 20; ++run) {
            for (const qint64 last = moment(); moment() == last;) continue;
            NullDesktop nothing;
            Engine engine({nothing.settings, clock, nothing.surface, nothing.sounds,
                           nothing.messages, std::filesystem::path()});
            numbers += engine.choosing().RandomGNo().Value();
        }
        QCOMPARE(numbers.size(), 20);
    }

    void SecondsAreTheSameInEveryZone() {
        const QByteArray home = qgetenv("TZ");
        for (const auto& [zone, hours] : {std::pair("EAST-14", 14), std::pair("WEST11", -11)}) {
            qputenv("TZ", zone);
            tzset();
            const SystemClock clock;
            const std::int64_t seconds = clock.Seconds();
            const std::int64_t ahead = SecondsSinceEpoch(clock.Now()) - seconds;
            QVERIFY2(ahead == hours * 3600 || ahead == hours * 3600 + 1, zone);
        }
        home.isNull() ? qunsetenv("TZ") : qputenv("TZ", home);
        tzset();
    }

    void TheTableStaysInTheMiddle() {
        WindowFixture fixture;
        TableView& table = fixture.window.table();
        const QWidget* client = fixture.window.centralWidget();
        QCOMPARE(table.geometry(), QRect(0, 25, client->width(), client->height() - 25));
        fixture.window.menu().mGame(GameItem::Toolbar)->trigger();
        QCOMPARE(table.geometry(), client->rect());
        fixture.window.resize(600, 500);
        fixture.Start("Freecell");
        const KesCard& card = fixture.Card(fixture.Top(Cell::Home, 0));
        const double corner = (table.width() - 1032) / 2.0 - 20 / 15.0;
        QCOMPARE(table.CardRect(card.Left, card.Top).left(),
                 qRound(corner) + qRound(card.Left / 15));
    }
};

QTEST_MAIN(ShellTest)
#include "shell_test.moc"
