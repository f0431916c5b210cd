// A day's rows and bars.
#include "calendar/DayGrid.h"

#include <gtest/gtest.h>

#include <string>

namespace kontorwerk {
namespace {

constexpr Date kDay{2026, 11, 15};

std::string Joined(const ListRow& row) {
  std::string text;
  for (const std::string& cell : row.cells) text += (text.empty() ? "" : "|") + cell;
  return text;
}

TEST(DayGrid, HasARowForEachQuarterHour) {
  const DayGrid day = MakeDayGrid("", kDay);
  ASSERT_EQ(day.rows.size(), 96U);
  EXPECT_EQ(Joined(day.rows[0]), "1|00:00||||");
  EXPECT_EQ(Joined(day.rows[95]), "96|23:45||||");
  EXPECT_TRUE(day.days.empty());
}

TEST(DayGrid, AppointmentFillsItsRowAndABarUpToItsEnd) {
  const DayGrid day = MakeDayGrid("'15.11.2026','09:15','10:00','Besuch','','0001000','255\r\n", kDay);
  EXPECT_EQ(Joined(day.rows[37]), "38|09:15|09:15|10:00|Besuch|0001000");
  EXPECT_EQ(day.rows[37].colour, std::nullopt);
  EXPECT_EQ(Joined(day.rows[38]), "39|09:30||| -|");
  EXPECT_EQ(day.rows[38].colour, Colour{255});
  EXPECT_EQ(Joined(day.rows[39]), "40|09:45||| -|");
  EXPECT_EQ(Joined(day.rows[40]), "41|10:00||||");
  EXPECT_EQ(day.rows[40].colour, std::nullopt);
}

TEST(DayGrid, BeginBetweenTheQuarterHoursFillsTheRowBefore) {
  const DayGrid day = MakeDayGrid("'15.11.2026','09:20','09:50','Besuch','','','255\r\n", kDay);
  EXPECT_EQ(Joined(day.rows[37]), "38|09:15|09:20|09:50|Besuch|");
  EXPECT_EQ(Joined(day.rows[38]), "39|09:30||| -|");
  EXPECT_EQ(Joined(day.rows[39]), "40|09:45||| -|");
  EXPECT_EQ(Joined(day.rows[40]), "41|10:00||||");
}

TEST(DayGrid, BarEndsWithTheDay) {
  const DayGrid day = MakeDayGrid("'15.11.2026','23:00','25:00','spät','','','255\r\n", kDay);
  EXPECT_EQ(Joined(day.rows[95]), "96|23:45||| -|");
}

TEST(DayGrid, BarLeavesTheTextOfAnAppointmentThatBeginsInIt) {
  const std::string inner = "'15.11.2026','10:00','10:30','innen','','','255\r\n";
  const std::string outer = "'15.11.2026','09:00','10:30','aussen','','','128\r\n";
  for (const std::string& table : {inner + outer, outer + inner}) {
    const DayGrid day = MakeDayGrid(table, kDay);
    EXPECT_EQ(Joined(day.rows[36]), "37|09:00|09:00|10:30|aussen|");
    EXPECT_EQ(Joined(day.rows[40]), "41|10:00|10:00|10:30|innen|");
    EXPECT_EQ(day.rows[40].colour, std::nullopt);
  }
}

TEST(DayGrid, DaysOfAllAppointmentsAreGivenRowsOfOneDayOnly) {
  const DayGrid day = MakeDayGrid(
      "'01.12.2026','09:00','09:30','Dezember','','','255\r\n\r\n"
      "'31.02.2026','09:00','09:30','kein Tag','','','255\r\n"
      "'heute','09:00','09:30','kein Datum','','','255\r\n",
      kDay);
  EXPECT_EQ(day.days, (std::vector<Date>{{2026, 12, 1}}));
  EXPECT_EQ(Joined(day.rows[36]), "37|09:00||||");
}

TEST(DayGrid, UnreadableBeginLeavesNoRowAndUnreadableColourNoColour) {
  const DayGrid day = MakeDayGrid(
      "'15.11.2026','morgens','10:00','ohne Zeit','','','255\r\n"
      "'15.11.2026','99:00','99:30','keine Zeit','','','255\r\n"
      "'15.11.2026','11:00','11:30','ohne Farbe','','','bunt\r\n",
      kDay);
  EXPECT_EQ(day.days.size(), 3U);
  EXPECT_EQ(Joined(day.rows[44]), "45|11:00|11:00|11:30|ohne Farbe|");
  EXPECT_EQ(Joined(day.rows[45]), "46|11:15||| -|");
  EXPECT_EQ(day.rows[45].colour, std::nullopt);
}

}  // namespace
}  // namespace kontorwerk
