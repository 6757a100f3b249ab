#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/common/calendar.h"
#include "engine/scores/record.h"
#include "engine/scores/text_pool.h"

namespace varnello {

/// One finished game in 40 bytes: texts that thousands of games share are numbers here. What the
/// file held can be told again exactly.
struct CompactScore {
    enum class Form : std::uint8_t { Digits, QuotedDigits, Text };

    std::int64_t Date;    ///< seconds since 1970; the text's number when not `Dated`
    std::int64_t Number;  ///< the game number; its text's number with `Form::Text`
    std::int32_t Time;    ///< seconds
    std::int32_t Moves;
    std::int32_t Score;
    TextPool::Id Game;
    std::uint16_t Player;
    std::int16_t Status;
    bool Dated;
    Form NumberForm;
};

/// Reads dates that follow one another, as in a file of results: many games on one day.
class DateSequence {
public:
    /// Seconds since 1970; empty when the text has another form than `DateText` or names no date.
    std::optional<std::int64_t> Read(std::string_view text);

private:
    std::string day_;  ///< the date of the last text, with the blank behind it
    std::int64_t midnight_ = 0;
};

/// The games of one or all players in memory, in the order in which they were added.
class ScoreList {
public:
    /// The number that stands for a player in `Add`.
    std::uint16_t AddPlayer(std::string_view name);
    void Add(const ScoreFields& fields, std::uint16_t player);
    /// Adds all games of other lists behind those of this one.
    void Append(std::span<const ScoreList> lists);
    void Clear() { *this = {}; }
    /// Makes room for so many records in all.
    void Reserve(std::size_t records) { scores_.reserve(records); }

    std::size_t Size() const { return scores_.size(); }
    bool Empty() const { return scores_.empty(); }

    /// Positions count from 0.
    const CompactScore& At(std::size_t position) const { return scores_[position]; }
    std::span<const CompactScore> All() const { return scores_; }
    ScoreRecord Record(std::size_t position) const;
    /// The moment a game ended; empty when its date has another form or names no date.
    static std::optional<DateTime> DateOf(const CompactScore& score);
    std::string DateTextOf(const CompactScore& score) const;
    GameNumber NumberOf(const CompactScore& score) const;
    const std::string& GameOf(const CompactScore& score) const { return games_.Text(score.Game); }
    const std::string& PlayerOf(const CompactScore& score) const {
        return players_.Text(score.Player);
    }

    /// The texts behind `CompactScore::Game` and `CompactScore::Player`.
    const TextPool& Games() const { return games_; }
    const TextPool& Players() const { return players_; }

private:
    /// Leaves new records as the memory was: they are written over at once.
    struct Unwritten : std::allocator<CompactScore> {
        template <typename>
        struct rebind {
            using other = Unwritten;
        };
        template <typename Record>
        void construct(Record*) {}
        template <typename Record, typename... From>
        void construct(Record* at, From&&... from) {
            std::construct_at(at, std::forward<From>(from)...);
        }
    };

    std::vector<CompactScore, Unwritten> scores_;
    DateSequence dates_;
    TextPool games_;
    TextPool players_;
    TextPool oddTexts_;  // dates and numbers of an unusual form
};

}  // namespace varnello
