#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "engine/desktop.h"
#include "engine/scores/score_load.h"

namespace varnello {

/// The report over all games as a file. It holds all that it needs, so that it may be written on
/// any thread.
struct StatExport {
    std::filesystem::path Target;
    std::vector<ScoreFile> Files;  ///< of all players, in slot order
    std::string CreatedBy;
    DateTime Now;
    const DateForms& Dates;
    std::vector<std::filesystem::path> Unread = {};  ///< set by `Run`, see `LoadedScores`

    /// Writes the report beside the target and puts it there when it is whole. False when that
    /// can't be done or was stopped; then nothing has changed.
    bool Run(Progress& progress);
    /// What `Run` will count.
    std::int64_t Whole() const;
};

/// Writes the report: UTF-8 in columns of 14 characters, each line ended by CR LF. `progress`
/// counts up by `count` in all, and stops it.
void WriteStat(std::ostream& out, const StatExport& head, const ScoreList& list, Progress& progress,
               std::int64_t count);

}  // namespace varnello
