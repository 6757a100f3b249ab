#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "engine/desktop.h"
#include "engine/scores/score_list.h"

namespace varnello {

enum class Interval : std::uint8_t { Day, Month, Year };

/// The games of one period.
struct PeriodSummary : ScoreSummary {
    std::string Label;  ///< "Nov 18", "Nov 26" or "2026" for a day, a month or a year
};

/// How many calendar days, months or years lie between a fixed past and the moment: two moments of
/// the same period have the same number, the next period the next one.
std::int64_t PeriodNumber(const DateTime& moment, Interval interval);

/// One summary for each date, over the games of the period that holds it. No two dates may name
/// the same period. Games whose date can't be read belong to none.
std::vector<PeriodSummary> Periods(const ScoreList& list, const std::vector<DateTime>& dates,
                                   Interval interval, const DateForms& forms);

}  // namespace varnello
