#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <map>
#include <sstream>

#include "desktop/modules/sound/mixer.h"
#include "desktop/platform/sounds.h"
#include "desktop/window/main_window.h"
#include "engine/common/text_file.h"
#include "engine/null_desktop.h"
#include "loudness.h"
#include "wavefile.h"

// What a person hears of a game's first minute, and how loud: varnello-sounds-bench SCRIPT [WAVE].
// The script of a won game is played at a person's pace in a window, with all sounds on; what is
// heard is mixed as for a device, kept in WAVE and measured. It takes a minute.
using namespace varnello;

namespace {

constexpr int kMinute = 60'000;  // milliseconds
constexpr int kBetweenMoves = 1500;
constexpr int kCarried = 400;  // from press to release

struct Heard {
    double at;  ///< seconds
    Sound event;
};

/// Notes what is to be heard when.
class Notes : public SoundPlayer {
public:
    Notes() { time_.start(); }
    void Play(Sound event) override {
        heard.push_back({double(time_.nsecsElapsed()) / 1e9, event});
    }
    std::vector<Heard> heard;

private:
    QElapsedTimer time_;
};

void Pause(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Plays a line of a script as a person would.
void PlayLine(Engine& engine, const std::string& line) {
    std::istringstream words(line);
    std::string command;
    words >> command;
    if (command == "start") {
        std::string number;
        std::string game;
        words >> number;
        std::getline(words >> std::ws, game);
        engine.life().StartGame(game,
                                GameNumber::ParseBare(number).value_or(GameNumber::Number(1)));
    } else if (command == "slot") {
        engine.gestures().StockClick();
        Pause(kBetweenMoves);
    } else if (command == "drop") {
        int card = 0;
        double left = 0;
        double top = 0;
        words >> card >> left >> top;
        const auto id = static_cast<PicID>(card);
        const KesCard& carried = engine.table().Card(id);
        engine.gestures().MouseDown(id, 0, 0);
        Pause(kCarried);
        engine.gestures().MouseMove(id, left - carried.Left, top - carried.Top);
        engine.gestures().MouseUp(id);
        Pause(kBetweenMoves);
    }
}

Samples Mix(const std::vector<Heard>& heard) {
    Mixer mixer;
    WaveTurns turns;
    std::map<QString, Wave> waves;
    std::vector<std::int16_t> mixed;
    const auto fill = [&](double until) {
        const std::size_t from = mixed.size();
        mixed.resize(std::max(from, SampleCount(until)));
        mixer.Fill(std::span(mixed).subspan(from));
    };
    for (const Heard& sound : heard) {
        fill(sound.at);
        const QString file = turns.Next(sound.event);
        const auto [wave, fresh] = waves.try_emplace(file);
        if (fresh) wave->second = ReadWave(file).value_or(Wave{44100, 1, {}});
        mixer.Start(wave->second);
    }
    fill(heard.back().at + 1.5);
    Samples samples;
    for (const std::int16_t sample : mixed) samples.push_back(sample / 32767.0);
    return samples;
}

/// How often each sound was heard and how loud it was, momentarily, with what came around it: of
/// the 400 ms that begin with it, of a long one of all that lie in it.
void PrintLoudness(const std::vector<Heard>& heard, const Samples& mix) {
    std::printf("Sound     Heard  Momentary LKFS: lowest  median  highest\n");
    for (const SoundRow& row : kSounds) {
        std::vector<double> levels;
        for (const Heard& sound : heard) {
            if (sound.event != row.Event) continue;
            const double last = row.Event == Sound::Start || row.Event == Sound::Win ? 0.8 : 0.0;
            levels.push_back(
                MomentaryLoudness(mix, std::max(0.0, sound.at - 0.05), sound.at + last));
        }
        if (levels.empty()) continue;
        std::sort(levels.begin(), levels.end());
        std::printf("%-9s %5zu %23.1f %7.1f %8.1f\n", std::string(row.Name()).c_str(),
                    levels.size(), levels.front(), levels[levels.size() / 2], levels.back());
    }
    std::printf("\n%.1f s, integrated %.1f LKFS, loudest moment %.1f LKFS, peak %.1f dB\n",
                double(mix.size()) / sampleRate, IntegratedLoudness(mix), MomentaryLoudness(mix),
                Decibels(PeakOf(mix)));
}

void PrintLongestCascade(const std::vector<Heard>& heard) {
    std::vector<double> gaps;
    std::vector<double> longest;
    for (std::size_t i = 1; i < heard.size(); ++i) {
        const bool goesOn =
            heard[i].event == Sound::AutoPlay && heard[i - 1].event == Sound::AutoPlay;
        if (goesOn) gaps.push_back(1000 * (heard[i].at - heard[i - 1].at));
        if (gaps.size() > longest.size()) longest = gaps;
        if (!goesOn) gaps.clear();
    }
    if (longest.empty()) return;
    const auto [least, most] = std::minmax_element(longest.begin(), longest.end());
    std::printf("longest cascade: %zu taps, %.0f to %.0f ms apart\n", longest.size() + 1, *least,
                *most);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 2 || !QFileInfo::exists(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "usage: varnello-sounds-bench SCRIPT [WAVE]\n");
        return 2;
    }
    NullDesktop nothing;
    Notes notes;
    const QTemporaryDir folder;
    MainWindow window({nothing.settings, nothing.clock, notes, folder.path().toStdString()});
    window.show();
    Engine& engine = window.engine();
    for (const SoundRow& row : kSounds) engine.data().Set(SwitchOf(row.Event), -1);
    QElapsedTimer time;
    time.start();
    for (const std::string& line : ReadLines(argv[1])) {
        if (time.elapsed() >= kMinute || engine.life().phase() == Phase::Won) break;
        PlayLine(engine, line);
        while (window.motion().Showing() && time.elapsed() < kMinute) Pause(20);
        if (engine.life().phase() == Phase::Won) (void)engine.life().LoadFinish();
    }
    if (notes.heard.empty()) {
        std::fputs("Nothing was heard.\n", stderr);
        return 1;
    }
    const Samples mix = Mix(notes.heard);
    PrintLoudness(notes.heard, mix);
    PrintLongestCascade(notes.heard);
    if (argc > 2 && !WriteWave(argv[2], mix)) return 1;
    std::fflush(stdout);
    std::_Exit(0);
}
