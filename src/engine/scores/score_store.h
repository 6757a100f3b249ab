#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "engine/desktop.h"
#include "engine/scores/periods.h"
#include "engine/scores/score_list.h"
#include "engine/scores/score_load.h"
#include "engine/scores/sums.h"
#include "engine/settings/data.h"

namespace varnello {

inline constexpr std::int16_t kTopPlaces = 20;

/// How a game ended: the status of its record.
enum class Outcome : std::int16_t { NotWon = 0, Won = 1 };

/// What won games are ranked by.
enum class FinKey { Time, Moves };

/// The finished games: files on disk, one a player, and the list of this run. A report opens the
/// files into one list in memory, asks, and closes it; nothing derived from them is stored.
class cScore {
public:
    cScore(cData& data, const Clock& clock, const DateForms& dates, const Disk& disk);

    /// Appends the current game to the current player's file. False when it can't be written; then
    /// it is kept, and tried again with the next one.
    bool AddScore(Outcome outcome);
    /// Tries what couldn't be written.
    void WriteKept();
    /// A player's kept results go along with the name, or with the player.
    void RenameKept(std::string_view oldName, std::string_view newName);
    void DropKept(std::string_view player);
    /// Adds the current game to the list of this run.
    void AddSesGame(Outcome outcome);

    /// Appends the player's games to the list; damaged lines are skipped.
    void OpenScore(const std::string& Player);
    /// Opens all listed players' games afresh, player after player in slot order.
    void OpenAllScore();
    /// The files that `OpenAllScore` reads.
    std::vector<ScoreFile> Files() const;
    /// Opens what was loaded elsewhere.
    void Take(LoadedScores loaded);
    void CloseScore();
    /// The files of the open list that can't be read, or not to their end.
    const std::vector<std::filesystem::path>& Unread() const { return unread_; }
    std::int32_t ScoreTop() const { return static_cast<std::int32_t>(list_.Size()); }
    /// A copy of a record of the open list, 1 to `ScoreTop`.
    ScoreRecord GetScore(std::int32_t Index) const {
        return list_.Record(static_cast<std::size_t>(Index - 1));
    }
    /// The `N`-th record of a game, from 1; an empty record when there are fewer.
    ScoreRecord GetGameScore(std::string_view Game, std::int32_t N) const;
    /// The positions of a game's first records in the open list, from 0, `most` at most.
    std::vector<std::uint32_t> FirstOf(std::string_view game, std::size_t most) const;
    const ScoreList& List() const { return list_; }

    /// Games and players are compared exactly; what has no games has zeros.
    ScoreSummary AllSummary() const { return Sums().all; }
    ScoreSummary GameSummary(std::string_view Game) const;
    ScoreSummary PlayerSummary(std::string_view Player) const;
    /// The wins in a row of a player, and in one game, in the order of the file.
    Streak PlayerStreak(std::string_view player) const;
    Streak PlayerStreak(std::string_view player, std::string_view game) const;
    /// The games of the calendar day, month or year that holds `Date`.
    varnello::PeriodSummary PeriodSummary(const DateTime& Date, Interval interval) const {
        return PeriodSummaries({Date}, interval).front();
    }
    /// The same for several dates in one walk; no two may name the same period.
    std::vector<varnello::PeriodSummary> PeriodSummaries(const std::vector<DateTime>& dates,
                                                         Interval interval) const {
        return Periods(list_, dates, interval, dates_);
    }

    /// Ranks by score, highest first, later records ahead of equal ones. Scores of 0 and below
    /// take no part; an empty text means all games or players; `NonZeroStatus` 1 leaves out games
    /// with status 0.
    void Sort(std::string_view Game, std::string_view Player, std::int16_t NonZeroStatus);
    /// Ranks won games, smallest first.
    void FinSort(FinKey by);
    /// A copy of a place of the ranking, 1 to 20; places not taken hold an empty record.
    ScoreRecord GetTopScore(std::int16_t Index) const;
    /// Where that record stands in the open list, from 0. The place is taken.
    std::uint32_t TopPosition(std::int16_t Index) const {
        return topList_.at(static_cast<std::size_t>(Index)) - 1;
    }

    std::int16_t SesTop() const { return static_cast<std::int16_t>(SesList_.size()); }
    /// A game of this run, 1 to `SesTop`.
    const ScoreRecord& GetSes(std::int16_t Index) const {
        return SesList_.at(static_cast<std::size_t>(Index - 1));
    }
    ScoreSummary SesSummary() const;

    /// The game on the table or the one last on it, as it would be booked now; without a date.
    ScoreRecord CurrentGame(Outcome outcome) const;

private:
    cData& data_;
    const Clock& clock_;
    const DateForms& dates_;
    const Disk& disk_;
    /// Positions in the list, from 1; 0 stands for a place not taken. Place 0 is never taken.
    using TopList = std::array<std::uint32_t, kTopPlaces + 1>;
    void PutAt(std::size_t place, std::uint32_t position);
    /// The sums over the open list, worked out when first asked for.
    const ScoreSums& Sums() const;

    /// A result that couldn't be written yet.
    struct KeptLine {
        std::string player;
        std::string line;
    };

    bool Write(const KeptLine& result) const;

    std::vector<KeptLine> kept_;
    ScoreList list_;
    std::vector<std::filesystem::path> unread_;
    mutable std::optional<ScoreSums> sums_;
    TopList topList_{};
    std::vector<ScoreRecord> SesList_;
};

}  // namespace varnello
