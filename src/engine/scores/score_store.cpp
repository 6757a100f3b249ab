#include "engine/scores/score_store.h"

#include <algorithm>
#include <limits>
#include <system_error>

#include "engine/common/text_file.h"

namespace varnello {
namespace {

constexpr std::size_t kMaxSesGames = std::numeric_limits<std::int16_t>::max();

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
    if (SesList_.size() < kMaxSesGames) SesList_.push_back(CurrentGame(outcome));
}

void cScore::OpenScore(const std::string& Player) {
    sums_.reset();
    Progress unseen;
    const LoadedScores loaded = LoadScores({{ScorePath(data_, Player), Player}}, unseen);
    list_.Append({&loaded.List, 1});
    unread_.insert(unread_.end(), loaded.Unread.begin(), loaded.Unread.end());
}

std::vector<ScoreFile> cScore::Files() const {
    std::vector<ScoreFile> files;
    for (std::int16_t slot = 1; slot <= data_.TotalPlayers(); ++slot) {
        const std::string player = data_.GetPlayer(slot);
        files.push_back({ScorePath(data_, player), player});
    }
    return files;
}

void cScore::OpenAllScore() {
    Progress unseen;
    Take(LoadScores(Files(), unseen));
}

void cScore::Take(LoadedScores loaded) {
    CloseScore();
    list_ = std::move(loaded.List);
    unread_ = std::move(loaded.Unread);
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
    return id ? Sums().byGame[*id] : ScoreSummary{};
}

ScoreSummary cScore::PlayerSummary(std::string_view Player) const {
    const auto id = list_.Players().Find(Player);
    return id ? Sums().byPlayer[*id].summary : ScoreSummary{};
}

Streak cScore::PlayerStreak(std::string_view player) const {
    const auto id = list_.Players().Find(player);
    return id ? Sums().byPlayer[*id].streak : Streak{};
}

Streak cScore::PlayerStreak(std::string_view player, std::string_view game) const {
    const auto id = list_.Players().Find(player);
    const auto gameId = list_.Games().Find(game);
    if (!id || !gameId) return {};
    const auto& byGame = Sums().byPlayer[*id].byGame;
    return *gameId < byGame.size() ? byGame[*gameId] : Streak{};
}

ScoreRecord cScore::GetGameScore(std::string_view Game, std::int32_t N) const {
    const auto positions = FirstOf(Game, static_cast<std::size_t>(std::max(N, 0)));
    const auto index = static_cast<std::size_t>(N - 1);
    return index < positions.size() ? list_.Record(positions[index]) : ScoreRecord{};
}

std::vector<std::uint32_t> cScore::FirstOf(std::string_view game, std::size_t most) const {
    std::vector<std::uint32_t> positions;
    const auto id = list_.Games().Find(game);
    if (!id) return positions;
    most = std::min(most, static_cast<std::size_t>(Sums().byGame[*id].Played));
    for (std::uint32_t position = 0; positions.size() < most; ++position) {
        if (list_.At(position).Game == *id) positions.push_back(position);
    }
    return positions;
}

ScoreSummary cScore::SesSummary() const {
    ScoreSummary summary;
    for (const ScoreRecord& record : SesList_) summary.Add(record);
    return summary;
}

}  // namespace varnello
