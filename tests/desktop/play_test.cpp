#include <QDialog>
#include <QMenu>
#include <numeric>

#include "fixture.h"

// Play by real mouse events in the window.
using namespace varnello;

class PlayTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void DragsACardToAReserve_data() {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("left") << Qt::LeftButton;
        QTest::newRow("middle") << Qt::MiddleButton;
        QTest::newRow("right") << Qt::RightButton;
    }

    void DragsACardToAReserve() {
        QFETCH(Qt::MouseButton, button);
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Freecell");
        const PicID card = fixture.Top(Cell::Home, 0);
        fixture.Drag(card, fixture.At(2980 + 532, 200 + 720), button);
        QCOMPARE(fixture.Card(card).Loc, (Place{Cell::Res, 0, 0}));
        QCOMPARE(fixture.engine().trans().GetTransID(), 1);
    }

    void FollowsTheMouseAndGoesBackInSilence() {
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Freecell");
        fixture.engine().data().Set(SwitchOf(Sound::CardUp), -1);
        fixture.sounds.heard.clear();
        const PicID card = fixture.Top(Cell::Home, 7);
        const double left = fixture.Card(card).Left;
        const double top = fixture.Card(card).Top;
        const QPoint from = fixture.CentreOf(card);
        fixture.Press(from);
        fixture.Move(from + QPoint(1, 0));  // no threshold
        QCOMPARE(fixture.Card(card).Left, left + 15);
        for (const QPoint by : {QPoint(-200, 60), QPoint(30, 300), QPoint(-40, 200)}) {
            fixture.Move(from + by);
            QVERIFY2(fixture.ScreenIsTrue(), "the drag leaves something behind");
        }
        QCOMPARE(fixture.Card(card).Top, top + 3000);
        fixture.Release(from + QPoint(-40, 200));
        QVERIFY2(fixture.ScreenIsTrue(), "the card that went back leaves something behind");
        QCOMPARE(fixture.Card(card).Left, left);
        QCOMPARE(fixture.Card(card).Top, top);
        QCOMPARE(fixture.engine().trans().GetTransID(), 0);
        QCOMPARE(fixture.sounds.heard, std::vector{Sound::CardUp});
    }

    void OneGestureAtATime() {
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Freecell");
        const PicID card = fixture.Top(Cell::Home, 0);
        const double home = fixture.Card(card).Left;
        const QPoint from = fixture.CentreOf(card);
        fixture.Press(from);
        fixture.Move(from + QPoint(300, 250));
        fixture.Press(from + QPoint(300, 250), Qt::RightButton);
        fixture.Release(from + QPoint(300, 250), Qt::RightButton);
        QVERIFY2(fixture.engine().gestures().Dragging(), "the card isn't held");
        fixture.Release(from + QPoint(300, 250));
        QCOMPARE(fixture.Card(card).Left, home);
    }

    void ALostReleasePutsTheCardBack() {
        const std::pair<const char*, std::function<void(WindowFixture&)>> ways[] = {
            {"a move without a button",
             [](WindowFixture& f) { f.Move(f.At(7000, 9000), Qt::NoButton); }},
            {"a menu",
             [](WindowFixture& f) {
                 QMenu* menu = f.window.findChildren<QMenu*>().constFirst();
                 menu->popup(QPoint(5, 5));
                 menu->close();
             }},
            {"a dialog",
             [](WindowFixture& f) {
                 WhenOpen<QDialog>([](QDialog& dialog) { dialog.reject(); });
                 f.window.menu().mStat(StatItem::Game)->trigger();
             }},
            {"a hidden window", [](WindowFixture& f) { f.window.hide(); }},
            {"a lost grab", [](WindowFixture& f) {
                 QEvent lost(QEvent::UngrabMouse);
                 QCoreApplication::sendEvent(&f.window.table(), &lost);
             }}};
        for (const auto& [way, happen] : ways) {
            WindowFixture fixture;
            fixture.StartWithoutAutoplay("Freecell");
            const PicID card = fixture.Top(Cell::Home, 0);
            const double left = fixture.Card(card).Left;
            fixture.Press(fixture.CentreOf(card));
            fixture.Move(fixture.At(2980 + 532, 200 + 720));  // over a free reserve
            happen(fixture);
            QVERIFY2(!fixture.engine().gestures().Dragging(), way);
            QVERIFY2(fixture.Card(card).Left == left, way);
            fixture.Move(fixture.At(2980 + 532, 200 + 720), Qt::NoButton);
            QVERIFY2(fixture.engine().trans().GetTransID() == 0, way);
        }
    }

    void WhatIsHitIsWhatIsDrawn() {
        // At each zoom the first pixel of a card's picture takes this card, not the one below it.
        for (const int steps : {-1, 0, 2, 4}) {
            WindowFixture fixture;
            fixture.StartWithoutAutoplay("Freecell", 6);
            TableView& table = fixture.window.table();
            for (int i = 0; i < std::abs(steps); ++i) table.ZoomBy(steps > 0 ? 1 : -1);
            for (int pile = 0; pile < 8; ++pile) {
                const PicID id = fixture.Top(Cell::Home, pile);
                const QRect shown = table.CardRect(fixture.Card(id).Left, fixture.Card(id).Top);
                if (!table.rect().contains(shown)) continue;
                const QPoint first(shown.center().x(), shown.top());
                const double before = fixture.Card(id).Left;
                fixture.Press(first);
                fixture.Move(first + QPoint(20, 0));
                QVERIFY2(fixture.Card(id).Left > before, qPrintable(QString::number(pile)));
                QCOMPARE(table.cursor().shape(), Qt::ClosedHandCursor);
                QTest::keyClick(&fixture.window, Qt::Key_Escape);
                QCOMPARE(fixture.Card(id).Left, before);
                fixture.Release(first + QPoint(20, 0));
            }
            QCOMPARE(fixture.engine().trans().GetTransID(), 0);
        }
    }

    void ABareClickMovesNothing() {
        // As in games whose long piles reach down to the reserve: a drop in place would find it.
        WindowFixture fixture;
        fixture.engine().life().SelectBy([](cGames& games, const std::string&) {
            GameRow row = *FindGame("Freecell");
            row.Res.StartX += 200;
            row.Res.StartY += 2800;
            SelectRow(games, row);
        });
        fixture.StartWithoutAutoplay("Freecell");
        const PicID id = fixture.Top(Cell::Home, 0);
        fixture.Press(fixture.CentreOf(id));
        QVERIFY2(fixture.engine().gestures().Target(id), "no pile would take the card");
        fixture.Release(fixture.CentreOf(id));
        QCOMPARE(fixture.engine().trans().GetTransID(), 0);
        fixture.Drag(id, fixture.CentreOf(id) + QPoint(1, 0));
        QCOMPARE(fixture.engine().trans().GetTransID(), 1);
    }

    void EachCardOfACascadeIsHeardAsItLands() {
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Stripped Freecell", 6);
        Motion& motion = fixture.window.motion();
        motion.SetPaced(true);
        fixture.sounds.heard.clear();
        std::vector<std::size_t> atLandings;
        connect(&motion, &Motion::Changed, this,
                [&] { atLandings.push_back(fixture.sounds.heard.size()); });
        QTest::keyClick(&fixture.window, Qt::Key_F7);
        QTRY_VERIFY2(!motion.Showing(), "the cascade doesn't end");
        std::vector<std::size_t> expected(atLandings.size());
        std::iota(expected.begin(), expected.end(), 1);
        QVERIFY2(expected.size() >= 3, "no cascade");
        QCOMPARE(atLandings, expected);
        QCOMPARE(fixture.sounds.heard, std::vector<Sound>(expected.size(), Sound::AutoPlay));
    }

    void AClickOnTheStocksSlotTurnsTheWasteBack() {
        WindowFixture fixture;
        fixture.engine().life().SelectBy([](cGames& games, const std::string&) {
            GameRow row = *FindGame("Cascade");
            row.Stock.StockNum = StockNum::Redeal;
            SelectRow(games, row);
        });
        fixture.StartWithoutAutoplay("Cascade");
        while (fixture.engine().array().GetTop(Cell::Stock, 0) >= 0) {
            const QPoint at = fixture.CentreOf(fixture.Top(Cell::Stock, 0));
            fixture.Press(at);
            fixture.Release(at);
        }
        const KesEmpty& slot = fixture.engine().table().PicStock[0];
        const QPoint at = fixture.At(slot.Left + 500, slot.Top + 700);
        fixture.Press(at);
        QCOMPARE(fixture.engine().array().GetTop(Cell::Stock, 0), -1);
        fixture.Release(at);
        QCOMPARE(fixture.engine().array().GetTop(Cell::Stock, 0), 16);
    }
};

QTEST_MAIN(PlayTest)
#include "play_test.moc"
