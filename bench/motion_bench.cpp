#include <sys/resource.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QScreen>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "bench/shuttle.h"
#include "desktop/window/main_window.h"
#include "engine/null_desktop.h"

// How evenly cards fly in a real window, and what it costs: a deal of 104 cards, and Undo All and
// Redo All of moves at the slowest. A frame is late when it comes more than one and a half display
// frames after the one before it, where a place isn't held longer than that anyway.
using namespace varnello;

namespace {

double CpuSeconds() {
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    const auto seconds = [](const timeval& t) {
        return double(t.tv_sec) + double(t.tv_usec) / 1e6;
    };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

void Measure(const char* what, Motion& motion, double frame) {
    QElapsedTimer time;
    std::vector<double> gaps;
    const double cpu = CpuSeconds();
    QEventLoop loop;
    const auto moved = QObject::connect(&motion, &Motion::Moved, &loop, [&] {
        if (time.isValid()) gaps.push_back(double(time.nsecsElapsed()) / 1e6);
        time.start();
    });
    QObject::connect(&motion, &Motion::Shown, &loop, &QEventLoop::quit);
    QElapsedTimer all;
    all.start();
    if (motion.Showing()) loop.exec();
    QObject::disconnect(moved);
    std::sort(gaps.begin(), gaps.end());
    const auto late =
        std::count_if(gaps.begin(), gaps.end(), [&](double gap) { return gap > 1.5 * frame; });
    std::printf(
        "%-26s %5.2f s, %4zu frames, median gap %5.1f ms, late %.1f %%, longest %5.1f ms, CPU %.0f "
        "ms\n",
        what, double(all.elapsed()) / 1000, gaps.size(), gaps.empty() ? 0 : gaps[gaps.size() / 2],
        gaps.empty() ? 0 : 100.0 * double(late) / double(gaps.size()),
        gaps.empty() ? 0 : gaps.back(), 1000 * (CpuSeconds() - cpu));
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    NullDesktop nothing;
    const QTemporaryDir folder;
    MainWindow window(
        {nothing.settings, nothing.clock, nothing.sounds, folder.path().toStdString()});
    window.showMaximized();
    QCoreApplication::processEvents();
    const double frame = 1000 / std::clamp(window.screen()->refreshRate(), 30.0, 240.0);
    Engine& engine = window.engine();
    engine.data().Set(keys::Autoplay, 0);
    for (int i = 0; i < 3; ++i) {
        engine.life().StartGame("Zodiac", GameNumber::Number(i + 1));
        Measure("deal of 104 cards", window.motion(), frame);
    }
    engine.life().StartGame("Freecell", GameNumber::Number(1));
    window.motion().Finish();
    Shuttle(engine, 10);
    window.motion().Finish();
    engine.data().Set(keys::UndoallSpeed, 50);
    engine.commands().UndoAll();
    Measure("Undo All, slowest", window.motion(), frame);
    engine.commands().RedoAll();
    Measure("Redo All, slowest", window.motion(), frame);
    std::fflush(stdout);
    std::_Exit(0);
}
