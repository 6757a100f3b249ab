#include "engine/reports/log_report.h"

#include <algorithm>
#include <limits>

#include "engine/common/calendar.h"

namespace varnello {
namespace {

using namespace columns;
constexpr RecordColumn kColumns[] = {
    Number, Player, Game,
    Score,  Time,   Moves,
    Status, Date,   {RecordField::GameNo, say::Text("Game Number")}};

template <int Days>
bool DaysAtMost(std::int64_t days, std::int64_t /*months*/) {
    return days >= 0 && days <= Days;
}

template <int Months>
bool MonthsAtMost(std::int64_t days, std::int64_t months) {
    return days >= 0 && months <= Months;
}

constexpr AgeChoice kAges[] = {
    {say::Text("Show Today"), "t", DaysAtMost<0>},
    {say::Text("Last 3 Days"), "3d", DaysAtMost<3>},
    {say::Text("Last 7 Days"), "7d", DaysAtMost<7>},
    {say::Text("Last 30 Days"), "30d", DaysAtMost<30>},
    {say::Text("Last 3 Months"), "3m", MonthsAtMost<3>},
    {say::Text("Last 5 Months"), "5m", MonthsAtMost<5>},
    {say::Text("Show All"), "all", nullptr},
};

}  // namespace

const RecordColumns kLogColumns = kColumns;

std::span<const AgeChoice> AgeChoices() { return kAges; }

std::vector<std::uint32_t> LogPositions(const ScoreList& list, const LogFilter& filter,
                                        const DateTime& now) {
    std::vector<std::uint32_t> positions;
    const auto player = list.Players().Find(filter.Player);
    const auto game = list.Games().Find(filter.Game);
    if ((!filter.Player.empty() && !player) || (!filter.Game.empty() && !game)) return positions;
    const std::int64_t today = DayNumber(now);
    const std::int64_t month = MonthNumber(now);
    const auto young = [&](const CompactScore& score) {
        if (!filter.Age->Passes) return true;
        const auto moment = ScoreList::DateOf(score);
        return moment &&
               filter.Age->Passes(today - DayNumber(*moment), month - MonthNumber(*moment));
    };
    positions.reserve(filter.Player.empty() && filter.Game.empty() ? list.Size() : 0);
    for (std::size_t position = 0; position < list.Size(); ++position) {
        const CompactScore& score = list.At(position);
        if (!filter.Player.empty() && score.Player != *player) continue;
        if (!filter.Game.empty() && score.Game != *game) continue;
        if (young(score)) positions.push_back(static_cast<std::uint32_t>(position));
    }
    return positions;
}

LogTotals TotalsOf(const ScoreList& list, std::span<const std::uint32_t> positions) {
    LogTotals totals;
    if (!positions.empty()) totals.BestScore = list.At(positions.front()).Score;
    for (const std::uint32_t position : positions) {
        const CompactScore& score = list.At(position);
        totals.Sum.Add(score);
        totals.BestScore = std::max(totals.BestScore, score.Score);
    }
    return totals;
}

std::optional<std::uint32_t> NewestOf(const ScoreList& list) {
    std::optional<std::uint32_t> newest;
    std::int64_t date = std::numeric_limits<std::int64_t>::min();
    for (std::uint32_t position = 0; position < list.Size(); ++position) {
        const CompactScore& score = list.At(position);
        if (!score.Dated || score.Date < date) continue;
        date = score.Date;
        newest = position;
    }
    return newest;
}

}  // namespace varnello
