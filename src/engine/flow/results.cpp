#include "engine/flow/results.h"

#include <system_error>

#include "engine/common/text_file.h"

namespace varnello {
namespace {

void AddLine(std::string& lines, const std::filesystem::path& file) {
    if (!lines.empty()) lines += '\n';
    lines += PathText(file);
}

}  // namespace

void Results::ClearStat() {
    std::string stay;
    for (std::int16_t slot = 1; slot <= data_.TotalPlayers(); ++slot) {
        const std::filesystem::path file = ScorePath(data_, data_.GetPlayer(slot));
        std::error_code error;
        std::filesystem::remove(file, error);
        if (error) AddLine(stay, file);
    }
    if (!stay.empty()) {
        messages_.Refuse(
            Say("These files could not be removed, and their results stay:\n%1", {stay}));
        return;
    }
    messages_.Inform(Say("Statistics, High Score and Log have been Cleared."));
}

void Results::OpenScores(LoadedScores loaded) {
    score_.Take(std::move(loaded));
    TellUnread(score_.Unread());
}

void Results::TellUnread(const std::vector<std::filesystem::path>& unread) {
    std::string files;
    for (const std::filesystem::path& file : unread) {
        if (toldUnread_.insert(file).second) AddLine(files, file);
    }
    if (files.empty()) return;
    messages_.Warn(
        Say("These files of results can't be read, and their games are missing:\n%1", {files}));
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
    messages_.Inform(Say("Statistics Successfully Exported to %1", {file.Name}));
}

void Results::ExportStat(const ChosenFile& file) {
    StatExport report = PrepareExport(file);
    Progress unseen;
    if (report.Run(unseen)) TellExport(file, report);
    score_.CloseScore();
}

}  // namespace varnello
