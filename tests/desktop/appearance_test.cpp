#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "desktop/appearance/background.h"
#include "desktop/appearance/looks.h"
#include "desktop/appearance/pictures.h"
#include "desktop/platform/settings_store.h"

// Colours, pictures and the settings file.
using namespace varnello;

class AppearanceTest : public QObject {
    Q_OBJECT

    QTemporaryDir home_;

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_CONFIG_HOME", home_.path().toUtf8()); }

    void AFadeHas256EqualBands() {
        QImage surface(40, 1024, QImage::Format_RGB32);
        SetBG(surface, 1,
              {.bgIndex = 1000, .fade = true, .customColor = 200 + 256 * 101 + 65536 * 255});
        for (int band = 0; band < 256; ++band) {
            const auto channel = [&](double start) {
                return static_cast<int>(std::nearbyint(band * (-start / 255) + start));
            };
            const QColor expected(channel(200), channel(101), channel(255));
            QCOMPARE(surface.pixelColor(0, band * 4), expected);
            QCOMPARE(surface.pixelColor(39, band * 4 + 3), expected);
        }
        QCOMPARE(surface.pixelColor(0, 1023), QColor(Qt::black));
    }

    void TilesAreSeamlessAndCutAtTheEdge_data() {
        QTest::addColumn<int>("id");
        for (const LookGroup& group : TileGroups()) {
            for (const int id : group.ids) QTest::newRow(qPrintable(QString::number(id))) << id;
        }
    }

    void TilesAreSeamlessAndCutAtTheEdge() {
        QFETCH(int, id);
        const QSize size = TilePicture(1, {.bgIndex = id}).size();
        QImage surface(size * 2 + QSize(7, 5), QImage::Format_RGB32);
        QVERIFY2(TileFill(surface, 1, id), "an offered tile isn't there");
        // How much neighbouring rows or columns differ: across the seam not more than elsewhere.
        const auto difference = [&](QPoint step, int at) {
            double sum = 0;
            const bool across = step.x() != 0;
            const int length = across ? size.height() : size.width();
            for (int i = 0; i < length; ++i) {
                const QPoint here = across ? QPoint(at, i) : QPoint(i, at);
                sum += std::abs(qGray(surface.pixel(here)) - qGray(surface.pixel(here + step)));
            }
            return sum / length;
        };
        for (const QPoint step : {QPoint(1, 0), QPoint(0, 1)}) {
            const int extent = step.x() ? size.width() : size.height();
            double most = 0;
            for (int at = 0; at + 1 < extent; ++at) most = std::max(most, difference(step, at));
            QVERIFY2(difference(step, extent - 1) <= most * 1.05, "a seam shows");
        }
        const QRect first(QPoint(), size);
        QCOMPARE(surface.copy(first), surface.copy(first.translated(size.width(), size.height())));

        // On dense screens the tiles are larger and still leave nothing out.
        for (const double ratio : {0.75, 1.5}) {
            QImage dense((QSizeF(size) * ratio * 2).toSize(), QImage::Format_RGB32);
            dense.fill(Qt::magenta);
            QVERIFY2(TileFill(dense, ratio, id), "no tile on a dense screen");
            for (int y = 0; y < dense.height(); ++y) {
                for (int x = 0; x < dense.width(); ++x) {
                    QVERIFY2(dense.pixel(x, y) != QColor(Qt::magenta).rgb(), "a gap between tiles");
                }
            }
        }
    }

    void PicturesAreSharpAtEveryRatio() {
        for (const double ratio : {0.75, 1.0, 1.1, 1.25, 1.5, 2.0, 2.5, 3.0, 4.5}) {
            const CardPictures pictures(ratio);
            const QSize card = pictures.CardSize();
            QCOMPARE(card,
                     QSize(int(std::floor(71 * ratio + 0.5)), int(std::floor(96 * ratio + 0.5))));
            QCOMPARE(pictures.MainPic(52).sheet->size(),
                     QSize(card.width() * 13, card.height() * 4));
            QCOMPARE(pictures.RightPic(17).sheet->width(), card.width() * 18);
            QCOMPARE(pictures.DeckPic(531).sheet->size(), card);
            // Nothing of a court card's frame shows below the index while 250 twips of it do.
            const int first = qCeil(15 * ratio);
            const int last = qCeil(250 / 15.0 * ratio);
            for (int n = 1; n <= 52; ++n) {
                const CardPictures::Part face = pictures.MainPic(n);
                const QRect strip(QPoint(qCeil(13 * ratio), first),
                                  QPoint(int(24 * ratio), last - 1));
                for (int y = strip.top(); y <= strip.bottom() && (n - 1) % 13 >= 10; ++y) {
                    for (int x = strip.left(); x <= strip.right(); ++x) {
                        QCOMPARE(face.sheet->pixelColor(face.rect.topLeft() + QPoint(x, y)),
                                 QColor(0xFF, 0xFD, 0xF6));
                    }
                }
            }
        }
    }

    void SettingsAreOnDiskAtOnce() {
        FileSettings store;
        QCOMPARE(store.Read("Data", "Autoplay", "1"), "1");
        store.Write("Data", "Autoplay", "0");
        store.Write("Users", "1", "Zoë, \"the\" 名=[x]");
        // A process killed now has left everything in the file.
        QFile file(home_.path() + "/Varnello/Varnello.ini");
        QVERIFY2(file.open(QIODevice::ReadOnly) && file.readAll().contains("Autoplay=0"),
                 "not on the disk");
        const FileSettings other;
        QCOMPARE(other.Read("Data", "Autoplay", "1"), "0");
        QCOMPARE(other.Read("Users", "1", ""), "Zoë, \"the\" 名=[x]");
    }

    void ASettingsFileFullOfNonsenseReadsAsDefaults() {
        const QString file = home_.path() + "/Varnello/Varnello.ini";
        QFile broken(file);
        QVERIFY(broken.open(QIODevice::WriteOnly));
        QByteArray bytes("[Data\nAutoplay==\x01\xFF, 3\n]]\nUndoSpeed=abc\n@Invalid()\n\0\0");
        for (int i = 0; i < 256; ++i) bytes.append(static_cast<char>(i));
        broken.write(bytes);
        broken.close();
        FileSettings store;
        (void)store.Read("Data", "UndoSpeed", "5");
        store.Write("Data", "UndoSpeed", "7");
        QCOMPARE(store.Read("Data", "UndoSpeed", "5"), "7");
        QCOMPARE(FileSettings().Read("Data", "UndoSpeed", "5"), "7");
    }
};

QTEST_MAIN(AppearanceTest)
#include "appearance_test.moc"
