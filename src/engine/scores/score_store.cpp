#include "engine/scores/score_store.h"

#include <limits>

#include "engine/common/text_file.h"

namespace varnello {
namespace {

constexpr std::size_t kMaxSesGames = std::numeric_limits<std::int16_t>::max();

}  // namespace

cScore::cScore(cData& data, const Clock& clock) : data_(data), clock_(clock) {}

ScoreRecord cScore::CurrentGame(std::int16_t Status) const {
    return {.Date = {},
            .Game = data_.CurGName(),
            .GameNo = data_.CurGNo,
            .Time = data_.CurTime,
            .Moves = data_.CurMoves,
            .Score = data_.CurScore,
            .Status = Status,
            .Player = data_.CurPlayer()};
}

bool cScore::AddScore(std::int16_t Status) {
    ScoreRecord record = CurrentGame(Status);
    record.Date = DateText(clock_.Now());
    return AppendLine(ScorePath(data_, record.Player), ScoreLine(record));
}

void cScore::AddSesGame(std::int16_t Status) {
    if (sesList_.size() < kMaxSesGames) sesList_.push_back(CurrentGame(Status));
}

void cScore::OpenScore(const std::string& Player) {
    for (const std::string& line : ReadLines(ScorePath(data_, Player))) {
        if (auto record = ParseScoreLine(line)) {
            record->Player = Player;
            scoreList_.push_back(std::move(*record));
        }
    }
}

void cScore::OpenAllScore() {
    CloseScore();
    for (std::int16_t slot = 1; slot <= data_.TotalPlayers(); ++slot) {
        OpenScore(data_.GetPlayer(slot));
    }
}

ScoreSummary cScore::SesSummary() const {
    ScoreSummary summary;
    for (const ScoreRecord& record : sesList_) summary.Add(record);
    return summary;
}

}  // namespace varnello
