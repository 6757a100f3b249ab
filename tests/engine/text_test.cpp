#include <cmath>
#include <limits>

#include "engine/common/number_text.h"
#include "fixture.h"

// Numbers and dates as texts.
namespace varnello::test {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

struct Numeral {
    std::string text;
    double value;
};

class Accepted : public ::testing::TestWithParam<Numeral> {};

TEST_P(Accepted, ReadsAsTheNearestNumber) {
    const auto value = ParseDecimal(GetParam().text);
    ASSERT_TRUE(value) << GetParam().text;
    EXPECT_EQ(*value, GetParam().value) << GetParam().text;
    EXPECT_EQ(GameNumber::Text(GetParam().text).Value(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, Accepted,
    ::testing::Values(
        Numeral{"0", 0}, Numeral{"007", 7}, Numeral{"+5", 5}, Numeral{"-5", -5},
        Numeral{"12.5", 12.5}, Numeral{"0.1", 0.1}, Numeral{"1e3", 1000}, Numeral{"1E+3", 1000},
        Numeral{"25e-1", 2.5}, Numeral{"1.5e2", 150}, Numeral{" 7 ", 7}, Numeral{"\t7", 7},
        Numeral{"999999999999999", 999999999999999}, Numeral{"9007199254740993", 9007199254740992},
        Numeral{"1e999", kInf}, Numeral{"-1e999", -kInf}, Numeral{"1e-999", 0},
        Numeral{"1e99999999999999999999", kInf}, Numeral{"1e-99999999999999999999", 0},
        Numeral{"0e999", 0}, Numeral{"0.0e99999999999999999999", 0},
        Numeral{std::string(400, '1'), kInf}, Numeral{std::string(400, '0'), 0},
        Numeral{"1" + std::string(400, '0') + "e-400", 1},
        Numeral{"0." + std::string(400, '0') + "1e401", 1},
        Numeral{"0." + std::string(400, '0') + "1", 0}));

class Refused : public ::testing::TestWithParam<std::string> {};

TEST_P(Refused, ReadsAsNoNumber) {
    EXPECT_FALSE(ParseDecimal(GetParam())) << GetParam();
    EXPECT_EQ(GameNumber::Text(GetParam()).Value(), 0);
}

INSTANTIATE_TEST_SUITE_P(Numbers, Refused,
                         ::testing::Values("", " ", "+", "-", ".", "e", "1e", "1e+", "e5", ".5",
                                           "5.", "5.e1", "1,5", "1.000,5", "1 000", "0x10", "&H10",
                                           "0x1p3", "inf", "nan", "infinity", "--5", "+-5", "5-",
                                           "1.2.3", "12a", "1e1.5", "$5", "5%", "- 5", "\xd9\xa3",
                                           "\xef\xbc\x95"));

TEST(GameNumbers, BareOnesHaveOneToFifteenDigits) {
    EXPECT_EQ(GameNumber::ParseBare("0")->Shown(), "0");
    EXPECT_EQ(GameNumber::ParseBare("000123")->Shown(), "123");
    EXPECT_EQ(GameNumber::ParseBare("999999999999999")->Field(), "999999999999999");
    for (const char* bad : {"", "1234567890123456", "-1", "+1", "1.0", "1e3", " 1", "\"1\""}) {
        EXPECT_FALSE(GameNumber::ParseBare(bad)) << bad;
    }
}

TEST(GameNumbers, TextsStandAsTheyAre) {
    const GameNumber number = GameNumber::Text("007.50");
    EXPECT_EQ(number.Shown(), "007.50");
    EXPECT_EQ(number.Field(), "\"007.50\"");
    EXPECT_EQ(number.Value(), 7.5);
    EXPECT_NE(GameNumber::Text("5"), GameNumber::Number(5));
}

TEST(WholeNumbers, HaveASignAndDigitsAndFit) {
    EXPECT_EQ(ParseWhole<std::int16_t>("-32768"), I16(-32768));
    EXPECT_EQ(ParseWhole<std::int16_t>("+12"), I16(12));
    for (const char* bad : {"", "+", "-", "+-1", "++1", "32768", "1.0", " 1", "1 ", "0x1"}) {
        EXPECT_FALSE(ParseWhole<std::int16_t>(bad)) << bad;
    }
}

TEST(Dates, HaveOneForm) {
    const std::pair<DateTime, const char*> cases[] = {
        {{2026, 11, 18, 12, 51, 26}, "11/18/2026 12:51:26 PM"},
        {{2026, 1, 2, 0, 0, 0}, "1/2/2026 12:00:00 AM"},
        {{2026, 1, 2, 9, 5, 7}, "1/2/2026 9:05:07 AM"},
        {{1999, 12, 31, 23, 59, 59}, "12/31/1999 11:59:59 PM"},
        {{2024, 2, 29, 13, 0, 1}, "2/29/2024 1:00:01 PM"}};
    for (const auto& [moment, text] : cases) {
        EXPECT_EQ(DateText(moment), text);
        EXPECT_EQ(ParseDateText(text), moment);
    }
}

TEST(Dates, InAnyOtherFormAreNone) {
    for (const char* bad : {"",
                            "1/2/2026",
                            "01/2/2026 9:05:07 AM",
                            "1/02/2026 9:05:07 AM",
                            "1/2/2026 09:05:07 AM",
                            "1/2/26 9:05:07 AM",
                            "1/2/2026 9:5:07 AM",
                            "1/2/2026 9:05:07",
                            "1/2/2026 9:05:07 am",
                            "1/2/2026 13:05:07 PM",
                            "1/2/2026 0:05:07 AM",
                            "2/29/2026 1:00:00 AM",
                            "13/1/2026 1:00:00 AM",
                            "4/31/2026 1:00:00 AM",
                            "0/1/2026 1:00:00 AM",
                            "1/2/2026 1:60:00 AM",
                            "1/2/2026  9:05:07 AM",
                            "1/2/2026 9:05:07 AM ",
                            "1.2.2026 9:05:07 AM",
                            "2026-01-02 9:05:07"}) {
        EXPECT_FALSE(ParseDateText(bad)) << bad;
    }
}

TEST(Dates, DifferInSecondsAcrossMonthsAndLeapDays) {
    EXPECT_EQ(SecondsBetween({2024, 2, 28, 23, 59, 59}, {2024, 3, 1, 0, 0, 0}), 86401);
    EXPECT_EQ(SecondsBetween({2026, 3, 1, 0, 0, 0}, {2026, 2, 28, 0, 0, 0}), -86400);
    EXPECT_EQ(SecondsBetween({2025, 12, 31, 23, 59, 59}, {2026, 1, 1, 0, 0, 0}), 1);
}

TEST(Dates, AreValidWithinTheirMonths) {
    EXPECT_TRUE(IsValid({2000, 2, 29, 0, 0, 0}));
    EXPECT_FALSE(IsValid({1900, 2, 29, 0, 0, 0}));
    EXPECT_FALSE(IsValid({2026, 1, 1, 24, 0, 0}));
    EXPECT_FALSE(IsValid({0, 1, 1, 0, 0, 0}));
}

TEST(Durations, CountHoursOnPastTheDay) {
    const std::pair<int, const char*> cases[] = {
        {0, "0:00:00"},       {5, "0:00:05"},
        {3725, "1:02:05"},    {7200, "2:00:00"},
        {86399, "23:59:59"},  {86400, "24:00:00"},
        {176525, "49:02:05"}, {2147483647, "596523:14:07"}};
    for (const auto& [seconds, text] : cases) EXPECT_EQ(FormatTime(seconds), text);
}

}  // namespace
}  // namespace varnello::test
