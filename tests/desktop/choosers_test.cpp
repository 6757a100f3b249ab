#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <fstream>

#include "desktop/choosers/favorites_dialogs.h"
#include "desktop/choosers/number_dialog.h"
#include "desktop/choosers/players_dialog.h"
#include "desktop/platform/text.h"
#include "desktop/reports/history_dialog.h"
#include "fixture.h"

// The dialogs that choose deals and keep players, worked by their own controls.
using namespace varnello;

namespace {

void AcceptBox(QString& text) {
    WhenOpen<QMessageBox>([&text](QMessageBox& box) {
        text = box.text();
        box.button(box.button(QMessageBox::Yes) ? QMessageBox::Yes : QMessageBox::Ok)->click();
    });
}

QStringList Texts(const QListWidget* list) {
    QStringList texts;
    for (int i = 0; i < list->count(); ++i) texts << list->item(i)->text();
    return texts;
}

}  // namespace

class ChoosersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ANumberIsTypedOverAndComplainedAbout() {
        WindowFixture fixture;
        fixture.engine().data().Set(keys::RangeIndex, 5);
        QString told;
        WhenOpen<NumberDialog>([&](NumberDialog& dialog) {
            QVERIFY(dialog.number()->hasSelectedText());
            QTest::keyClicks(dialog.number(), "99999");
            AcceptBox(told);
            QTest::keyClick(&dialog, Qt::Key_Return);
            QTRY_VERIFY(!told.isEmpty());
            QCOMPARE(dialog.number()->text(), "0");
            QGuiApplication::clipboard()->setText("1e3\t\n");
            dialog.number()->selectAll();  // offscreen the box takes the selection away
            dialog.number()->paste();
            QCOMPARE(dialog.number()->text(), "1e3");
            // A row of the log, as it is copied there.
            auto* games = dialog.findChild<QComboBox*>();
            QGuiApplication::clipboard()->setText(
                "7\tAvenue\tOasis\t9\t0:01:00\t5\tWon\t1/2/26\t4711\n8\tx");
            dialog.number()->selectAll();
            dialog.number()->paste();
            QCOMPARE(dialog.number()->text() + games->currentText(), "4711Oasis");
            QTest::keyClicks(games, "Double Spi");
            QCOMPARE(games->currentText(), "Double Spidercells");
            QVERIFY(!games->view()->isVisible());
            games->setCurrentIndex(0);
            dialog.number()->setText("1e3");
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        fixture.window.menu().mFile(FileItem::Number)->trigger();
        QCOMPARE(told, "Please enter a number between 0 and 99,999");
        QVERIFY(fixture.engine().data().GameRunning);
        QCOMPARE(fixture.engine().data().CurGNo.Shown(), "1e3");
        QCOMPARE(fixture.engine().data().CurGName(), "Avenue");
    }

    void TheProposedNumberIsOneThatMayBeChosen() {
        WindowFixture fixture;
        fixture.engine().data().Set(keys::RangeIndex, 1);
        for (int i = 0; i < 300; ++i) {
            const NumberDialog dialog(fixture.engine(), nullptr);
            QVERIFY(fixture.engine().choosing().IsChoosable(dialog.number()->text().toStdString()));
        }
    }

    void TheSelectorFollowsThePlayers() {
        const std::string odd = "<h1>a & b [*] %1 &x";
        WindowFixture fixture;
        Players& players = fixture.engine().players();
        QVERIFY(players.EnterPlayer({}, "Bea"));
        fixture.window.ShowSelect();
        SelectDialog& select = *fixture.window.select();
        select.players()->setCurrentText("Bea");
        QVERIFY(players.EnterPlayer("Player1", odd));
        QVERIFY(players.EnterPlayer("Bea", "Bo"));
        QTRY_COMPARE(select.players()->itemText(1), "Bo");
        QCOMPARE(select.players()->currentText(), ToQt(odd));
        // Keys stay among the games.
        for (const auto& [key, game] : {std::pair{Qt::Key_Home, "Avenue"},
                                        {Qt::Key_Up, "Avenue"},
                                        {Qt::Key_Down, "Baker's Game"},
                                        {Qt::Key_Left, "Baker's Game"},
                                        {Qt::Key_End, "Zodiac"}}) {
            QTest::keyClick(select.tree(), key);
            QCOMPARE(select.tree()->SelectedGame(), game);
            QCOMPARE(select.findChild<QLabel*>()->text(), game);
        }
        // Tab reaches every control, the rules after the way out.
        QStringList reached;
        for (int i = 0; i < 6; ++i) {
            const auto* button = qobject_cast<QPushButton*>(select.focusWidget());
            reached << (button ? button->text() : select.focusWidget()->accessibleName());
            QTest::keyClick(&select, Qt::Key_Tab);
        }
        QCOMPARE(reached, QStringList({"Games", "Player", "Play", "Cancel", "Rules", "Games"}));
        QVERIFY(players.EnterPlayer(odd, "Anna"));
        select.play()->click();  // ahead of the next look at the list
        QCOMPARE(fixture.engine().data().CurPlayer(), "Anna");
        fixture.engine().life().LeaveGame();
        QCOMPARE(ReadLines(fixture.Folder() + "/Anna.sre").size(), std::size_t{1});
    }

    void NamesAreShownAsTheyAre() {
        const std::string odd = "<h1>a & b [*] %1 &x";
        WindowFixture fixture;
        QVERIFY(fixture.engine().players().EnterPlayer("Player1", odd));
        fixture.Start("Freecell");
        // In a caption the toolkit takes "[*]" for its own mark, and a doubled one as text.
        QTRY_VERIFY(fixture.window.windowTitle().contains("[<h1>a & b [*][*] %1 &x]"));
        int found = 0;
        WhenOpen<QDialog>([&](QDialog& dialog) {
            for (const QLabel* label : dialog.findChildren<QLabel*>()) {
                if (!label->text().contains(ToQt(odd))) continue;
                ++found;
                QCOMPARE(label->textFormat(), Qt::PlainText);
                QVERIFY(!label->buddy());
            }
            dialog.close();
        });
        fixture.window.menu().mStat(StatItem::Session)->trigger();
        QCOMPARE(found, 1);
    }

    void FavoritesArePlayedAndCleared() {
        WindowFixture fixture;
        fixture.Start("Penguin", 5);
        QString told;
        AcceptBox(told);
        QTRY_VERIFY(fixture.window.menu().mFav(FavItem::Add)->isEnabled());
        fixture.window.menu().mFav(FavItem::Add)->trigger();
        QTRY_COMPARE(told, "Game <5> Successfully Added to Favorites Under <Penguin> Folder");
        fixture.engine().favorites().AddFav("Penguin", GameNumber::Text("77"));
        WhenOpen<PlayFavoriteDialog>([](PlayFavoriteDialog& dialog) {
            QCOMPARE(Texts(dialog.numbers()), (QStringList{"5", "77"}));
            QCOMPARE(dialog.numbers()->currentRow(), 1);
            QTest::mouseClick(dialog.play(), Qt::LeftButton);
        });
        fixture.window.menu().mFav(FavItem::Play)->trigger();
        QCOMPARE(fixture.engine().data().CurGNo.Field(), "\"77\"");
        WhenOpen<OrganizeFavoritesDialog>([](OrganizeFavoritesDialog& dialog) {
            QCOMPARE(dialog.games()->currentItem()->text(), "Penguin");
            QTest::mouseClick(dialog.clear(), Qt::LeftButton);
            QCOMPARE(dialog.numbers()->count(), 0);
            QTRY_VERIFY(!dialog.clear()->isEnabled());
            dialog.reject();
        });
        fixture.window.menu().mFav(FavItem::Organize)->trigger();
        WhenOpen<PlayFavoriteDialog>([](PlayFavoriteDialog& dialog) {
            QVERIFY(!dialog.play()->isEnabled());
            dialog.reject();
        });
        fixture.window.menu().mFav(FavItem::Play)->trigger();
    }

    void AFullFavoritesFileOpensAtOnce() {
        WindowFixture fixture;
        std::ofstream file(fixture.Folder() + "/fav.dat");
        for (int i = 0; i < 32767; ++i) file << "\"Avenue\"," << i << "\r\n";
        file.close();
        PlayFavoriteDialog dialog(fixture.engine(), &fixture.window);
        QCOMPARE(dialog.numbers()->count(), 32767);
        QCOMPARE(dialog.numbers()->currentItem()->text(), "32766");
    }

    void PlayersComeAndGo() {
        WindowFixture fixture;
        QString told;
        WhenOpen<PlayersDialog>([&](PlayersDialog& dialog) {
            QVERIFY(!dialog.Button("Delete")->isEnabled());
            WhenOpen<NameDialog>([&](NameDialog& input) {
                QCOMPARE(input.windowTitle(), "Varnello");
                AcceptBox(told);
                QTest::keyClick(&input, Qt::Key_Return);
                QTRY_COMPARE(told, "Please Enter a Valid Name");
                QTest::keyClicks(input.name(), "Annabel Anastasia Alexand");
                input.name()->home(false);
                QTest::keyClicks(input.name(), "X");  // there is no room for it
                QCOMPARE(input.name()->text(), "Annabel Anastasia Alexand");
                QTest::keyClick(&input, Qt::Key_Return);
            });
            QTest::mouseClick(dialog.Button("New"), Qt::LeftButton);
            QCOMPARE(Texts(dialog.players()),
                     (QStringList{"Player1", "Annabel Anastasia Alexand"}));
            QCOMPARE(dialog.players()->currentRow(), 0);
            WhenOpen<NameDialog>([](NameDialog& input) {
                QVERIFY(input.name()->hasSelectedText());
                QTest::keyClicks(input.name(), "Zo");
                QTest::keyClick(&input, Qt::Key_Return);
            });
            QTest::mouseClick(dialog.Button("Edit"), Qt::LeftButton);
            QCOMPARE(fixture.engine().data().CurPlayer(), "Zo");
            dialog.players()->setCurrentRow(1);
            QVERIFY(dialog.Button("Delete")->isEnabled());
            AcceptBox(told);
            QTest::mouseClick(dialog.Button("Delete"), Qt::LeftButton);
            QCOMPARE(told, "Are you sure you want to delete this player");
            QCOMPARE(Texts(dialog.players()), QStringList{"Zo"});
            QVERIFY(!dialog.Button("Delete")->isEnabled());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        fixture.window.menu().mTools(ToolsItem::Players)->trigger();
        QCOMPARE(fixture.engine().data().TotalPlayers(), 1);
    }

    void TheHistoryTellsAppliedAndUndoneMoves() {
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Freecell");
        for (const std::int16_t pile : {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}}) {
            const KesEmpty& slot = fixture.engine().table().PicRes[static_cast<std::size_t>(pile)];
            fixture.Drag(fixture.Top(Cell::Home, pile),
                         fixture.At(slot.Left + 532, slot.Top + 720));
        }
        fixture.engine().commands().Undo();
        HistoryDialog dialog(fixture.engine().trans(), fixture.settings, &fixture.window);
        const QTreeWidget* list = dialog.list();
        QCOMPARE(list->topLevelItemCount(), 3);
        QCOMPARE(list->topLevelItem(0)->text(1), "Tableau (Pile 1, Card 7)");
        QCOMPARE(list->topLevelItem(0)->text(2), "Reserve (Pile 1, Card 1)");
        QVERIFY(!list->topLevelItem(0)->font(1).bold());
        QVERIFY(list->topLevelItem(1)->font(1).bold());
        QCOMPARE(list->topLevelItem(1)->foreground(3).color(), QColor(128, 0, 0));
        QCOMPARE(list->topLevelItem(2)->foreground(0).color(), QColor(128, 128, 0));
    }
};

QTEST_MAIN(ChoosersTest)
#include "choosers_test.moc"
