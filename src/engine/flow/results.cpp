#include <fstream>
#include <system_error>

#include "engine/flow/engine.h"
#include "engine/reports/export.h"

// What is done with all results together.
namespace varnello {

void Engine::ClearStat() {
    if (!desktop_.dialogs.Ask("Are you sure you want to clear the Statistics, High Score and Log "
                              "for all Players and all Games ?")) {
        return;
    }
    for (std::int16_t slot = 1; slot <= data.TotalPlayers(); ++slot) {
        std::error_code ignored;
        std::filesystem::remove(ScorePath(data, data.GetPlayer(slot)), ignored);
    }
    desktop_.dialogs.Inform("Statistics, High Score and Log have been Cleared.");
}

void Engine::ExportStat() {
    const auto chosen = desktop_.dialogs.AskForTextFile("Scoreboard");
    if (!chosen || chosen->Path.empty()) return;
    score.OpenAllScore();
    std::ofstream out(chosen->Path, std::ios::binary);
    WriteStat(out, score, data, Now(), dates());
    out.close();
    score.CloseScore();
    if (!out) return;
    desktop_.dialogs.Inform("Statistics Successfully Exported to " + chosen->Name);
}

}  // namespace varnello
