#include <fstream>
#include <system_error>

#include "engine/flow/engine.h"
#include "engine/reports/export.h"

// What is done with all results together.
namespace varnello {

void Engine::ClearStat() {
    for (std::int16_t slot = 1; slot <= data.TotalPlayers(); ++slot) {
        std::error_code ignored;
        std::filesystem::remove(ScorePath(data, data.GetPlayer(slot)), ignored);
    }
    desktop_.messages.Inform("Statistics, High Score and Log have been Cleared.");
}

void Engine::ExportStat(const ChosenFile& file) {
    score.OpenAllScore();
    std::ofstream out(file.Path, std::ios::binary);
    WriteStat(out, score, data, Now(), dates());
    out.close();
    score.CloseScore();
    if (!out) return;
    desktop_.messages.Inform("Statistics Successfully Exported to " + file.Name);
}

}  // namespace varnello
