#include "engine/reports/log_report.h"

#include <algorithm>
#include <limits>

#include "engine/common/calendar.h"

namespace varnello {
namespace {

using enum RecordField;
constexpr RecordField kFields[] = {Number, Player, Game, Score, Time, Moves, Status, Date, GameNo};

template <int Days>
bool DaysAtMost(std::int64_t days, std::int64_t /*months*/) {
    return days >= 0 && days <= Days;
}

template <int Months>
bool MonthsAtMost(std::int64_t days, std::int64_t months) {
    return days >= 0 && months <= Months;
}

constexpr AgeChoice kAges[] = {
    {"Show Today", "t", DaysAtMost<0>},
    {"Last 3 Days", "3d", DaysAtMost<3>},
    {"Last 7 Days", "7d", DaysAtMost<7>},
    {"Last 30 Days", "30d", DaysAtMost<30>},
    {"Last 3 Months", "3m", MonthsAtMost<3>},
    {"Last 5 Months", "5m", MonthsAtMost<5>},
    {"Show All", "all", nullptr},
};

/// Each text's place in the alphabet, by its number in the pool.
std::vector<double> Alphabet(const TextPool& pool) {
    std::vector<TextPool::Id> ids(pool.Size());
    for (TextPool::Id id = 0; id < ids.size(); ++id) ids[id] = id;
    std::sort(ids.begin(), ids.end(), [&](auto a, auto b) { return pool.Text(a) < pool.Text(b); });
    std::vector<double> places(ids.size());
    for (std::size_t place = 0; place < ids.size(); ++place) {
        places[ids[place]] = static_cast<double>(place);
    }
    return places;
}

}  // namespace

const RecordFields kLogFields = kFields;

std::vector<Column> LogColumns() {
    auto columns = ColumnsOf(kFields);
    columns.back().Title = "Game Number";
    return columns;
}

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
    for (std::size_t position = 0; position < list.Size(); ++position) {
        const CompactScore& score = list.At(position);
        if (!filter.Player.empty() && score.Player != *player) continue;
        if (!filter.Game.empty() && score.Game != *game) continue;
        if (young(score)) positions.push_back(static_cast<std::uint32_t>(position));
    }
    return positions;
}

std::function<double(std::uint32_t position)> SortValue(const ScoreList& list, RecordField field) {
    constexpr double kFirst = -std::numeric_limits<double>::infinity();
    switch (field) {
        case Number: return [](std::uint32_t position) { return static_cast<double>(position); };
        case Player:
            return [&list, places = Alphabet(list.Players())](std::uint32_t position) {
                return places[list.At(position).Player];
            };
        case Game:
            return [&list, places = Alphabet(list.Games())](std::uint32_t position) {
                return places[list.At(position).Game];
            };
        case Score: return [&](std::uint32_t position) { return list.At(position).Score; };
        case Time: return [&](std::uint32_t position) { return list.At(position).Time; };
        case Moves: return [&](std::uint32_t position) { return list.At(position).Moves; };
        case Status:  // "Lost" before "Won"
            return [&](std::uint32_t position) { return list.At(position).Status == 1; };
        case Date:
            return [&](std::uint32_t position) {
                const CompactScore& score = list.At(position);
                return score.Dated ? static_cast<double>(score.Date) : kFirst;
            };
        case GameNo: break;
    }
    return [&](std::uint32_t position) { return list.NumberOf(list.At(position)).Value(); };
}

}  // namespace varnello
