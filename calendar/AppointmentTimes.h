// Times of appointments as texts: begins on the quarter hour, durations with the end they lead to, and the way back.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

inline constexpr int kQuartersOfDay = 96;

// hh:mm of a quarter hour of the day, 0 is "00:00", 95 is "23:45".
[[nodiscard]] std::string QuarterText(int quarter);
// "00:00" to "23:45".
[[nodiscard]] std::vector<std::string> BeginEntries();
// "00:15" to "23:45", each with the end it leads to from `begin`: "01:00 Std.   -    (bis 10:15 Uhr)".
[[nodiscard]] std::vector<std::string> DurationEntries(std::string_view begin);

struct AppointmentEnd {
  std::string text;      // hh:mm; the hour goes on counting behind midnight: "25:00"
  bool nextDay = false;  // the hour is 24 or more
};
// `begin` plus the first five characters of `duration`. A text that is no number counts as 0.
[[nodiscard]] AppointmentEnd EndOfAppointment(std::string_view begin, std::string_view duration);

// hh:mm from `begin` to `end`, the first five characters of a duration entry; empty if one of them is no time or the
// end does not lie behind the begin.
[[nodiscard]] std::string DurationBetween(std::string_view begin, std::string_view end);

// Minutes since midnight of hh:mm; nothing for any other text.
[[nodiscard]] std::optional<int> MinutesOfDay(std::string_view time);
// The time without its colon as a number, 915 for 09:15; 0 if that is none.
[[nodiscard]] int ClockNumber(std::string_view time);

}  // namespace kontorwerk
