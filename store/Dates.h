// Dates and times of day as text: dd.mm.yyyy and hh:mm, and the calendar arithmetic the program needs.
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace kontorwerk {

// A day of the Gregorian calendar.
struct Date {
  int year = 1899;
  int month = 12;
  int day = 30;

  friend constexpr auto operator<=>(const Date&, const Date&) = default;
};

struct TimeOfDay {
  int hour = 0;
  int minute = 0;
  int second = 0;
};

struct DateTime {
  Date date;
  TimeOfDay time;
};

// Days since 01.01.1970.
[[nodiscard]] long DayNumber(const Date& date);
[[nodiscard]] Date DateOfDayNumber(long days);
[[nodiscard]] Date AddDays(const Date& date, long days);
// Whole days from `from` to `to`, negative if `to` lies before it.
[[nodiscard]] long DaysBetween(const Date& from, const Date& to);
[[nodiscard]] bool IsLeapYear(int year);
[[nodiscard]] int DaysInMonth(int year, int month);
// 1 for Sunday to 7 for Saturday.
[[nodiscard]] int WeekdayNumber(const Date& date);
// "So." to "Sa.".
[[nodiscard]] std::string_view WeekdayAbbreviation(const Date& date);
// "Sonntag" to "Samstag".
[[nodiscard]] std::string_view WeekdayName(const Date& date);
// dd.mm.yyyy
[[nodiscard]] std::string DateText(const Date& date);
// hh:mm
[[nodiscard]] std::string TimeText(const TimeOfDay& time);
// The date of a text as a German machine takes it: d.m.yyyy with or without leading zeros, a two-digit year
// (00 to 29 is 20yy, 30 to 99 is 19yy), blanks around it. Nothing if it is no day of the calendar.
[[nodiscard]] std::optional<Date> ParseDate(std::string_view text);
[[nodiscard]] bool IsDate(std::string_view text);
// "01" to "12" for the exact name "Januar" to "Dezember", otherwise empty.
[[nodiscard]] std::string_view MonthNumber(std::string_view name);

}  // namespace kontorwerk
