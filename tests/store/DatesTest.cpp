// Dates as text and the calendar behind them.
#include "store/Dates.h"

#include <gtest/gtest.h>

#include <array>

#include "store/Text.h"

namespace kontorwerk {
namespace {

TEST(Dates, DayNumberCountsFrom1970) {
  EXPECT_EQ(DayNumber({1970, 1, 1}), 0);
  EXPECT_EQ(DayNumber({1969, 12, 31}), -1);
  EXPECT_EQ(DayNumber({2000, 3, 1}), 11017);
  EXPECT_EQ(DayNumber({1899, 12, 30}), -25569);
}

TEST(Dates, EveryDayOfTenCenturiesFollowsTheOneBefore) {
  Date expected{1600, 1, 1};
  long number = DayNumber(expected);
  int weekday = WeekdayNumber(expected);
  while (expected.year < 2600) {
    ASSERT_EQ(DateOfDayNumber(number), expected);
    ASSERT_EQ(DayNumber(expected), number);
    ASSERT_EQ(WeekdayNumber(expected), weekday);
    ++number;
    weekday = weekday % 7 + 1;
    if (++expected.day > DaysInMonth(expected.year, expected.month)) {
      expected.day = 1;
      if (++expected.month > 12) expected = {expected.year + 1, 1, 1};
    }
  }
}

TEST(Dates, LeapYearsFollowTheFourHundredYearRule) {
  EXPECT_TRUE(IsLeapYear(2024));
  EXPECT_FALSE(IsLeapYear(2026));
  EXPECT_FALSE(IsLeapYear(1900));
  EXPECT_TRUE(IsLeapYear(2000));
  EXPECT_EQ(DaysInMonth(2024, 2), 29);
  EXPECT_EQ(DaysInMonth(2026, 2), 28);
  EXPECT_EQ(DaysInMonth(2026, 13), 0);
  EXPECT_EQ(DaysInMonth(2026, 0), 0);
}

TEST(Dates, DaysAreAddedOverMonthAndYear) {
  EXPECT_EQ(AddDays({2026, 12, 31}, 1), (Date{2027, 1, 1}));
  EXPECT_EQ(AddDays({2024, 3, 1}, -1), (Date{2024, 2, 29}));
  EXPECT_EQ(AddDays({2026, 11, 15}, 21), (Date{2026, 12, 6}));
}

TEST(Dates, DifferenceIsExactToTheDayAndSigned) {
  EXPECT_EQ(DaysBetween({2026, 1, 1}, {2027, 1, 1}), 365);
  EXPECT_EQ(DaysBetween({2026, 3, 30}, {2026, 3, 28}), -2);
  EXPECT_EQ(DaysBetween({2026, 3, 28}, {2026, 3, 30}), 2) << "over the change of the clocks";
}

TEST(Dates, WeekdaysBeginWithSunday) {
  EXPECT_EQ(WeekdayNumber({2026, 11, 15}), 1);
  EXPECT_EQ(WeekdayName({2026, 11, 15}), "Sonntag");
  EXPECT_EQ(WeekdayAbbreviation({2026, 11, 15}), "So.");
  EXPECT_EQ(WeekdayName({2026, 11, 21}), "Samstag");
  EXPECT_EQ(WeekdayAbbreviation({2026, 11, 21}), "Sa.");
  EXPECT_EQ(WeekdayNumber({1969, 12, 31}), 4);
}

TEST(Dates, DateTextHasLeadingZerosAndEndsWithTheYear) {
  EXPECT_EQ(DateText({2007, 6, 9}), "09.06.2007");
  EXPECT_EQ(Right(DateText({2026, 11, 15}), 4), "2026");
}

TEST(Dates, TimeTextIsHoursAndMinutes) {
  EXPECT_EQ(TimeText({8, 5, 59}), "08:05");
  EXPECT_EQ(TimeText({23, 45, 0}), "23:45");
}

TEST(ParseDate, ReadsFullAndShortForms) {
  EXPECT_EQ(ParseDate("29.06.2007"), (Date{2007, 6, 29}));
  EXPECT_EQ(ParseDate("1.1.2026"), (Date{2026, 1, 1}));
  EXPECT_EQ(ParseDate("29.6.07"), (Date{2007, 6, 29}));
  EXPECT_EQ(ParseDate("29.02.2024"), (Date{2024, 2, 29}));
}

TEST(ParseDate, BlanksAroundItDoNotMatter) {
  EXPECT_EQ(ParseDate("15.11.2026 "), (Date{2026, 11, 15}));
  EXPECT_EQ(ParseDate("  15.11.2026"), (Date{2026, 11, 15}));
  EXPECT_FALSE(ParseDate("15. 11.2026"));
}

TEST(ParseDate, TwoDigitYearsTurnAtThirty) {
  EXPECT_EQ(ParseDate("1.1.00")->year, 2000);
  EXPECT_EQ(ParseDate("1.1.29")->year, 2029);
  EXPECT_EQ(ParseDate("1.1.30")->year, 1930);
  EXPECT_EQ(ParseDate("1.1.99")->year, 1999);
}

TEST(ParseDate, RefusesWhatIsNoDayOfTheCalendar) {
  for (const char* text : {"31.02.2026", "29.02.2026", "0.1.2026", "1.0.2026", "1.13.2026", "32.01.2026", "1.1.0099"})
    EXPECT_FALSE(IsDate(text)) << text;
}

TEST(ParseDate, RefusesOtherForms) {
  for (const char* text :
       {"", " ", "29/06/2007", "2007-06-29", "29.06.", "29.06", "29.06.2007.", "29.06.207", "+1.1.2026", "001.1.2026",
        "1.1.20260", "ab.cd.efgh", "29.06.2007 10:00", "1.1.2", "..", "1..2026"})
    EXPECT_FALSE(IsDate(text)) << text;
}

TEST(ParseDate, RoundTripOfEveryDayOfFourYears) {
  for (long day = DayNumber({2023, 1, 1}); day < DayNumber({2027, 1, 1}); ++day) {
    const Date date = DateOfDayNumber(day);
    EXPECT_EQ(ParseDate(DateText(date)), date);
  }
}

TEST(MonthNumber, KnowsTheTwelveNames) {
  constexpr std::array<std::string_view, 12> kNames = {"Januar",    "Februar", "März"_t,   "April",
                                                       "Mai",       "Juni",    "Juli",     "August",
                                                       "September", "Oktober", "November", "Dezember"};
  for (std::size_t i = 0; i < kNames.size(); ++i) EXPECT_EQ(MonthNumber(kNames[i]), PadZeros(std::to_string(i + 1), 2));
}

TEST(MonthNumber, CaseCounts) {
  EXPECT_EQ(MonthNumber("märz"_t), "");
  EXPECT_EQ(MonthNumber("März"_t), "03");
  EXPECT_EQ(MonthNumber("JANUAR"), "");
}

TEST(MonthNumber, AnyOtherTextIsEmpty) {
  for (const char* text : {"", "Jan", "Januar ", " Januar", "Maerz", "13", "1"})
    EXPECT_EQ(MonthNumber(text), "") << text;
}

}  // namespace
}  // namespace kontorwerk
