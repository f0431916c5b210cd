// The Gregorian calendar in whole days and its German texts; no clock: whoever needs today asks the platform.
#include "store/Dates.h"

#include <array>

#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr long kDaysOf400Years = 146097;
// Days from 01.03.0000, where the count of a four-hundred-year round begins, to 01.01.1970.
constexpr long kDaysBefore1970 = 719468;

long FloorDivide(long value, long divisor) {
  const long quotient = value / divisor;
  return value % divisor < 0 ? quotient - 1 : quotient;
}

// A number of `minDigits` to `maxDigits` plain digits, -1 for anything else.
int PlainNumber(std::string_view text, std::size_t minDigits, std::size_t maxDigits) {
  if (text.size() < minDigits || text.size() > maxDigits) return -1;
  int number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return -1;
    number = number * 10 + (c - '0');
  }
  return number;
}

int FullYear(std::string_view text) {
  if (text.size() == 4) return PlainNumber(text, 4, 4);
  const int year = PlainNumber(text, 2, 2);
  if (year < 0) return -1;
  return year < 30 ? 2000 + year : 1900 + year;
}

std::string Digits(int number, int length) { return PadZeros(std::to_string(number), length); }

}  // namespace

// Years are counted from March on, so that the leap day is the last day of its year.
long DayNumber(const Date& date) {
  const long year = date.month <= 2 ? date.year - 1L : date.year;
  const long round = FloorDivide(year, 400);
  const long yearOfRound = year - round * 400;
  const long dayOfYear = (153L * (date.month + (date.month > 2 ? -3 : 9)) + 2) / 5 + date.day - 1;
  const long dayOfRound = yearOfRound * 365 + yearOfRound / 4 - yearOfRound / 100 + dayOfYear;
  return round * kDaysOf400Years + dayOfRound - kDaysBefore1970;
}

Date DateOfDayNumber(long days) {
  const long sinceStart = days + kDaysBefore1970;
  const long round = FloorDivide(sinceStart, kDaysOf400Years);
  const long dayOfRound = sinceStart - round * kDaysOf400Years;
  const long yearOfRound = (dayOfRound - dayOfRound / 1460 + dayOfRound / 36524 - dayOfRound / 146096) / 365;
  const long dayOfYear = dayOfRound - (365 * yearOfRound + yearOfRound / 4 - yearOfRound / 100);
  const long monthFromMarch = (5 * dayOfYear + 2) / 153;
  const long month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
  Date date;
  date.day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
  date.month = static_cast<int>(month);
  date.year = static_cast<int>(yearOfRound + round * 400 + (month <= 2 ? 1 : 0));
  return date;
}

Date AddDays(const Date& date, long days) { return DateOfDayNumber(DayNumber(date) + days); }

long DaysBetween(const Date& from, const Date& to) { return DayNumber(to) - DayNumber(from); }

bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int DaysInMonth(int year, int month) {
  constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month < 1 || month > 12) return 0;
  return month == 2 && IsLeapYear(year) ? 29 : kDays[static_cast<std::size_t>(month) - 1];
}

int WeekdayNumber(const Date& date) {
  // 01.01.1970 was a Thursday.
  const long days = DayNumber(date) + 4;
  return static_cast<int>(days - FloorDivide(days, 7) * 7) + 1;
}

std::string_view WeekdayAbbreviation(const Date& date) {
  constexpr std::array<std::string_view, 7> kNames = {"So.", "Mo.", "Di.", "Mi.", "Do.", "Fr.", "Sa."};
  return kNames[static_cast<std::size_t>(WeekdayNumber(date)) - 1];
}

std::string_view WeekdayName(const Date& date) {
  constexpr std::array<std::string_view, 7> kNames = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                                                      "Donnerstag", "Freitag", "Samstag"};
  return kNames[static_cast<std::size_t>(WeekdayNumber(date)) - 1];
}

std::string DateText(const Date& date) {
  return Concat(Digits(date.day, 2), ".", Digits(date.month, 2), ".", Digits(date.year, 4));
}

std::string TimeText(const TimeOfDay& time) { return Concat(Digits(time.hour, 2), ":", Digits(time.minute, 2)); }

std::optional<Date> ParseDate(std::string_view text) {
  // Without a list of parts: the reminders read a date or two of every open document.
  const std::string_view trimmed = Trim(text);
  const std::size_t first = trimmed.find('.');
  const std::size_t second = first == std::string_view::npos ? first : trimmed.find('.', first + 1);
  if (second == std::string_view::npos) return std::nullopt;
  const Date date{FullYear(trimmed.substr(second + 1)),
                  PlainNumber(trimmed.substr(first + 1, second - first - 1), 1, 2),
                  PlainNumber(trimmed.substr(0, first), 1, 2)};
  if (date.year < 100 || date.day < 1 || date.day > DaysInMonth(date.year, date.month)) return std::nullopt;
  return date;
}

bool IsDate(std::string_view text) { return ParseDate(text).has_value(); }

std::string_view MonthNumber(std::string_view name) {
  struct Month {
    std::string_view name, number;
  };
  static constexpr std::array<Month, 12> kMonths = {{{"Januar", "01"},
                                                     {"Februar", "02"},
                                                     {"März"_t, "03"},
                                                     {"April", "04"},
                                                     {"Mai", "05"},
                                                     {"Juni", "06"},
                                                     {"Juli", "07"},
                                                     {"August", "08"},
                                                     {"September", "09"},
                                                     {"Oktober", "10"},
                                                     {"November", "11"},
                                                     {"Dezember", "12"}}};
  for (const Month& month : kMonths)
    if (month.name == name) return month.number;
  return {};
}

}  // namespace kontorwerk
