#include "engine/common/calendar.h"

#include <algorithm>
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

/// Reads a date text from left to right; once something doesn't fit, all that follows fails too.
class DateReader {
public:
    explicit DateReader(std::string_view text) : at_(text.data()), end_(at_ + text.size()) {}

    /// A number of one or two digits without a leading zero, and the separator behind.
    int Short(char separator) {
        const bool padded = at_ != end_ && *at_ == '0' && at_ + 1 != end_ && IsDigit(at_[1]);
        const int value = padded ? Fail() : Digit();
        const bool second = at_ != end_ && IsDigit(*at_);
        return Separated(second ? value * 10 + Digit() : value, separator);
    }
    /// A number of exactly `size` digits, and the separator behind.
    int Fixed(int size, char separator) {
        int value = 0;
        for (; size > 0; --size) value = value * 10 + Digit();
        return Separated(value, separator);
    }
    std::string_view Rest() const { return {at_, static_cast<std::size_t>(end_ - at_)}; }
    bool Sound() const { return sound_; }

private:
    int Fail() {
        sound_ = false;
        return 0;
    }
    int Digit() { return at_ != end_ && IsDigit(*at_) ? *at_++ - '0' : Fail(); }
    int Separated(int value, char separator) {
        if (at_ == end_ || *at_ != separator) return Fail();
        ++at_;
        return value;
    }

    const char* at_;
    const char* end_;
    bool sound_ = true;
};

std::string MonthName(const DateTime& moment) {
    static constexpr std::string_view kNames = "JanFebMarAprMayJunJulAugSepOctNovDec";
    return std::string(kNames.substr(static_cast<std::size_t>(moment.month - 1) * 3, 3));
}

}  // namespace

bool IsValid(const DateTime& moment) {
    return InRange(moment.year, 1, 9999) && InRange(moment.month, 1, 12) &&
           InRange(moment.day, 1, 31) && DateOf(moment).ok() && InRange(moment.hour, 0, 23) &&
           InRange(moment.minute, 0, 59) && InRange(moment.second, 0, 59);
}

std::int64_t SecondsSinceEpoch(const DateTime& moment) {
    return ((DayNumber(moment) * 24 + moment.hour) * 60 + moment.minute) * 60 + moment.second;
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

std::int64_t DayNumber(const DateTime& moment) {
    return std::chrono::sys_days{DateOf(moment)}.time_since_epoch().count();
}

std::int64_t MonthNumber(const DateTime& moment) { return moment.year * 12 + moment.month - 1; }

DateTime AddDays(const DateTime& moment, int days) {
    return FromSecondsSinceEpoch(SecondsSinceEpoch(moment) + std::int64_t{days} * 86400);
}

DateTime AddMonths(const DateTime& moment, int months) {
    auto date = DateOf(moment) + std::chrono::months{months};
    if (!date.ok()) date = date.year() / date.month() / std::chrono::last;
    DateTime result = moment;
    result.year = static_cast<int>(date.year());
    result.month = static_cast<int>(static_cast<unsigned>(date.month()));
    result.day = static_cast<int>(static_cast<unsigned>(date.day()));
    return result;
}

DateTime AddYears(const DateTime& moment, int years) { return AddMonths(moment, years * 12); }

std::string ShortDateText(const DateTime& moment) {
    std::string year = std::to_string(moment.year);
    year.insert(0, 4 - std::min<std::size_t>(year.size(), 4), '0');
    return std::to_string(moment.month) + '/' + std::to_string(moment.day) + '/' + year;
}

std::string DayText(const DateTime& moment) {
    return MonthName(moment) + ' ' + TwoDigits(moment.day);
}

std::string MonthText(const DateTime& moment) {
    return MonthName(moment) + ' ' + TwoDigits(moment.year % 100);
}

std::string DateText(const DateTime& moment) {
    const int hour = moment.hour % 12 == 0 ? 12 : moment.hour % 12;
    return ShortDateText(moment) + ' ' + std::to_string(hour) + ':' + TwoDigits(moment.minute) +
           ':' + TwoDigits(moment.second) + (moment.hour < 12 ? " AM" : " PM");
}

std::optional<DateTime> ParseDateText(std::string_view text) {
    DateReader reader(text);
    DateTime moment;
    moment.month = reader.Short('/');
    moment.day = reader.Short('/');
    moment.year = reader.Fixed(4, ' ');
    const auto time = reader.Sound() ? ParseTimeText(reader.Rest()) : std::nullopt;
    if (!time) return std::nullopt;
    moment.hour = *time / 3600;
    moment.minute = *time / 60 % 60;
    moment.second = *time % 60;
    return IsValid(moment) ? std::optional{moment} : std::nullopt;
}

std::optional<std::int32_t> ParseTimeText(std::string_view text) {
    constexpr std::size_t kShort = 10;  // "8:26:17 AM"
    if (text.size() != kShort && text.size() != kShort + 1) return std::nullopt;
    const char* const end = text.data() + text.size();
    const int tens = text.size() == kShort ? 0 : text[0] - '0';
    const int hour = 10 * tens + end[-10] - '0';
    const int minute = 10 * (end[-8] - '0') + end[-7] - '0';
    const int second = 10 * (end[-5] - '0') + end[-4] - '0';
    const bool afternoon = end[-2] == 'P';
    bool sound = (text.size() == kShort) == (tens == 0);
    for (const int digit : {10, 8, 7, 5, 4}) sound &= IsDigit(end[-digit]);
    sound &= end[-9] == ':' && end[-6] == ':' && end[-3] == ' ' && end[-1] == 'M';
    sound &= (afternoon || end[-2] == 'A') && InRange(hour, 1, 12) && minute < 60 && second < 60;
    if (!sound) return std::nullopt;
    return ((hour % 12 + (afternoon ? 12 : 0)) * 60 + minute) * 60 + second;
}

std::string FormatTime(std::int32_t seconds) {
    const std::int64_t total = std::abs(static_cast<std::int64_t>(seconds));
    std::string text = seconds < 0 ? "-" : "";
    text += std::to_string(total / 3600);
    return text + ':' + TwoDigits(total / 60 % 60) + ':' + TwoDigits(total % 60);
}

}  // namespace varnello
