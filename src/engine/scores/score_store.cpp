#include "engine/scores/score_store.h"

#include <algorithm>
#include <future>
#include <limits>
#include <numeric>
#include <system_error>

#include "engine/common/text_file.h"

namespace varnello {
namespace {

constexpr std::size_t kMaxSesGames = std::numeric_limits<std::int16_t>::max();
constexpr std::uintmax_t kShortLine = 40;            // bytes; few lines are shorter
constexpr std::uintmax_t kMostReserved = 4'000'000;  // records, whatever a file's size promises

struct FileScores {
    ScoreList list;
    std::filesystem::path unread;  ///< the file when it can't be read, or not to its end
};

FileScores ReadScores(const std::filesystem::path& file, const std::string& player) {
    FileScores scores;
    ScoreList& list = scores.list;
    std::error_code none;
    const std::uintmax_t bytes = std::filesystem::file_size(file, none);
    if (!none) list.Reserve(static_cast<std::size_t>(std::min(bytes / kShortLine, kMostReserved)));
    const std::uint16_t number = list.AddPlayer(player);
    const bool whole = ForEachLine(file, [&](std::string_view line) {
        if (const auto fields = ReadScoreLine(line)) list.Add(*fields, number);
    });
    if (!whole) scores.unread = file;
    return scores;
}

}  // namespace

cScore::cScore(cData& data, const Clock& clock, const DateForms& dates, const Disk& disk)
    : data_(data), clock_(clock), dates_(dates), disk_(disk) {}

ScoreRecord cScore::CurrentGame(Outcome outcome) const {
    return {.Date = {},
            .Game = data_.CurGName(),
            .GameNo = data_.CurGNo,
            .Time = data_.CurTime,
            .Moves = data_.CurMoves,
            .Score = data_.CurScore,
            .Status = static_cast<std::int16_t>(outcome),
            .Player = data_.CurPlayer()};
}

bool cScore::AddScore(Outcome outcome) {
    ScoreRecord record = CurrentGame(outcome);
    record.Date = DateText(clock_.Now());
    const KeptLine result{record.Player, ScoreLine(record)};
    WriteKept();
    if (Write(result)) return true;
    kept_.push_back(result);
    return false;
}

bool cScore::Write(const KeptLine& result) const {
    const std::filesystem::path file = ScorePath(data_, result.player);
    std::error_code ignored;  // what is missing shows when the file is written
    std::filesystem::create_directories(data_.AppDir(), ignored);
    if (!AppendLine(file, result.line)) return false;
    disk_.Flush(file);
    return true;
}

void cScore::WriteKept() {
    std::erase_if(kept_, [this](const KeptLine& kept) { return Write(kept); });
}

void cScore::RenameKept(std::string_view oldName, std::string_view newName) {
    for (KeptLine& kept : kept_) {
        if (kept.player == oldName) kept.player = newName;
    }
}

void cScore::DropKept(std::string_view player) {
    std::erase_if(kept_, [&](const KeptLine& kept) { return kept.player == player; });
}

void cScore::AddSesGame(Outcome outcome) {
    if (sesList_.size() < kMaxSesGames) sesList_.push_back(CurrentGame(outcome));
}

void cScore::OpenScore(const std::string& Player) {
    sums_.reset();
    const FileScores scores = ReadScores(ScorePath(data_, Player), Player);
    list_.Append(scores.list);
    if (!scores.unread.empty()) unread_.push_back(scores.unread);
}

void cScore::OpenAllScore() {
    CloseScore();
    std::vector<std::future<FileScores>> files;
    for (std::int16_t slot = 1; slot <= data_.TotalPlayers(); ++slot) {
        const std::string player = data_.GetPlayer(slot);
        files.push_back(std::async(ReadScores, ScorePath(data_, player), player));
    }
    std::vector<FileScores> all;
    all.reserve(files.size());
    for (auto& file : files) all.push_back(file.get());
    list_.Reserve(std::accumulate(
        all.begin(), all.end(), std::size_t{0},
        [](auto sum, const FileScores& scores) { return sum + scores.list.Size(); }));
    for (const FileScores& scores : all) {
        list_.Append(scores.list);
        if (!scores.unread.empty()) unread_.push_back(scores.unread);
    }
}

void cScore::CloseScore() {
    list_.Clear();
    unread_.clear();
    sums_.reset();
    topList_ = {};
}

const ScoreSums& cScore::Sums() const {
    if (!sums_) sums_.emplace(list_);
    return *sums_;
}

ScoreSummary cScore::GameSummary(std::string_view Game) const {
    const auto id = list_.Games().Find(Game);
    return id ? Sums().byGame[*id].summary : ScoreSummary{};
}

ScoreSummary cScore::PlayerSummary(std::string_view Player) const {
    const auto id = list_.Players().Find(Player);
    return id ? Sums().byPlayer[*id] : ScoreSummary{};
}

ScoreRecord cScore::GetGameScore(std::string_view Game, std::int32_t N) const {
    const auto id = list_.Games().Find(Game);
    if (!id) return {};
    const auto& positions = Sums().byGame[*id].positions;
    const auto index = static_cast<std::size_t>(N - 1);
    return index < positions.size() ? list_.Record(positions[index]) : ScoreRecord{};
}

ScoreSummary cScore::SesSummary() const {
    ScoreSummary summary;
    for (const ScoreRecord& record : sesList_) summary.Add(record);
    return summary;
}

}  // namespace varnello
