#include <fstream>
#include <system_error>

#include "engine/flow/engine.h"
#include "engine/reports/export.h"

// What is done with all results together.
namespace varnello {

void Engine::ClearStat() {
    std::string stay;
    for (std::int16_t slot = 1; slot <= data.TotalPlayers(); ++slot) {
        const std::filesystem::path file = ScorePath(data, data.GetPlayer(slot));
        std::error_code error;
        std::filesystem::remove(file, error);
        if (!error) continue;
        const auto name = file.u8string();
        stay.append("\n").append(name.begin(), name.end());
    }
    if (!stay.empty()) {
        desktop_.messages.Refuse("These files could not be removed, and their results stay:" +
                                 stay);
        return;
    }
    desktop_.messages.Inform("Statistics, High Score and Log have been Cleared.");
}

void Engine::OpenScores() {
    score.OpenAllScore();
    TellUnread();
}

void Engine::TellUnread() {
    std::string files;
    for (const std::filesystem::path& file : score.Unread()) {
        if (!toldUnread_.insert(file).second) continue;
        const auto name = file.u8string();
        files.append("\n").append(name.begin(), name.end());
    }
    if (files.empty()) return;
    desktop_.messages.Warn("These files of results can't be read, and their games are missing:" +
                           files);
}

void Engine::ClearFavorites() {
    if (!favorites.ClearFav()) {
        RefuseFile("The favorites stay, because this file could not be removed:", favorites.File());
    }
    favorites.OpenFav();
}

void Engine::ExportStat(const ChosenFile& file) {
    score.OpenAllScore();
    std::ofstream out(file.Path, std::ios::binary);
    WriteStat(out, score, data, Now(), dates());
    out.close();
    toldUnread_.clear();  // a report that others read is worth a word of its own
    TellUnread();
    score.CloseScore();
    if (!out) return;
    desktop_.messages.Inform("Statistics Successfully Exported to " + file.Name);
}

}  // namespace varnello
