#include <QApplication>
#include <QComboBox>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/reports/game_stat_dialog.h"
#include "desktop/reports/high_score_dialog.h"
#include "desktop/reports/log_dialog.h"
#include "desktop/reports/scores_access.h"
#include "engine/null_desktop.h"

// varnello-windows-bench FOLDER: how long the result windows take from the click to a painted
// window and for each choice in them, over the score files there. See reports.sh.
using namespace varnello;

namespace {

double Milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    QCoreApplication::processEvents();  // paints what has changed
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

/// Opens a window a few times; each combo takes each of its items once.
template <typename Dialog>
void Measure(const char* name, Engine& engine) {
    std::vector<double> openings;
    double slowest = 0;
    double slowestSort = 0;
    for (int round = 0; round < 5; ++round) {
        std::unique_ptr<Dialog> dialog;
        openings.push_back(Milliseconds([&] {
            OpenScores(engine, nullptr);
            if constexpr (std::is_same_v<Dialog, HighScoreDialog>) {
                dialog = std::make_unique<Dialog>(engine, false, nullptr);
            } else {
                dialog = std::make_unique<Dialog>(engine, nullptr);
            }
            dialog->show();
        }));
        if (round > 0) continue;
        for (QComboBox* combo : dialog->template findChildren<QComboBox*>()) {
            const int shown = combo->currentIndex();
            const auto choose = [&](int item) {
                combo->setCurrentIndex(item);
                Q_EMIT combo->activated(item);
            };
            for (int item = 0; item < combo->count(); ++item) {
                slowest = std::max(slowest, Milliseconds([&] { choose(item); }));
            }
            choose(shown);
        }
        for (ReportView* view : dialog->template findChildren<ReportView*>()) {
            for (int column = 0; column < view->model()->columnCount(); ++column) {
                slowestSort = std::max(slowestSort, Milliseconds([&] {
                                           view->sortByColumn(column, Qt::DescendingOrder);
                                       }));
            }
            view->sortByColumn(-1, Qt::AscendingOrder);  // or the next one opens sorted
        }
    }
    const double first = openings.front();
    std::sort(openings.begin(), openings.end());
    std::printf("%-16s first %6.0f ms, median %6.0f ms; slowest choice %5.0f ms, sort %5.0f ms\n",
                name, first, openings[openings.size() / 2], slowest, slowestSort);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: varnello-windows-bench FOLDER\n", stderr);
        return 2;
    }
    NullDesktop nothing;
    Engine engine(nothing.Interfaces(argv[1]));
    for (std::int16_t slot = 1;; ++slot) {
        const std::string player = "Player" + std::to_string(slot);
        if (!std::filesystem::exists(ScorePath(engine.data(), player))) break;
        engine.data().SetPlayer(slot, player, slot == 1);
    }
    Measure<GameStatDialog>("Game Statistics", engine);
    Measure<HighScoreDialog>("High Score", engine);
    Measure<LogDialog>("Log Statistics", engine);
    return 0;
}
