#include <limits>

#include "engine/common/number_text.h"
#include "fixture.h"

// Numbers and dates as texts.
namespace varnello::test {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(Numbers, ReadAsTheNearestFloat) {
    const std::pair<const char*, double> plain[] = {{"007", 7},
                                                    {"+5", 5},
                                                    {"-5", -5},
                                                    {"12.5", 12.5},
                                                    {"1E+3", 1000},
                                                    {"25e-1", 2.5},
                                                    {"1.5e2", 150},
                                                    {" \t7 ", 7},
                                                    {"9007199254740993", 9007199254740992},
                                                    {"-1e999", -kInf},
                                                    {"1e-999", 0},
                                                    {"0.0e99999999999999999999", 0},
                                                    {"1e99999999999999999999", kInf},
                                                    {"1e-99999999999999999999", 0}};
    for (const auto& [text, value] : plain) EXPECT_EQ(ParseDecimal(text), value) << text;
    // Digits without end don't make a number large or small, their places do.
    const std::string zeros(400, '0');
    EXPECT_EQ(ParseDecimal(zeros), 0);
    EXPECT_EQ(ParseDecimal("1" + zeros), kInf);
    EXPECT_EQ(ParseDecimal("1" + zeros + "e-1"), kInf);
    EXPECT_EQ(ParseDecimal("1" + zeros + "e-400"), 1);
    EXPECT_EQ(ParseDecimal("0." + zeros + "1e401"), 1);
    EXPECT_EQ(ParseDecimal("0." + zeros + "1e50"), 0);
}

TEST(Numbers, InAnyOtherFormAreNone) {
    for (const char* bad : {"",    " ",    "+",     ".",     "e5",    "1e",  "1e+",    ".5",
                            "5.",  "5.e1", "1,5",   "1 000", "0x10",  "inf", "nan",    "--5",
                            "+-5", "5-",   "1.2.3", "12a",   "1e1.5", "- 5", "\u0663", "\uff15"}) {
        EXPECT_FALSE(ParseDecimal(bad)) << bad;
        EXPECT_EQ(GameNumber::Text(bad).Value(), 0);
    }
}

TEST(GameNumbers, AreBareDigitsOrTextsAsTheyStand) {
    EXPECT_EQ(GameNumber::ParseBare("000123")->Shown(), "123");
    EXPECT_EQ(GameNumber::ParseBare("999999999999999")->Field(), "999999999999999");
    for (const char* bad : {"", "1234567890123456", "-1", "+1", "1.0", "1e3", " 1", "\"1\""}) {
        EXPECT_FALSE(GameNumber::ParseBare(bad)) << bad;
    }
    EXPECT_EQ(GameNumber::Text("007.50").Shown(), "007.50");
    EXPECT_EQ(GameNumber::Text("007.50").Field(), "\"007.50\"");
    EXPECT_EQ(GameNumber::Text("007.50").Value(), 7.5);
    EXPECT_NE(GameNumber::Text("5"), GameNumber::Number(5));
}

TEST(Dates, HaveOneForm) {
    const std::pair<DateTime, const char*> cases[] = {
        {{2026, 11, 18, 12, 51, 26}, "11/18/2026 12:51:26 PM"},
        {{2026, 1, 2, 0, 0, 0}, "1/2/2026 12:00:00 AM"},
        {{2026, 1, 2, 9, 5, 7}, "1/2/2026 9:05:07 AM"},
        {{1999, 12, 31, 23, 59, 59}, "12/31/1999 11:59:59 PM"},
        {{2000, 2, 29, 13, 0, 1}, "2/29/2000 1:00:01 PM"}};
    for (const auto& [moment, text] : cases) {
        EXPECT_EQ(DateText(moment), text);
        EXPECT_EQ(ParseDateText(text), moment);
    }
    for (const char* bad :
         {"", "1/2/2026", "01/2/2026 9:05:07 AM", "1/02/2026 9:05:07 AM", "1/2/2026 09:05:07 AM",
          "1/2/26 9:05:07 AM", "1/2/2026 9:5:07 AM", "1/2/2026 9:05:07", "1/2/2026 9:05:07 am",
          "1/2/2026 13:05:07 PM", "1/2/2026 0:05:07 AM", "2/29/1900 1:00:00 AM",
          "13/1/2026 1:00:00 AM", "4/31/2026 1:00:00 AM", "1/2/0000 1:00:00 AM",
          "1/2/2026 1:60:00 AM", "1/2/2026 9:05:07 AM ", "1.2.2026 9:05:07 AM"}) {
        EXPECT_FALSE(ParseDateText(bad)) << bad;
    }
}

TEST(Durations, CountHoursOnPastTheDay) {
    const std::pair<int, const char*> cases[] = {
        {5, "0:00:05"}, {3725, "1:02:05"}, {176525, "49:02:05"}, {2147483647, "596523:14:07"}};
    for (const auto& [seconds, text] : cases) EXPECT_EQ(FormatTime(seconds), text);
}

}  // namespace
}  // namespace varnello::test
