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
        fixture.engine().data.Set(keys::SoundCardUp, -1);
        fixture.sounds.heard.clear();
        const PicID card = fixture.Top(Cell::Home, 7);
        const double left = fixture.Card(card).Left;
        const double top = fixture.Card(card).Top;
        const QPoint from = fixture.CentreOf(card);
        fixture.Press(from);
        fixture.Move(from + QPoint(1, 0));  // no threshold
        QCOMPARE(fixture.Card(card).Left, left + 15);
        fixture.Move(from + QPoint(-40, 200));
        QCOMPARE(fixture.Card(card).Top, top + 3000);
        fixture.Release(from + QPoint(-40, 200));
        QCOMPARE(fixture.Card(card).Left, left);
        QCOMPARE(fixture.Card(card).Top, top);
        QCOMPARE(fixture.engine().trans().GetTransID(), 0);
        QCOMPARE(fixture.sounds.heard, std::vector{Sound::CardUp});
    }

    void ABuriedCardDoesntMove() {
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Freecell");
        const PicID card = fixture.engine().array().GetPicID(Cell::Home, 0, 2);
        const KesCard before = fixture.Card(card);
        const QPoint grip = fixture.At(before.Left + 500, before.Top + 100);
        fixture.Press(grip);
        fixture.Move(grip + QPoint(100, 100));
        QCOMPARE(fixture.Card(card).Left, before.Left);
        fixture.Release(grip + QPoint(100, 100));
        QCOMPARE(fixture.Card(card).Loc, before.Loc);
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
        QVERIFY(fixture.engine().gestures().Dragging());
        fixture.Release(from + QPoint(300, 250));
        QCOMPARE(fixture.Card(card).Left, home);
    }

    void ALostReleaseEndsTheDrag() {
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Freecell");
        const PicID card = fixture.Top(Cell::Home, 0);
        fixture.Press(fixture.CentreOf(card));
        fixture.Move(fixture.At(7000, 9000));
        fixture.Move(fixture.At(7000, 9000), Qt::NoButton);
        QVERIFY(!fixture.engine().gestures().Dragging());
    }

    void TheStockActsAtThePress() {
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Cascade");
        const PicID card = fixture.Top(Cell::Stock, 0);
        const PicID below = fixture.engine().array().GetPicID(Cell::Stock, 0, 15);
        fixture.Press(fixture.CentreOf(card));
        QCOMPARE(fixture.Card(card).Loc, (Place{Cell::Waste, 0, 0}));
        QCOMPARE(fixture.Card(card).FaceMode, FaceMode::Open);
        QCOMPARE(fixture.Card(below).FaceMode, FaceMode::Closed);
        fixture.Release(fixture.CentreOf(below));
    }

    void AClickOnTheStocksSlotTurnsTheWasteBack() {
        WindowFixture fixture;
        fixture.engine().selectGame = [](cGames& games, const std::string&) {
            GameRow row = *FindGame("Cascade");
            row.Stock.StockNum = StockNum::Redeal;
            SelectRow(games, row);
        };
        fixture.StartWithoutAutoplay("Cascade");
        while (fixture.engine().array().GetTop(Cell::Stock, 0) >= 0) {
            const QPoint at = fixture.CentreOf(fixture.Top(Cell::Stock, 0));
            fixture.Press(at);
            fixture.Release(at);
        }
        const KesEmpty& slot = fixture.engine().table.PicStock[0];
        const QPoint at = fixture.At(slot.Left + 500, slot.Top + 700);
        fixture.Press(at);
        QCOMPARE(fixture.engine().array().GetTop(Cell::Stock, 0), -1);
        fixture.Release(at);
        QCOMPARE(fixture.engine().array().GetTop(Cell::Stock, 0), 16);
    }

    void ShowsTheCardWhereTheEngineHasIt() {
        WindowFixture fixture;
        fixture.StartWithoutAutoplay("Freecell");
        const PicID card = fixture.Top(Cell::Home, 0);
        fixture.Drag(card, fixture.At(2980 + 532, 200 + 720));
        const QImage now = fixture.window.table().grab().toImage();
        const CardPictures pictures(1);
        const CardPictures::Part face = pictures.Shown(fixture.Card(card), 531);
        const QPoint corner = fixture.At(2980, 200);
        QCOMPARE(now.pixelColor(corner + QPoint(20, 50)),
                 face.sheet->pixelColor(face.rect.topLeft() + QPoint(20, 50)));
        // Where it lay, the card below shows through.
        QVERIFY(fixture.Card(fixture.Top(Cell::Home, 0)).Loc.Pos == 5);
    }
};

QTEST_MAIN(PlayTest)
#include "play_test.moc"
