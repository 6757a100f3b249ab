#include "engine/scores/periods.h"

#include <unordered_map>

#include "engine/common/number_text.h"

namespace varnello {
namespace {

std::string LabelOf(const DateTime& moment, Interval interval, const DateForms& forms) {
    switch (interval) {
        case Interval::Day: return forms.Month(moment.month) + ' ' + TwoDigits(moment.day);
        case Interval::Month: return forms.Month(moment.month) + ' ' + TwoDigits(moment.year % 100);
        case Interval::Year: break;
    }
    return std::to_string(moment.year);
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
    for (std::size_t i = 0; i < dates.size(); ++i) {
        periods[i].Label = LabelOf(dates[i], interval, forms);
        byNumber.emplace(PeriodNumber(dates[i], interval), &periods[i]);
    }
    for (std::size_t position = 0; position < list.Size(); ++position) {
        const CompactScore& score = list.At(position);
        const auto moment = ScoreList::DateOf(score);
        if (!moment) continue;
        const auto period = byNumber.find(PeriodNumber(*moment, interval));
        if (period != byNumber.end()) period->second->Add(score);
    }
    return periods;
}

}  // namespace varnello
