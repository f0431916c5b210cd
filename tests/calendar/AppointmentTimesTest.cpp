// Begins, durations and ends of appointments.
#include "calendar/AppointmentTimes.h"

#include <gtest/gtest.h>

#include "store/Text.h"

namespace kontorwerk {
namespace {

TEST(AppointmentTimes, BeginsAreTheQuarterHoursOfADay) {
  const auto entries = BeginEntries();
  ASSERT_EQ(entries.size(), 96U);
  EXPECT_EQ(entries.front(), "00:00");
  EXPECT_EQ(entries[37], "09:15");
  EXPECT_EQ(entries.back(), "23:45");
}

TEST(AppointmentTimes, DurationsTellTheEndTheyLeadTo) {
  const auto entries = DurationEntries("09:15");
  ASSERT_EQ(entries.size(), 95U);
  EXPECT_EQ(entries.front(), "00:15 Std.   -    (bis 09:30 Uhr)");
  EXPECT_EQ(entries[2], "00:45 Std.   -    (bis 10:00 Uhr)");
  EXPECT_EQ(entries[57], "14:30 Std.   -    (bis 23:45 Uhr)");
  EXPECT_EQ(entries[58], "14:45 Std.   -    ungültig!"_t);
  EXPECT_EQ(entries.back(), "23:45 Std.   -    ungültig!"_t);
}

TEST(AppointmentTimes, LongestDurationIsValidFromMidnight) {
  EXPECT_EQ(DurationEntries("00:00").back(), "23:45 Std.   -    (bis 23:45 Uhr)");
}

TEST(AppointmentTimes, MinutesCarryIntoTheHour) {
  EXPECT_EQ(EndOfAppointment("09:45", "00:15").text, "10:00");
  EXPECT_EQ(EndOfAppointment("09:45", "01:30 Std.   -    (bis 11:15 Uhr)").text, "11:15");
}

TEST(AppointmentTimes, HourGoesOnBehindMidnight) {
  const AppointmentEnd end = EndOfAppointment("23:00", "02:00");
  EXPECT_EQ(end.text, "25:00");
  EXPECT_TRUE(end.nextDay);
  EXPECT_TRUE(EndOfAppointment("23:45", "00:15").nextDay);
  EXPECT_EQ(EndOfAppointment("23:45", "00:15").text, "24:00");
  EXPECT_FALSE(EndOfAppointment("00:00", "23:45").nextDay);
}

TEST(AppointmentTimes, DurationIsFoundAgainFromBeginAndEnd) {
  EXPECT_EQ(DurationBetween("09:15", "10:00"), "00:45");
  EXPECT_EQ(DurationBetween("23:00", "25:00"), "02:00");
  EXPECT_EQ(DurationBetween("10:00", "10:00"), "");
  EXPECT_EQ(DurationBetween("10:00", "nie"), "");
}

TEST(AppointmentTimes, ClockNumbersDropTheColon) {
  EXPECT_EQ(ClockNumber("09:15"), 915);
  EXPECT_EQ(ClockNumber("25:00"), 2500);
  EXPECT_EQ(ClockNumber(""), 0);
  EXPECT_EQ(ClockNumber("morgens"), 0);
}

TEST(AppointmentTimes, OnlyFiveCharactersOfDigitsAreATime) {
  EXPECT_EQ(MinutesOfDay("00:20"), 20);
  EXPECT_EQ(MinutesOfDay("9:15"), std::nullopt);
  EXPECT_EQ(MinutesOfDay("09-15"), std::nullopt);
  EXPECT_EQ(MinutesOfDay("ab:cd"), std::nullopt);
}

}  // namespace
}  // namespace kontorwerk
