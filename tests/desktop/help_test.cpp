#include <QRegularExpression>
#include <QScrollBar>

#include "desktop/help/pages.h"
#include "desktop/platform/place_beside.h"
#include "engine/definitions/catalogue.h"
#include "fixture.h"

// The help: every game has its page, every link leads somewhere, and the facts fit the deal.
using namespace varnello;

class HelpTest : public QObject {
    Q_OBJECT

    static HelpWindow* Help() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* help = qobject_cast<HelpWindow*>(widget);
            if (help && help->isVisible()) return help;
        }
        return nullptr;
    }

private Q_SLOTS:
    void EveryPageExistsAndEveryLinkLeadsSomewhere() {
        QStringList names{"contents", "playing", "words"};
        for (int id = 1; id <= TotalGames(); ++id) names << PageNameOf(id);
        const QRegularExpression link("href=\"([^\"]*)\"");
        for (const QString& name : names) {
            const HelpPage page = PageOf(name);
            QVERIFY2(!page.html.isEmpty(), qPrintable(name));
            for (auto found = link.globalMatch(page.html); found.hasNext();) {
                const QString target = found.next().captured(1);
                QVERIFY2(!PageOf(target).html.isEmpty(), qPrintable(name + " -> " + target));
            }
            if (!name.startsWith("game:")) continue;
            QVERIFY2(page.html.contains("<b>Aim</b>") && page.html.contains("<h2>Hints</h2>"),
                     qPrintable(name + " has no page with hints in assets/help/games/"));
        }
        QVERIFY2(names.last().startsWith("game:"), "no game has a page");
        QCOMPARE(PageNameOf(0), "contents");
        QCOMPARE(PageNameOf(TotalGames() + 1), "contents");
        QVERIFY2(PageOf("game:Nonsense").html.isEmpty(), "a page of no game");
    }

    void TheGridFollowsTheWidth() {
        WindowFixture fixture;
        fixture.window.menu().mHelp(HelpItem::Rules)->trigger();
        HelpWindow* help = Help();
        const auto width = [&](const char* picture) {
            const QVariant found =
                help->browser()->document()->resource(QTextDocument::ImageResource, QUrl(picture));
            return found.value<QPixmap>().width();
        };
        QVERIFY2(width("small:Penguin") * 2 <= width("preview:Penguin"), "a page's small picture");
        for (const int columns : {1, 2, 4}) {
            help->resize(210 + columns * 170, 600);
            QVERIFY2(help->browser()->horizontalScrollBar()->maximum() == 0,
                     "the grid is too wide");
            QVERIFY2(help->browser()->toHtml().contains(QRegularExpression(
                         QStringLiteral("(<td[^>]*>(?:(?!<t[dr]).)*){%1}</tr>").arg(columns),
                         QRegularExpression::DotMatchesEverythingOption)),
                     qPrintable(QString::number(columns)));
        }
    }

    void OpensBesideTheTableAndComesBackAsItWasLeft() {
        const QRect screen(0, 0, 1920, 1080);
        // Of the corners the one that covers least, or the right upper one.
        QCOMPARE(PlaceBeside(screen, {0, 0, 1200, 900}, {700, 600}), QRect(1220, 0, 700, 600));
        QCOMPARE(PlaceBeside(screen, {720, 0, 1200, 900}, {700, 600}), QRect(0, 0, 700, 600));
        QCOMPARE(PlaceBeside(screen, {444, 60, 1032, 747}, {700, 600}), QRect(1220, 480, 700, 600));
        QCOMPARE(PlaceBeside({0, 0, 500, 400}, {0, 0, 500, 400}, {700, 600}),
                 QRect(0, 0, 500, 400));

        MemoryStore store;
        const QWidget table;
        const auto open = [&](const auto& act) {
            HelpWindow help(store, table);
            help.ShowPage("contents");
            act(help);
        };
        open([](HelpWindow& help) {
            QTRY_VERIFY2(help.isActiveWindow(), "the help opens behind");
            help.showMinimized();
            help.ShowPage("playing");
            QVERIFY2(!help.isMinimized(), "the help stays minimized");
            help.setGeometry(40, 50, 500, 450);
            help.close();
        });
        open([](HelpWindow& help) { QCOMPARE(help.geometry(), QRect(40, 50, 500, 450)); });
    }
};

QTEST_MAIN(HelpTest)
#include "help_test.moc"
