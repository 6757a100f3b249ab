#include "engine/flow/results.h"

#include <fstream>
#include <system_error>

#include "engine/common/text_file.h"
#include "engine/reports/export.h"

namespace varnello {

void Results::ClearStat() {
    std::string stay;
    for (std::int16_t slot = 1; slot <= data_.TotalPlayers(); ++slot) {
        const std::filesystem::path file = ScorePath(data_, data_.GetPlayer(slot));
        std::error_code error;
        std::filesystem::remove(file, error);
        if (error) stay += '\n' + PathText(file);
    }
    if (!stay.empty()) {
        messages_.Refuse("These files could not be removed, and their results stay:" + stay);
        return;
    }
    messages_.Inform("Statistics, High Score and Log have been Cleared.");
}

void Results::OpenScores() {
    score_.OpenAllScore();
    TellUnread();
}

void Results::TellUnread() {
    std::string files;
    for (const std::filesystem::path& file : score_.Unread()) {
        if (toldUnread_.insert(file).second) files += '\n' + PathText(file);
    }
    if (files.empty()) return;
    messages_.Warn("These files of results can't be read, and their games are missing:" + files);
}

void Results::ExportStat(const ChosenFile& file) {
    score_.OpenAllScore();
    std::ofstream out(file.Path, std::ios::binary);
    WriteStat(out, score_, data_, clock_.Now(), dates_);
    out.close();
    toldUnread_.clear();  // a report that others read is worth a word of its own
    TellUnread();
    score_.CloseScore();
    if (!out) return;
    messages_.Inform("Statistics Successfully Exported to " + file.Name);
}

}  // namespace varnello
