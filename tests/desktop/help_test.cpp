#include <QRegularExpression>

#include "desktop/help/pages.h"
#include "engine/definitions/describe.h"
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
        for (int id = 1; id <= kTotalGames; ++id) names << PageNameOf(id);
        const QRegularExpression link("href=\"([^\"]*)\"");
        for (const QString& name : names) {
            const HelpPage page = PageOf(name);
            QVERIFY2(!page.html.isEmpty(), qPrintable(name));
            for (auto found = link.globalMatch(page.html); found.hasNext();) {
                const QString target = found.next().captured(1);
                QVERIFY2(!PageOf(target).html.isEmpty(), qPrintable(name + " -> " + target));
            }
            if (!name.startsWith("game:")) continue;
            QVERIFY2(page.html.contains("<b>Aim</b>"), qPrintable(name));
            QVERIFY2(page.html.contains("<h2>Hints</h2>"), qPrintable(name));
        }
        QCOMPARE(PageNameOf(0), "contents");
        QCOMPARE(PageNameOf(36), "contents");
        QVERIFY(PageOf("game:Nonsense").html.isEmpty());
    }

    void TheFactsFitTheDeal() {
        NullDesktop nothing;
        for (const GameRow& row : kCatalogue) {
            Engine engine(nothing.Interfaces({}));
            engine.data().Set(keys::Autoplay, 0);
            engine.life().StartGame(std::string(row.Name), GameNumber::Number(3));
            QCOMPARE(engine.array().GetTop(Cell::Stock, 0) + 1, CardsLeftOnStock(row));
        }
    }

    void F1OpensTheContentsOrTheGamesRules() {
        WindowFixture fixture;
        fixture.window.menu().mHelp(HelpItem::Rules)->trigger();
        HelpWindow* help = Help();
        QVERIFY(help);
        QVERIFY(help->windowTitle().startsWith("Contents"));
        fixture.Start("Baker's Game");
        fixture.window.menu().mHelp(HelpItem::Rules)->trigger();
        QVERIFY(help->windowTitle().startsWith("Baker's Game"));
        QVERIFY(help->browser()->toPlainText().contains("only a King"));
        // A link to another page, and back to where it stood.
        Q_EMIT help->browser()->anchorClicked(QUrl("game:See-Saw"));
        QVERIFY(help->windowTitle().startsWith("See-Saw"));
        Q_EMIT help->browser()->anchorClicked(QUrl("playing"));
        QVERIFY(help->windowTitle().startsWith("How to play"));
        help->browser()->backward();
        help->browser()->backward();
        QVERIFY(help->windowTitle().startsWith("Baker's Game"));
        help->browser()->backward();
        QVERIFY(help->windowTitle().startsWith("Contents"));
        fixture.window.ShowSelect();
        fixture.window.select()->rules()->click();
        QVERIFY(help->windowTitle().startsWith("Baker's Game"));
        help->find()->setText("reserve");
        QTest::keyClick(help->find(), Qt::Key_Return);
        QCOMPARE(help->browser()->textCursor().selectedText().toLower(), "reserve");
    }
};

QTEST_MAIN(HelpTest)
#include "help_test.moc"
