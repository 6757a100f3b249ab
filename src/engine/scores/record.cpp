#include "engine/scores/record.h"

#include "engine/common/csv.h"
#include "engine/common/number_text.h"
#include "engine/common/rounding.h"

namespace varnello {
namespace {

/// A bare whole number as files hold it: an optional minus and digits.
template <typename Integer>
std::optional<Integer> ParseFileNumber(std::string_view text) {
    return text.starts_with('+') ? std::nullopt : ParseWhole<Integer>(text);
}

}  // namespace

std::optional<GameNumber> ReadGameNumber(const Field& field) {
    if (field.quoted) return GameNumber::Text(std::string(field.text));
    return GameNumber::ParseBare(field.text);
}

void ScoreSummary::Add(const ScoreRecord& record) {
    const auto sum = [](std::int32_t& total, std::int64_t value) {
        total = Saturate32(total + value);
    };
    sum(Played, 1);
    if (record.Status == 1) sum(Won, 1);
    Lost = Played - Won;
    sum(Score, record.Score);
    sum(Moves, record.Moves);
    sum(Time, record.Time);
}

std::string ScoreLine(const ScoreRecord& record) {
    return QuotedField(record.Date) + ',' + QuotedField(record.Game) + ',' + record.GameNo.Field() +
           ',' + std::to_string(record.Time) + ',' + std::to_string(record.Moves) + ',' +
           std::to_string(record.Score) + ',' + std::to_string(record.Status);
}

std::optional<ScoreRecord> ParseScoreLine(std::string_view line) {
    const auto fields = SplitFields(line);
    if (!fields || fields->size() != 7) return std::nullopt;
    const auto& f = *fields;
    for (std::size_t i = 0; i < 7; ++i) {
        const bool mayBeQuoted = i <= 2;
        const bool mustBeQuoted = i <= 1;
        if (f[i].quoted ? !mayBeQuoted : mustBeQuoted) return std::nullopt;
    }
    const auto number = ReadGameNumber(f[2]);
    const auto time = ParseFileNumber<std::int32_t>(f[3].text);
    const auto moves = ParseFileNumber<std::int32_t>(f[4].text);
    const auto score = ParseFileNumber<std::int32_t>(f[5].text);
    const auto status = ParseFileNumber<std::int16_t>(f[6].text);
    if (!number || !time || !moves || !score || !status) return std::nullopt;
    return ScoreRecord{.Date = std::string(f[0].text),
                       .Game = std::string(f[1].text),
                       .GameNo = *number,
                       .Time = *time,
                       .Moves = *moves,
                       .Score = *score,
                       .Status = *status,
                       .Player = {}};
}

}  // namespace varnello
