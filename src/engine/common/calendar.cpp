#include "engine/common/calendar.h"

#include <chrono>
#include <cstdlib>

#include "engine/common/number_text.h"

namespace varnello {
namespace {

std::chrono::year_month_day DateOf(const DateTime& moment) {
    return std::chrono::year_month_day{std::chrono::year{moment.year},
                                       std::chrono::month{static_cast<unsigned>(moment.month)},
                                       std::chrono::day{static_cast<unsigned>(moment.day)}};
}

bool InRange(int value, int low, int high) { return value >= low && value <= high; }

/// Takes digits from the front of `text`, `fewest` to `most` of them, and the separator behind.
std::optional<int> TakeNumber(std::string_view& text, std::size_t fewest, std::size_t most,
                              std::string_view separator) {
    std::size_t size = 0;
    while (size < text.size() && size < most && text[size] >= '0' && text[size] <= '9') ++size;
    const bool padded = fewest == 1 && size > 1 && text[0] == '0';
    if (size < fewest || padded || !text.substr(size).starts_with(separator)) return std::nullopt;
    const auto value = ParseWhole<int>(text.substr(0, size));
    text.remove_prefix(size + separator.size());
    return value;
}

}  // namespace

bool IsValid(const DateTime& moment) {
    return InRange(moment.year, 1, 9999) && InRange(moment.month, 1, 12) &&
           InRange(moment.day, 1, 31) && DateOf(moment).ok() && InRange(moment.hour, 0, 23) &&
           InRange(moment.minute, 0, 59) && InRange(moment.second, 0, 59);
}

std::int64_t SecondsSinceEpoch(const DateTime& moment) {
    const std::int64_t days = std::chrono::sys_days{DateOf(moment)}.time_since_epoch().count();
    return ((days * 24 + moment.hour) * 60 + moment.minute) * 60 + moment.second;
}

DateTime FromSecondsSinceEpoch(std::int64_t seconds) {
    const std::chrono::sys_seconds moment{std::chrono::seconds{seconds}};
    const auto midnight = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date{midnight};
    const std::chrono::hh_mm_ss time{moment - midnight};
    return {.year = static_cast<int>(date.year()),
            .month = static_cast<int>(static_cast<unsigned>(date.month())),
            .day = static_cast<int>(static_cast<unsigned>(date.day())),
            .hour = static_cast<int>(time.hours().count()),
            .minute = static_cast<int>(time.minutes().count()),
            .second = static_cast<int>(time.seconds().count())};
}

std::int64_t SecondsBetween(const DateTime& from, const DateTime& to) {
    return SecondsSinceEpoch(to) - SecondsSinceEpoch(from);
}

std::string DateText(const DateTime& moment) {
    const int hour = moment.hour % 12 == 0 ? 12 : moment.hour % 12;
    return std::to_string(moment.month) + '/' + std::to_string(moment.day) + '/' +
           std::to_string(moment.year) + ' ' + std::to_string(hour) + ':' +
           TwoDigits(moment.minute) + ':' + TwoDigits(moment.second) +
           (moment.hour < 12 ? " AM" : " PM");
}

std::optional<DateTime> ParseDateText(std::string_view text) {
    const auto month = TakeNumber(text, 1, 2, "/");
    const auto day = month ? TakeNumber(text, 1, 2, "/") : std::nullopt;
    const auto year = day ? TakeNumber(text, 4, 4, " ") : std::nullopt;
    const auto hour = year ? TakeNumber(text, 1, 2, ":") : std::nullopt;
    const auto minute = hour ? TakeNumber(text, 2, 2, ":") : std::nullopt;
    const auto second = minute ? TakeNumber(text, 2, 2, " ") : std::nullopt;
    if (!second || !InRange(*hour, 1, 12) || (text != "AM" && text != "PM")) return std::nullopt;
    const DateTime moment{.year = *year,
                          .month = *month,
                          .day = *day,
                          .hour = *hour % 12 + (text == "PM" ? 12 : 0),
                          .minute = *minute,
                          .second = *second};
    return IsValid(moment) ? std::optional{moment} : std::nullopt;
}

std::string FormatTime(std::int32_t seconds) {
    const std::int64_t total = std::abs(static_cast<std::int64_t>(seconds));
    std::string text = seconds < 0 ? "-" : "";
    text += std::to_string(total / 3600);
    return text + ':' + TwoDigits(total / 60 % 60) + ':' + TwoDigits(total % 60);
}

}  // namespace varnello
