#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <atomic>
#include <fstream>
#include <thread>

#include "desktop/choosers/favorites_dialogs.h"
#include "desktop/choosers/number_dialog.h"
#include "desktop/customize/customize_dialog.h"
#include "desktop/platform/text.h"
#include "desktop/platform/watched_work.h"
#include "desktop/reports/log_dialog.h"
#include "fixture.h"

// What the tables of the windows can't tell: odd names and settings, models, sizes.
using namespace varnello;

class DialogsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheProposedNumberIsOneThatMayBeChosen() {
        WindowFixture fixture;
        fixture.engine().data().Set(keys::RangeIndex, 1);
        for (int i = 0; i < 300; ++i) {
            const NumberDialog dialog(fixture.engine(), nullptr);
            QVERIFY2(fixture.engine().choosing().IsChoosable(dialog.number()->text().toStdString()),
                     "the number that is proposed is refused");
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
        QTRY_VERIFY2(fixture.window.windowTitle().contains("[<h1>a & b [*][*] %1 &x]"),
                     "the title spells the name otherwise");
        int found = 0;
        WhenOpen<QDialog>([&](QDialog& dialog) {
            for (const QLabel* label : dialog.findChildren<QLabel*>()) {
                if (!label->text().contains(ToQt(odd))) continue;
                ++found;
                QCOMPARE(label->textFormat(), Qt::PlainText);
                QVERIFY2(!label->buddy(), "the name is taken for a caption");
            }
            dialog.close();
        });
        fixture.window.menu().mStat(StatItem::Session)->trigger();
        QCOMPARE(found, 1);
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

    void WhatNoControlCanGiveStaysUnlessChanged() {
        WindowFixture fixture;
        cData& data = fixture.engine().data();
        const std::pair<NumberKey, std::int16_t> odd[] = {
            {keys::CardSpeed, 70},    {keys::ReplaySpeed, -4}, {keys::RangeIndex, 99},
            {keys::BGIndex, 1021},    {keys::Fade, 1},         {keys::DeckIndex, 777},
            {SwitchOf(Sound::Win), 5}};
        for (const auto& [key, value] : odd) data.Set(key, value);
        CustomizeDialog dialog(fixture.engine(), &fixture.window);
        const auto sliders = dialog.findChildren<QSlider*>();
        const auto* range = Named<QComboBox>(dialog, "Random Range Selection between 0 and ");
        auto* fade = Captioned(dialog, "&Fade Background");
        QCOMPARE(sliders[0]->value(), 0);
        QCOMPARE(sliders[3]->value(), 50);
        QCOMPARE(range->currentIndex(), 14);
        QFocusEvent tab(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(Named<QTreeWidget>(dialog, "Backgrounds"), &tab);
        QVERIFY2(fade->isEnabled(), "Fade is grey");
        sliders[1]->setValue(1);
        fade->click();
        fixture.settings.writes = 0;
        Q_EMIT dialog.findChild<QDialogButtonBox*>()->accepted();
        QCOMPARE(fixture.settings.writes, 1);
        QCOMPARE(data.Get(keys::UndoSpeed), 49);
        for (const auto& [key, value] : odd) {
            QCOMPARE(data.Get(key), key.Key == keys::Fade.Key ? 0 : value);
        }
    }

    void TheLogOpensAsItWasLeft() {
        WindowFixture fixture;
        const auto open = [&](const std::function<void(LogDialog&, ReportView&)>& act) {
            WhenOpen<LogDialog>([&](LogDialog& dialog) {
                act(dialog, *Named<ReportView>(dialog, "Log"));
                dialog.reject();
            });
            fixture.window.menu().mStat(StatItem::Log)->trigger();
        };
        open([](LogDialog& dialog, ReportView& log) {
            log.horizontalHeader()->resizeSection(1, 222);
            dialog.resize(600, 444);
            QCOMPARE(log.columnWidth(1), 222);
            dialog.showMaximized();
        });
        open([](LogDialog& dialog, ReportView& log) {
            QCOMPARE(dialog.size(), QSize(600, 444));
            QCOMPARE(log.columnWidth(1), 222);
        });
        fixture.settings.Write("Windows", "LogStatistics", "size=99999 1;log=1 x;;=;log");
        open([](LogDialog& dialog, ReportView&) {
            QVERIFY2(dialog.width() <= dialog.screen()->availableSize().width(),
                     "wider than the screen");
        });
    }

    void OfAHugeSelectionTheFirstRowsAreCopied() {
        WindowFixture fixture;
        std::ofstream file(fixture.Folder() + "/Player1.sre");
        for (int i = 0; i <= 50'000; ++i)
            file << "\"11/22/2026 1:00:00 PM\",\"Freecell\",7,1,1,5,1\n";
        file.close();
        fixture.engine().score().OpenAllScore();
        LogDialog dialog(fixture.engine(), &fixture.window);
        auto* log = Named<ReportView>(dialog, "Log");
        log->selectAll();
        QTest::keyClick(log, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text().count('\n'), 49'999);
        const auto labels = dialog.findChildren<QLabel*>();
        QVERIFY2(labels.last()->text().startsWith("The first 50,000 of"),
                 "nobody tells that rows are missing");
    }

    void LongWorkIsWatchedAndMayBeStopped() {
        for (const bool stop : {false, true}) {
            const auto end = std::make_shared<std::atomic<bool>>(false);
            QString told;
            WhenOpen<QDialog>([&](QDialog& box) {
                told = box.findChild<QLabel*>()->text();
                QTRY_COMPARE(box.findChild<QProgressBar*>()->value(), 250);
                if (stop) return box.findChild<QPushButton*>()->click();
                *end = true;
            });
            const bool done = DoWatched(nullptr, "Counting...", 8, [end](Progress& progress) {
                progress.Done = 2;
                while (!*end && !progress.Stopped) std::this_thread::yield();
                *end = true;
            });
            QCOMPARE(told, "Counting...");
            QVERIFY2(done != stop, stop ? "work goes on in spite of Cancel" : "work isn't done");
            QTRY_VERIFY2(*end, "the work doesn't learn that it was stopped");
        }
    }

    void EveryListKeepsTheRulesOfModels() {
        WindowFixture fixture;
        std::ofstream(fixture.Folder() + "/Player1.sre")
            << "\"11/22/2026 1:00:00 PM\",\"Freecell\",7,120,100,50,1\n"
               "\"10/2/2026 1:00:00 PM\",\"Penguin\",100,1000,8,9,1\n";
        fixture.StartWithoutAutoplay("Freecell");
        fixture.DragToReserve(0, 0);
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
};

QTEST_MAIN(DialogsTest)
#include "dialogs_test.moc"
