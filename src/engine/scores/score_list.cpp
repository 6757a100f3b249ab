#include "engine/scores/score_list.h"

#include <future>

#include "engine/common/number_text.h"

namespace varnello {
namespace {

constexpr std::size_t kMaxDigits = 18;  // what surely fits 64 bits

/// Digits that read back as they stand: no leading zeros.
std::optional<std::int64_t> PlainDigits(std::string_view text) {
    const bool padded = text.size() > 1 && text[0] == '0';
    if (padded || !IsAllDigits(text) || text.size() > kMaxDigits) return std::nullopt;
    return ParseWhole<std::int64_t>(text);
}

}  // namespace

std::optional<std::int64_t> DateSequence::Read(std::string_view text) {
    if (!day_.empty() && text.starts_with(day_)) {
        if (const auto time = ParseTimeText(text.substr(day_.size()))) return midnight_ + *time;
        return std::nullopt;
    }
    const auto moment = ParseDateText(text);
    if (!moment) return std::nullopt;
    day_ = text.substr(0, text.find(' ') + 1);
    midnight_ = SecondsSinceEpoch({moment->year, moment->month, moment->day});
    return SecondsSinceEpoch(*moment);
}

std::uint16_t ScoreList::AddPlayer(std::string_view name) {
    return static_cast<std::uint16_t>(players_.Keep(name));
}

void ScoreList::Add(const ScoreFields& fields, std::uint16_t player) {
    using Form = CompactScore::Form;
    CompactScore score{};
    if (const auto moment = dates_.Read(fields.Date)) {
        score.Dated = true;
        score.Date = *moment;
    } else {
        score.Date = oddTexts_.Keep(fields.Date);
    }
    if (!fields.GameNo.Quoted) {
        score.Number = fields.GameNo.Digits;
    } else if (const auto digits = PlainDigits(fields.GameNo.Text)) {
        score.NumberForm = Form::QuotedDigits;
        score.Number = *digits;
    } else {
        score.NumberForm = Form::Text;
        score.Number = oddTexts_.Keep(fields.GameNo.Text);
    }
    score.Time = fields.Time;
    score.Moves = fields.Moves;
    score.Score = fields.Score;
    score.Status = fields.Status;
    score.Game = games_.Keep(fields.Game);
    score.Player = player;
    scores_.push_back(score);
}

void ScoreList::Append(std::span<const ScoreList> lists) {
    std::size_t end = scores_.size();
    for (const ScoreList& list : lists) end += list.Size();
    std::size_t at = scores_.size();
    scores_.resize(end);
    std::vector<std::future<void>> copies;
    for (const ScoreList& list : lists) {
        copies.push_back(std::async(
            [&list, games = games_.KeepAll(list.games_), players = players_.KeepAll(list.players_),
             oddTexts = oddTexts_.KeepAll(list.oddTexts_), to = scores_.data() + at]() mutable {
                for (CompactScore score : list.scores_) {
                    score.Game = games[score.Game];
                    score.Player = static_cast<std::uint16_t>(players[score.Player]);
                    if (!score.Dated) score.Date = oddTexts[static_cast<std::size_t>(score.Date)];
                    if (score.NumberForm == CompactScore::Form::Text) {
                        score.Number = oddTexts[static_cast<std::size_t>(score.Number)];
                    }
                    *to++ = score;
                }
            }));
        at += list.Size();
    }
    for (auto& copy : copies) copy.get();
}

ScoreRecord ScoreList::Record(std::size_t position) const {
    const CompactScore& score = At(position);
    return {.Date = DateTextOf(score),
            .Game = GameOf(score),
            .GameNo = NumberOf(score),
            .Time = score.Time,
            .Moves = score.Moves,
            .Score = score.Score,
            .Status = score.Status,
            .Player = PlayerOf(score)};
}

std::optional<DateTime> ScoreList::DateOf(const CompactScore& score) {
    if (!score.Dated) return std::nullopt;
    return FromSecondsSinceEpoch(score.Date);
}

std::string ScoreList::DateTextOf(const CompactScore& score) const {
    if (const auto moment = DateOf(score)) return DateText(*moment);
    return oddTexts_.Text(static_cast<TextPool::Id>(score.Date));
}

GameNumber ScoreList::NumberOf(const CompactScore& score) const {
    switch (score.NumberForm) {
        case CompactScore::Form::Digits:
            return GameNumber::Number(static_cast<double>(score.Number));
        case CompactScore::Form::QuotedDigits:
            return GameNumber::Text(std::to_string(score.Number));
        case CompactScore::Form::Text: break;
    }
    return GameNumber::Text(oddTexts_.Text(static_cast<TextPool::Id>(score.Number)));
}

}  // namespace varnello
