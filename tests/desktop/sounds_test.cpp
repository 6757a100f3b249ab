#include <QTest>
#include <algorithm>
#include <cmath>

#include "desktop/modules/sound/mixer.h"
#include "desktop/platform/sounds.h"

// The program's waves, and how one cuts another off.
using namespace varnello;

class SoundsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void EverySoundHasItsWaves() {
        for (const SoundRow& row : kSounds) {
            const std::string name(row.Name());
            const QStringList files = WavesOf(row.Event);
            QVERIFY2(!files.isEmpty(), name.c_str());
            for (const QString& file : files) {
                const auto wave = ReadWave(file);
                QVERIFY2(wave && wave->rate == 44100 && wave->channels == 1, name.c_str());
            }
            WaveTurns turns;
            QStringList heard;
            for (int i = 0; i < files.size(); ++i) heard.append(turns.Next(row.Event));
            QVERIFY2((heard.sort(), heard == files), name.c_str());
        }
    }

    void OnlyWavesAreRead_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("good");
        const QByteArray format("fmt \x10\0\0\0\1\0\1\0\x44\xac\0\0\x88\x58\1\0\2\0\x10\0", 24);
        const QByteArray head = QByteArray("RIFF\0\0\0\0WAVE", 12);
        const QByteArray extra("LIST\3\0\0\0abc\0", 12);
        const QByteArray data("data\2\0\0\0\1\0", 10);
        QTest::newRow("plain") << head + format + data << true;
        QTest::newRow("with a chunk more") << head + extra + format + data << true;
        QTest::newRow("no format") << head + data << false;
        QTest::newRow("cut off") << (head + format + data).chopped(1) << false;
        QTest::newRow("something else") << QByteArray(60, 'x') << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }

    void OnlyWavesAreRead() {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, good);
        const auto wave = ParseWave(bytes);
        QCOMPARE(wave.has_value(), good);
        if (good) QCOMPARE(wave->samples, std::vector<std::int16_t>{1});
    }

    void ACutWaveFadesAndTheNextBeginsAtOnce() {
        const Wave loud{44100, 1, std::vector<std::int16_t>(2000, 10000)};
        const Wave quiet{44100, 1, std::vector<std::int16_t>(1000, 0)};
        Mixer mixer;
        std::vector<std::int16_t> heard(100);
        mixer.Start(loud);
        mixer.Fill(heard);
        QCOMPARE(heard.back(), 10000);
        mixer.Start(quiet);
        heard.resize(1300);
        mixer.Fill(std::span(heard).subspan(100));
        for (std::size_t i = 100; i < heard.size(); ++i) {
            QVERIFY2(std::abs(heard[i] - heard[i - 1]) <= 10000 / 132 + 1,
                     qPrintable(QString::number(i)));
        }
        QVERIFY2(heard[100 + 66] > 4000, "cut off at once");  // halfway through the 3 ms
        QCOMPARE(heard[100 + 133], 0);
        QVERIFY2(mixer.Silent(), "it goes on");
        // What is cut off twice in 3 ms is still heard fading.
        mixer.Start(loud);
        mixer.Fill(std::span(heard).first(10));
        mixer.Start(quiet);
        mixer.Fill(std::span(heard).first(10));
        mixer.Start(quiet);
        mixer.Fill(std::span(heard).first(1));
        QVERIFY2(heard[0] > 8000, "the next one is late");
        const Wave loudest{44100, 1, std::vector<std::int16_t>(1000, 32767)};
        for (int i = 0; i < 3; ++i) {
            mixer.Start(loudest);
            mixer.Fill(std::span(heard).first(20));
            QVERIFY2(*std::min_element(heard.begin(), heard.begin() + 20) > 0, "it crackles");
        }
    }
};

QTEST_APPLESS_MAIN(SoundsTest)
#include "sounds_test.moc"
