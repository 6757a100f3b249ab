#include "engine/flow/results.h"

#include <system_error>

#include "engine/common/text_file.h"

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

void Results::OpenScores(LoadedScores loaded) {
    score_.Take(std::move(loaded));
    TellUnread(score_.Unread());
}

void Results::TellUnread(const std::vector<std::filesystem::path>& unread) {
    std::string files;
    for (const std::filesystem::path& file : unread) {
        if (toldUnread_.insert(file).second) files += '\n' + PathText(file);
    }
    if (files.empty()) return;
    messages_.Warn("These files of results can't be read, and their games are missing:" + files);
}

StatExport Results::PrepareExport(const ChosenFile& file) const {
    return {.Target = file.Path,
            .Files = score_.Files(),
            .CreatedBy = data_.CurPlayer(),
            .Now = clock_.Now(),
            .Dates = dates_};
}

void Results::TellExport(const ChosenFile& file, const StatExport& written) {
    toldUnread_.clear();  // a report that others read is worth a word of its own
    TellUnread(written.Unread);
    messages_.Inform("Statistics Successfully Exported to " + file.Name);
}

void Results::ExportStat(const ChosenFile& file) {
    StatExport report = PrepareExport(file);
    Progress unseen;
    if (report.Run(unseen)) TellExport(file, report);
    score_.CloseScore();
}

}  // namespace varnello
