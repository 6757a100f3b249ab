#include "engine/scores/score_load.h"

#include <algorithm>
#include <future>
#include <system_error>

#include "engine/common/text_file.h"

namespace varnello {
namespace {

constexpr std::uintmax_t kShortLine = 40;            // bytes; few lines are shorter
constexpr std::uintmax_t kMostReserved = 4'000'000;  // records, whatever a file's size promises

std::uintmax_t BytesOf(const std::filesystem::path& file) {
    std::error_code none;
    const std::uintmax_t bytes = std::filesystem::file_size(file, none);
    return none ? 0 : bytes;
}

/// Whether the file could be read to its end.
bool ReadScores(const ScoreFile& file, ScoreList& list, Progress& progress) {
    list.Reserve(std::min(BytesOf(file.Path) / kShortLine, kMostReserved));
    const std::uint16_t player = list.AddPlayer(file.Player);
    const auto take = [&](std::string_view line) {
        if (const auto fields = ReadScoreLine(line)) list.Add(*fields, player);
    };
    return ForEachLine(file.Path, take, &progress);
}

}  // namespace

std::int64_t BytesOf(const std::vector<ScoreFile>& files) {
    std::int64_t bytes = 0;
    for (const ScoreFile& file : files) bytes += static_cast<std::int64_t>(BytesOf(file.Path));
    return bytes;
}

LoadedScores LoadScores(const std::vector<ScoreFile>& files, Progress& progress) {
    std::vector<ScoreList> lists(files.size());
    std::vector<std::future<bool>> readings;
    for (std::size_t i = 0; i < files.size(); ++i) {
        readings.push_back(std::async([&, i] { return ReadScores(files[i], lists[i], progress); }));
    }
    LoadedScores loaded;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (!readings[i].get()) loaded.Unread.push_back(files[i].Path);
    }
    loaded.List.Append(lists);
    return loaded;
}

}  // namespace varnello
