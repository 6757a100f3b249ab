#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <fstream>

#include "desktop/choosers/number_dialog.h"
#include "desktop/reports/finish_dialog.h"
#include "desktop/reports/game_stat_dialog.h"
#include "desktop/reports/high_score_dialog.h"
#include "desktop/reports/log_dialog.h"
#include "desktop/reports/session_dialog.h"
#include "fixture.h"

// The windows that show results, opened by their menu items.
using namespace varnello;

namespace {

QString CellText(const ReportView& view, int row, int column) {
    return view.model()->index(row, column).data().toString();
}

QStringList ColumnTexts(const ReportView& view, int column) {
    QStringList texts;
    for (int row = 0; row < view.model()->rowCount(); ++row) texts << CellText(view, row, column);
    return texts;
}

void Choose(QComboBox& combo, const QString& text) {
    combo.setCurrentText(text);
    Q_EMIT combo.activated(combo.currentIndex());
}

class ResultsFixture : public WindowFixture {
public:
    explicit ResultsFixture(const std::string& lines) {
        std::ofstream(Folder() + "/Player1.sre") << lines;
    }
};

constexpr const char* kLines =
    "\"11/22/2026 1:00:00 PM\",\"Freecell\",7,120,100,50,1\n"
    "\"11/20/2026 1:00:00 PM\",\"Freecell\",\"012\",9,90,80,0\n"
    "\"10/2/2026 1:00:00 PM\",\"Penguin\",100,1000,8,9,1\n";

}  // namespace

class ReportsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ListsSortByValueAndReturnToTheirOrder() {
        ResultsFixture fixture(kLines);
        WhenOpen<LogDialog>([](LogDialog& dialog) {
            auto* log = Named<ReportView>(dialog, "Log");
            const QStringList order{"7", "012", "100"};
            QCOMPARE(ColumnTexts(*log, 8), order);
            log->selectRow(2);
            QTest::mouseClick(log->horizontalHeader()->viewport(), Qt::LeftButton, {},
                              {log->columnViewportPosition(8) + 9, 9});
            QCOMPARE(ColumnTexts(*log, 8), (QStringList{"7", "012", "100"}));
            log->sortByColumn(5, Qt::AscendingOrder);
            QCOMPARE(ColumnTexts(*log, 5), (QStringList{"8", "90", "100"}));
            QCOMPARE(log->currentIndex().row(), 0);
            log->sortByColumn(7, Qt::DescendingOrder);
            QCOMPARE(ColumnTexts(*log, 0), (QStringList{"1", "2", "3"}));
            log->sortByColumn(2, Qt::DescendingOrder);
            QCOMPARE(CellText(*log, 0, 2), "Penguin");
            log->sortByColumn(-1, Qt::AscendingOrder);
            QCOMPARE(ColumnTexts(*log, 8), order);
            log->sortByColumn(3, Qt::AscendingOrder);
            Choose(*Named<QComboBox>(dialog, "Time"), "Last 3 Days");
            QCOMPARE(ColumnTexts(*log, 3), (QStringList{"50", "80"}));
            Choose(*Named<QComboBox>(dialog, "Game"), "Penguin");
            QCOMPARE(log->model()->rowCount(), 0);
            dialog.reject();
        });
        fixture.window.menu().mStat(StatItem::Log)->trigger();
        QCOMPARE(fixture.engine().score().ScoreTop(), 0);
    }

    void TheLogAddsUpCopiesAndOpensAsItWasLeft() {
        ResultsFixture fixture(kLines);
        WhenOpen<LogDialog>([](LogDialog& dialog) {
            Captioned<QLabel>(dialog, "3 games, 2 won (66.7%)   Time: 0:18:49   Best score: 80");
            auto* log = Named<ReportView>(dialog, "Log");
            QCOMPARE(log->CurrentRow(), 0);  // the newest
            QApplication::clipboard()->setText("kept");
            QTest::keySequence(log, QKeySequence::Copy);
            QCOMPARE(QApplication::clipboard()->text(), "kept");
            log->selectRow(1);
            QTest::keySequence(log, QKeySequence::Copy);
            QVERIFY(QApplication::clipboard()->text().startsWith("2\tPlayer1\tFreecell\t80\t"));
            Choose(*Named<QComboBox>(dialog, "Game"), "Penguin");
            Captioned<QLabel>(dialog, "1 game, 1 won (100.0%)   Time: 0:16:40   Best score: 9");
            log->sortByColumn(3, Qt::DescendingOrder);
            log->horizontalHeader()->resizeSection(1, 222);
            Choose(*Named<QComboBox>(dialog, "Game"), "All Games");
            dialog.resize(600, 444);
            QCOMPARE(log->columnWidth(1), 222);
            dialog.reject();
        });
        fixture.window.menu().mStat(StatItem::Log)->trigger();
        WhenOpen<LogDialog>([](LogDialog& dialog) {
            auto* log = Named<ReportView>(dialog, "Log");
            QCOMPARE(dialog.size(), QSize(600, 444));
            QCOMPARE(log->columnWidth(1), 222);
            QCOMPARE(ColumnTexts(*log, 3), (QStringList{"80", "50", "9"}));
            QCOMPARE(log->model()->headerData(2, Qt::Vertical, Qt::DisplayRole).toString(), "3");
            log->selectRow(0);
            QTest::keySequence(log, QKeySequence::Copy);
            QVERIFY(QApplication::clipboard()->text().startsWith("2\tPlayer1\tFreecell\t80\t"));
            dialog.reject();
        });
        fixture.window.menu().mStat(StatItem::Log)->trigger();
        const std::string odd = "size=99999 1;log=1 x;;=;log";
        fixture.settings.Write("Windows", "LogStatistics", odd);
        WhenOpen<LogDialog>([](LogDialog& dialog) {
            QVERIFY(dialog.width() <= dialog.screen()->availableSize().width());
            dialog.reject();
        });
        fixture.window.menu().mStat(StatItem::Log)->trigger();
    }

    void EveryListKeepsTheRulesOfModels() {
        ResultsFixture fixture(kLines);
        fixture.StartWithoutAutoplay("Freecell");
        fixture.Drag(fixture.Top(Cell::Home, 0), fixture.At(2980 + 532, 200 + 720));
        const MainMenu& menu = fixture.window.menu();
        int lists = 0;
        for (QAction* item : {menu.mStat(StatItem::Game), menu.mStat(StatItem::Session),
                              menu.mStat(StatItem::HighScore), menu.mStat(StatItem::Log),
                              menu.mTools(ToolsItem::History), menu.mTools(ToolsItem::Players),
                              menu.mTools(ToolsItem::Customize), menu.mFav(FavItem::Organize),
                              menu.mFav(FavItem::Play), menu.mFile(FileItem::Number)}) {
            WhenOpen<QDialog>([&](QDialog& dialog) {
                for (auto* list : dialog.findChildren<QAbstractItemView*>()) {
                    if (!list->model()) continue;
                    const QAbstractItemModelTester tester(list->model());
                    for (int column = list->model()->columnCount(); column >= 0; --column) {
                        list->model()->sort(column - 1, Qt::DescendingOrder);
                    }
                    ++lists;
                }
                dialog.reject();
            });
            item->trigger();
        }
        QVERIFY2(lists > 30, qPrintable(QString::number(lists)));
    }

    void ADealIsPlayedAgainThroughTheNumberChooser() {
        ResultsFixture fixture(kLines);
        const auto choose = [](bool accept) {
            WhenOpen<NumberDialog>([accept](NumberDialog& chooser) {
                QCOMPARE(chooser.number()->text(), "012");
                QCOMPARE(chooser.findChild<QComboBox*>()->currentText(), "Freecell");
                if (accept) return Captioned(chooser, "Select")->click();
                chooser.reject();
            });
        };
        WhenOpen<LogDialog>([&](LogDialog& dialog) {
            auto* log = Named<ReportView>(dialog, "Log");
            log->selectRow(1);
            choose(false);
            QTest::keyClick(log, Qt::Key_Return);
            QVERIFY2(dialog.isVisible(), "a slip loses nothing");
            choose(true);
            QTest::mouseDClick(log->viewport(), Qt::LeftButton, {},
                               log->visualRect(log->model()->index(1, 3)).center());
            QVERIFY(dialog.isVisible());
        });
        fixture.window.menu().mStat(StatItem::Log)->trigger();
        QTest::mouseRelease(&fixture.window, Qt::LeftButton);  // the list it was for is gone
        QCOMPARE(fixture.engine().data().CurGName(), std::string("Freecell"));
        QCOMPARE(fixture.engine().data().CurGNo.Shown(), std::string("012"));
    }

    void RowsChooseTheChartsAndTellTheirGames() {
        ResultsFixture fixture(kLines);
        WhenOpen<GameStatDialog>([&](GameStatDialog& dialog) {
            auto* games = Named<ReportView>(dialog, "Games");
            games->ShowRow(fixture.engine().data().GetGameID("Penguin") - 1);
            QCOMPARE(Named<QComboBox>(dialog, "Game shown in the charts")->currentText(),
                     "Penguin");
            auto* chart = Named<Chart>(dialog, "Won and lost of the game");
            QVERIFY(chart->accessibleDescription().contains("Won : 1"));
            QCOMPARE(Named<Chart>(dialog, "The first games one by one")->accessibleDescription(),
                     "1: Score : 9, Moves : 8, Time : 0:16:40");
            Captioned<QLabel>(dialog, "Penguin won in a row by Player1: 1 now, 1 at best");
            Choose(*Named<QComboBox>(dialog, "Game shown in the charts"), "Avenue");
            QCOMPARE(games->CurrentRow(), 0);
            Captioned<QLabel>(dialog, "Avenue is waiting for its first game.");
            dialog.reject();
        });
        fixture.window.menu().mStat(StatItem::Game)->trigger();
    }

    void StatisticsKeepTheirFiguresWhenClearedAndReloadAfterAnExport() {
        ResultsFixture fixture(kLines);
        const QString file = fixture.folder.path() + "/board";
        QStringList told;
        WhenOpen<GameStatDialog>([&](GameStatDialog& dialog) {
            auto* games = Named<QComboBox>(dialog, "Game shown in the charts");
            auto* chart = Named<Chart>(dialog, "Won and lost of the game");
            Choose(*games, "Freecell");
            QVERIFY(chart->accessibleDescription().contains("Lost : 1"));
            WhenOpen<QFileDialog>([&](QFileDialog& files) {
                files.selectFile(file);
                WhenOpen<QMessageBox>([&](QMessageBox& box) {
                    told << box.text();
                    box.button(QMessageBox::Ok)->click();
                });
                QMetaObject::invokeMethod(&files, "accept");
            });
            Captioned(dialog, "Export Statistics")->click();
            Choose(*games, "Penguin");
            QVERIFY(chart->accessibleDescription().contains("Won : 1"));
            Choose(*Named<QComboBox>(dialog, "Time shown"), "Last 5 Months");
            auto* dates = Named<ReportView>(dialog, "Days, months or years");
            QCOMPARE(dates->model()->headerData(0, Qt::Horizontal).toString(), "Month");
            QCOMPARE(ColumnTexts(*dates, 1), (QStringList{"0", "0", "0", "1", "2"}));
            WhenOpen<QMessageBox>([](QMessageBox& box) {
                WhenOpen<QMessageBox>([](QMessageBox& done) { done.accept(); });
                box.button(QMessageBox::Yes)->click();
            });
            Captioned(dialog, "Clear Statistics")->click();
            Choose(*games, "Freecell");
            QVERIFY(chart->accessibleDescription().contains("Won : 1"));
            dialog.reject();
        });
        fixture.window.menu().mStat(StatItem::Game)->trigger();
        QCOMPARE(told, QStringList{"Statistics Successfully Exported to " + file});
        QVERIFY(QFile::exists(file));
        QVERIFY(!QFile::exists(QString::fromStdString(fixture.Folder()) + "/Player1.sre"));
    }

    void RankingsFollowTheirFilters() {
        ResultsFixture fixture(kLines);
        WhenOpen<HighScoreDialog>([](HighScoreDialog& dialog) {
            Choose(*Named<QComboBox>(dialog, "Game"), "Penguin");
            QCOMPARE(Named<ReportView>(dialog, "Best of the game")->model()->rowCount(), 1);
            Choose(*Named<QComboBox>(dialog, "Ranked by"), "Moves");
            auto* won = Named<ReportView>(dialog, "Best won games");
            QCOMPARE(ColumnTexts(*won, 5), (QStringList{"8", "100"}));
            QVERIFY(won->model()->index(0, 5).data(Qt::FontRole).value<QFont>().bold());
            dialog.reject();
        });
        fixture.window.menu().mStat(StatItem::HighScore)->trigger();
    }

    void TheRunningGameIsLive() {
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Freecell");
        fixture.engine().life().EndGame(Outcome::NotWon);
        fixture.Start("Freecell", 2);
        WhenOpen<SessionDialog>([&](SessionDialog& dialog) {
            const auto close = qScopeGuard([&] { dialog.reject(); });
            auto* games = Named<ReportView>(dialog, "Games of this session");
            QCOMPARE(ColumnTexts(*games, 5), (QStringList{"Lost", "Running"}));
            games->selectRow(1);
            fixture.clock.now.minute += 1;
            QTRY_COMPARE(CellText(*games, 1, 3), "0:01:00");
            QTRY_COMPARE(CellText(*games, 1, 6), "-20");
            QCOMPARE(games->currentIndex().row(), 1);
            auto* chart = Named<Chart>(dialog, "Score, moves and time game by game");
            QVERIFY(!chart->accessibleDescription().contains("0:01:00"));
            Captioned(dialog, "Refresh Chart")->click();
            QVERIFY(chart->accessibleDescription().contains("0:01:00"));
            Captioned<QLabel>(dialog, "Score : -20");
            Captioned<QLabel>(dialog, "Games Played : 1");
        });
        fixture.window.menu().mStat(StatItem::Session)->trigger();
    }

    void TheWonDialogShowsTheWinInBothWindows() {
        WindowFixture fixture;
        fixture.Start("Freecell");
        fixture.engine().data().GameWon = true;
        fixture.engine().data().CurScore = 77;
        bool told = false;
        WhenOpen<FinishDialog>([&](FinishDialog& finish) {
            WhenOpen<GameStatDialog>([](GameStatDialog& dialog) {
                auto* games = Named<ReportView>(dialog, "Games");
                QVERIFY(ColumnTexts(*games, 2).contains("1"));
                dialog.reject();
            });
            Captioned(finish, "Statistics")->click();
            WhenOpen<HighScoreDialog>([](HighScoreDialog& dialog) {
                QCOMPARE(CellText(*Named<ReportView>(dialog, "Top games"), 0, 3), "77");
                QCOMPARE(Named<ReportView>(dialog, "Top games")->CurrentRow(), 0);
                dialog.reject();
            });
            Captioned(finish, "High Score")->click();
            told = true;
            finish.reject();
        });
        // A window that shows results shows this one as well; the dialog waits until it is closed.
        WhenOpen<GameStatDialog>([&](GameStatDialog& dialog) {
            QVERIFY(!fixture.engine().data().GameRunning && !told);
            dialog.reject();
        });
        fixture.window.menu().mStat(StatItem::Game)->trigger();
        QTRY_VERIFY(told);
    }
};

QTEST_MAIN(ReportsTest)
#include "reports_test.moc"
