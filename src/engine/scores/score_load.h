#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "engine/common/progress.h"
#include "engine/scores/score_list.h"

namespace varnello {

/// A player's file of results.
struct ScoreFile {
    std::filesystem::path Path;
    std::string Player;
};

struct LoadedScores {
    ScoreList List;
    std::vector<std::filesystem::path> Unread;  ///< files that can't be read, or not to their end
};

/// How much `LoadScores` will count.
std::int64_t BytesOf(const std::vector<ScoreFile>& files);

/// Reads files of results, one player after the other in this order; damaged lines are skipped.
/// Touches nothing else, so that it may run on any thread. `progress` counts the bytes read; the
/// result of a stopped load means nothing.
LoadedScores LoadScores(const std::vector<ScoreFile>& files, Progress& progress);

}  // namespace varnello
