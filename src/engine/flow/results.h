#pragma once

#include <filesystem>
#include <set>
#include <string_view>

#include "engine/desktop.h"
#include "engine/reports/export.h"
#include "engine/scores/score_store.h"

namespace varnello {

/// To be asked before the results are cleared.
inline constexpr std::string_view kClearStatQuestion = say::Text(
    "Are you sure you want to clear the Statistics, High Score and Log for all Players "
    "and all Games ?");

/// What is done with all results together.
class Results {
public:
    Results(cData& data, cScore& score, const Desktop& desktop)
        : data_(data),
          score_(score),
          clock_(desktop.clock),
          dates_(desktop.dates),
          messages_(desktop.messages) {}

    /// Deletes the score files of all listed players, and says so; the list of this run stays. To
    /// be asked before: `kClearStatQuestion`.
    void ClearStat();
    /// Opens the score list for a window with what was loaded, and tells of files that can't be
    /// read, of each once.
    void OpenScores(LoadedScores loaded);
    /// Writes the report over all results to a file, and says so. Silent when it can't be written.
    /// Closes the score list.
    void ExportStat(const ChosenFile& file);
    /// The same in two halves, for a window that has the report written meanwhile.
    StatExport PrepareExport(const ChosenFile& file) const;
    void TellExport(const ChosenFile& file, const StatExport& written);

private:
    void TellUnread(const std::vector<std::filesystem::path>& unread);

    cData& data_;
    cScore& score_;
    Clock& clock_;
    const DateForms& dates_;
    Messages& messages_;
    std::set<std::filesystem::path> toldUnread_;
};

}  // namespace varnello
