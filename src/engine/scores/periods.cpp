#include "engine/scores/periods.h"

#include <algorithm>
#include <limits>
#include <unordered_map>

namespace varnello {
namespace {

std::string LabelOf(const DateTime& moment, Interval interval, const DateForms& forms) {
    switch (interval) {
        case Interval::Day: return forms.DayOfYear(moment);
        case Interval::Month: return forms.MonthOfYear(moment);
        case Interval::Year: break;
    }
    return forms.Year(moment);
}

}  // namespace

std::int64_t PeriodNumber(const DateTime& moment, Interval interval) {
    switch (interval) {
        case Interval::Day: return DayNumber(moment);
        case Interval::Month: return MonthNumber(moment);
        case Interval::Year: break;
    }
    return moment.year;
}

std::vector<PeriodSummary> Periods(const ScoreList& list, const std::vector<DateTime>& dates,
                                   Interval interval, const DateForms& forms) {
    std::vector<PeriodSummary> periods(dates.size());
    std::unordered_map<std::int64_t, PeriodSummary*> byNumber;
    constexpr std::int64_t kDay = 86400;
    constexpr std::int64_t kLongest = 366 * kDay;  // seconds of a period
    std::int64_t earliest = std::numeric_limits<std::int64_t>::max();
    std::int64_t latest = std::numeric_limits<std::int64_t>::min();
    for (std::size_t i = 0; i < dates.size(); ++i) {
        periods[i].Label = LabelOf(dates[i], interval, forms);
        byNumber.emplace(PeriodNumber(dates[i], interval), &periods[i]);
        const std::int64_t longest = interval == Interval::Day ? kDay : kLongest;
        earliest = std::min(earliest, SecondsSinceEpoch(dates[i]) - longest);
        latest = std::max(latest, SecondsSinceEpoch(dates[i]) + longest);
    }
    // Most games lie outside all of them, or on the day of the game before.
    std::int64_t day = std::numeric_limits<std::int64_t>::min();
    PeriodSummary* ofDay = nullptr;
    for (const CompactScore& score : list.All()) {
        if (!score.Dated || score.Date < earliest || score.Date > latest) continue;
        if (score.Date < day || score.Date >= day + kDay) {
            const DateTime moment = FromSecondsSinceEpoch(score.Date);
            day = DayNumber(moment) * kDay;
            const auto period = byNumber.find(PeriodNumber(moment, interval));
            ofDay = period == byNumber.end() ? nullptr : period->second;
        }
        if (ofDay) ofDay->Add(score);
    }
    return periods;
}

}  // namespace varnello
