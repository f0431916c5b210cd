#include "calendar/AppointmentTimes.h"

#include <cstdint>

#include "store/Numbers.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

constexpr int kMinutesPerQuarter = 15;
constexpr int kMinutesPerHour = 60;
constexpr int kHoursPerDay = 24;
constexpr int kTimeLength = 5;  // hh:mm
constexpr int kLargestClockNumber = 9999;

std::string TwoDigits(int number) { return PadZeros(NumberText(std::int64_t{number}), 2); }

std::string TimeOf(int hours, int minutes) { return Concat(TwoDigits(hours), ":", TwoDigits(minutes)); }

// The number of a text of few characters, 0 if it is none.
int SmallNumber(std::string_view text) {
  const double number = ToNumber(text).value_or(0);
  return number >= 0 && number <= kLargestClockNumber ? static_cast<int>(number) : 0;
}

int HoursOf(std::string_view time) { return SmallNumber(Left(time, 2)); }
int MinutesOf(std::string_view time) { return SmallNumber(Mid(time, 4, 2)); }

}  // namespace

std::string QuarterText(int quarter) {
  const int minutes = quarter * kMinutesPerQuarter;
  return TimeOf(minutes / kMinutesPerHour, minutes % kMinutesPerHour);
}

std::vector<std::string> BeginEntries() {
  std::vector<std::string> entries;
  for (int quarter = 0; quarter < kQuartersOfDay; ++quarter) entries.push_back(QuarterText(quarter));
  return entries;
}

std::vector<std::string> DurationEntries(std::string_view begin) {
  std::vector<std::string> entries;
  for (int quarter = 1; quarter < kQuartersOfDay; ++quarter) {
    const std::string duration = QuarterText(quarter);
    const AppointmentEnd end = EndOfAppointment(begin, duration);
    entries.push_back(end.nextDay ? Concat(duration, " Std.   -    ungültig!"_t)
                                  : Concat(duration, " Std.   -    (bis ", end.text, " Uhr)"));
  }
  return entries;
}

AppointmentEnd EndOfAppointment(std::string_view begin, std::string_view duration) {
  int hours = HoursOf(begin) + HoursOf(duration);
  int minutes = MinutesOf(begin) + MinutesOf(duration);
  if (minutes >= kMinutesPerHour) {
    ++hours;
    minutes -= kMinutesPerHour;
  }
  return {TimeOf(hours, minutes), hours >= kHoursPerDay};
}

std::string DurationBetween(std::string_view begin, std::string_view end) {
  const std::optional<int> from = MinutesOfDay(begin);
  const std::optional<int> to = MinutesOfDay(end);
  if (!from || !to || *to <= *from) return {};
  return TimeOf((*to - *from) / kMinutesPerHour, (*to - *from) % kMinutesPerHour);
}

std::optional<int> MinutesOfDay(std::string_view time) {
  const auto digit = [time](std::size_t place) { return time[place] >= '0' && time[place] <= '9'; };
  if (Len(time) != kTimeLength || time[2] != ':' || !digit(0) || !digit(1) || !digit(3) || !digit(4))
    return std::nullopt;
  return HoursOf(time) * kMinutesPerHour + MinutesOf(time);
}

int ClockNumber(std::string_view time) { return SmallNumber(Replace(time, ":", "")); }

}  // namespace kontorwerk
