#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "engine/flow/engine.h"
#include "engine/null_desktop.h"
#include "engine/reports/export.h"
#include "engine/reports/high_scores.h"
#include "engine/reports/log_report.h"
#include "engine/reports/statistics.h"

// varnello-reports-bench FOLDER: what the reports' figures cost over the score files there, each
// the median of some rounds. See reports.sh.
using namespace varnello;

namespace {

class PresentClock : public StillClock {
public:
    DateTime Now() const override { return {.month = 11, .day = 23, .hour = 20}; }
};

double MedianMilliseconds(const std::function<void()>& work) {
    std::vector<double> times;
    for (int round = 0; round < 7; ++round) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        times.push_back(time.count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

/// Resident memory of this process in bytes.
double Resident() {
    std::ifstream statm("/proc/self/statm");
    double pages = 0;
    statm >> pages >> pages;
    return pages * 4096;
}

void Report(const char* what, const std::function<void()>& work) {
    std::printf("%-32s %9.2f ms\n", what, MedianMilliseconds(work));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: varnello-reports-bench FOLDER\n", stderr);
        return 2;
    }
    NullDesktop nothing;
    PresentClock clock;
    Engine engine(Desktop{nothing.settings, clock, nothing.surface, nothing.sounds,
                          nothing.messages, argv[1]});
    cData& data = engine.data();
    for (std::int16_t slot = 1;
         std::filesystem::exists(ScorePath(data, "Player" + std::to_string(slot))); ++slot) {
        data.SetPlayer(slot, "Player" + std::to_string(slot), slot == 1);
    }
    cScore& score = engine.score();
    const DateForms& dates = engine.dates();

    const double before = Resident();
    score.OpenAllScore();
    std::printf("%d records, %.0f bytes of memory each\n", score.ScoreTop(),
                (Resident() - before) / std::max(score.ScoreTop(), 1));
    Report("OpenAllScore", [&] { score.OpenAllScore(); });
    Report("all sums", [&] {
        GeneralLines(score.AllSummary());
        GameRows(score, data);
        PlayerRows(score, data);
    });
    for (const PeriodChoice& choice : PeriodChoices()) {
        Report(std::string(choice.Text).c_str(), [&] { PeriodRows(score, choice, clock.Now()); });
    }
    Report("first games of one kind", [&] { FirstGames(score, "Zodiac"); });
    Report("Top Games", [&] { TopRows(score, dates); });
    Report("Game-wise", [&] { TopRowsOfGame(score, "Zodiac", dates); });
    Report("Player-wise", [&] { TopRowsOfPlayer(score, "Player1", dates); });
    Report("Finished Games by moves", [&] { FinishedRows(score, FinishedBy::Moves, dates); });
    Report("log, all", [&] { LogPositions(score.List(), {}, clock.Now()); });
    Report("log, last 5 months", [&] {
        LogPositions(score.List(), {.Player = {}, .Game = {}, .Age = &AgeChoices()[5]},
                     clock.Now());
    });
    Report("export", [&] {
        std::ostringstream out;
        Progress unseen;
        WriteStat(out, engine.results().PrepareExport({}), score.List(), unseen, 0);
    });
    return 0;
}
