#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace varnello {

/// A moment of civil time, as a wall clock shows it. No time zone.
struct DateTime {
    int year = 2026;
    int month = 1;  ///< 1 to 12
    int day = 1;    ///< 1 to the month's length
    int hour = 0;   ///< 0 to 23
    int minute = 0;
    int second = 0;

    bool operator==(const DateTime&) const = default;
};

/// Whether every field lies in its range and the day exists; years 1 to 9999.
bool IsValid(const DateTime& moment);

/// Seconds since 1970-01-01 00:00:00 of the same wall clock.
std::int64_t SecondsSinceEpoch(const DateTime& moment);
DateTime FromSecondsSinceEpoch(std::int64_t seconds);

/// Days since 1970-01-01.
std::int64_t DayNumber(const DateTime& moment);
/// Months since year 0; the difference of two counts the month boundaries between them.
std::int64_t MonthNumber(const DateTime& moment);

/// The same time of day `days`, `months` or `years` later, earlier when negative. A day that the
/// month reached doesn't have becomes its last one.
DateTime AddDays(const DateTime& moment, int days);
DateTime AddMonths(const DateTime& moment, int months);
DateTime AddYears(const DateTime& moment, int years);

/// The one form of dates in files: `M/D/YYYY h:mm:ss AM/PM`, as in "11/18/2026 12:51:26 PM".
std::string DateText(const DateTime& moment);

/// Reads the form of `DateText`; empty when the text has another form or names no date.
std::optional<DateTime> ParseDateText(std::string_view text);

/// Reads what follows the date and its blank there, "12:51:26 PM", as seconds since midnight.
std::optional<std::int32_t> ParseTimeText(std::string_view text);

/// The date alone, as in "11/18/2026".
std::string ShortDateText(const DateTime& moment);

/// A day without its year, as in "Nov 18", and a month, as in "Nov 26".
std::string DayText(const DateTime& moment);
std::string MonthText(const DateTime& moment);

/// A duration in seconds as h:mm:ss. Hours aren't folded into days: 49:02:05.
std::string FormatTime(std::int32_t seconds);

}  // namespace varnello
