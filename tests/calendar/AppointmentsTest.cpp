// Rows of the appointment table, the rule for overlaps, deletion with the copy in the order.
#include "calendar/Appointments.h"

#include "tests/calendar/CalendarTest.h"

namespace kontorwerk::test {
namespace {

constexpr std::string_view kRow =
    "'15.11.2026','09:15','10:00','Kundenbesuch','Anruf vorher*__*Unterlagen mitnehmen','0012/2026','65280";

TEST(Appointments, RowIsReadAndWrittenAlike) {
  const Appointment read = ReadAppointment(kRow);
  EXPECT_EQ(read.date, "15.11.2026");
  EXPECT_EQ(read.begin, "09:15");
  EXPECT_EQ(read.end, "10:00");
  EXPECT_EQ(read.subject, "Kundenbesuch");
  EXPECT_EQ(read.notes, "Anruf vorher\r\nUnterlagen mitnehmen");
  EXPECT_EQ(read.orderNumber, "0012/2026");
  EXPECT_EQ(read.colour, "65280");
  EXPECT_EQ(AppointmentRow(read), kRow);
}

TEST(Appointments, CopyOfAnOrderHasTwentyFiveCharacters) {
  EXPECT_EQ(AppointmentText("15.11.2026", "09:15", "10:00"), "15.11.2026, 09:15 - 10:00");
  EXPECT_EQ(AppointmentText("15.11.2026", "09:15", "10:00").size(), 25U);
}

TEST(Appointments, SameBeginWithALaterEndIsAccepted) { EXPECT_FALSE(AppointmentsOverlap(1000, 1100, 1000, 1030)); }
TEST(Appointments, EarlierBeginWithTheSameEndIsAccepted) { EXPECT_FALSE(AppointmentsOverlap(900, 1030, 1000, 1030)); }
TEST(Appointments, InsideAnotherIsAConflict) { EXPECT_TRUE(AppointmentsOverlap(1000, 1015, 1000, 1030)); }
TEST(Appointments, TheSameTimesAreAConflict) { EXPECT_TRUE(AppointmentsOverlap(1000, 1030, 1000, 1030)); }
TEST(Appointments, RunningIntoABeginIsAConflict) { EXPECT_TRUE(AppointmentsOverlap(930, 1015, 1000, 1030)); }
TEST(Appointments, RunningOutOfAnEndIsAConflict) { EXPECT_TRUE(AppointmentsOverlap(1015, 1100, 1000, 1030)); }
TEST(Appointments, SurroundingAnotherIsAConflict) { EXPECT_TRUE(AppointmentsOverlap(945, 1045, 1000, 1030)); }
TEST(Appointments, TouchingAtAnEndIsAllowed) {
  EXPECT_FALSE(AppointmentsOverlap(1030, 1100, 1000, 1030));
  EXPECT_FALSE(AppointmentsOverlap(930, 1000, 1000, 1030));
}

TEST(Appointments, LastConflictOfTheDayIsNamed) {
  const std::string table =
      "'15.11.2026','09:00','10:00','eins','','','0\r\n"
      "'16.11.2026','09:00','12:00','anderer Tag','','','0\r\n\r\n"
      "'15.11.2026','10:00','11:00','zwei','','','0\r\n";
  EXPECT_EQ(OverlappingAppointment(table, "15.11.2026", "08:00", "12:00"), "15.11.2026, 10:00-11:00 : zwei");
  EXPECT_EQ(OverlappingAppointment(table, "15.11.2026", "11:00", "12:00"), std::nullopt);
  EXPECT_EQ(OverlappingAppointment(table, "17.11.2026", "08:00", "12:00"), std::nullopt);
}

TEST_F(CalendarTest, DeletionTakesEveryRowOfTheKeyAndDropsBlankLines) {
  PutAppointments(
      "'15.11.2026','09:00','10:00','eins','','','0\r\n\r\n"
      "'15.11.2026','09:00','10:15','zwei','','','0\r\n"
      "'15.11.2026','09:00','10:00','nochmals','','','0\r\n\r\n");
  EXPECT_EQ(DeleteAppointment(store, "15.11.2026", "09:00", "10:00", OrderCopy::Clear), "");
  EXPECT_EQ(Appointments(), "'15.11.2026','09:00','10:15','zwei','','','0\r\n");
  EXPECT_EQ(Orders(), "(missing)");
}

TEST_F(CalendarTest, DeletionWithAnEmptyArgumentDoesNothing) {
  PutAppointments("'15.11.2026','09:00','','eins','','0001000','0\r\n\r\n");
  EXPECT_EQ(DeleteAppointment(store, "15.11.2026", "09:00", "", OrderCopy::Clear), "");
  EXPECT_EQ(Appointments(), "'15.11.2026','09:00','','eins','','0001000','0\r\n\r\n");
}

TEST_F(CalendarTest, DeletionEmptiesTheCopyAndLeavesTheOrdersOtherAppointments) {
  PutAppointments("'15.11.2026','09:00','10:00','eins','','0001001','0\r\n");
  const std::string other = OrderRow("0001000", "15.11.2026, 09:00 - 10:00", "", "");
  PutOrders(OrderRow("0001001", "14.11.2026, 08:00 - 09:00", "15.11.2026, 09:00 - 10:00", "") + "\r\n\r\n" + other +
            "\r\n");
  EXPECT_EQ(DeleteAppointment(store, "15.11.2026", "09:00", "10:00", OrderCopy::Clear), "0001001");
  EXPECT_EQ(Orders(), OrderRow("0001001", "14.11.2026, 08:00 - 09:00", "", "") + "\r\n" + other + "\r\n");
}

TEST_F(CalendarTest, DeletionCanKeepTheCopy) {
  PutAppointments("'15.11.2026','09:00','10:00','eins','','0001001','0\r\n");
  const std::string table = OrderRow("0001001", "15.11.2026, 09:00 - 10:00", "", "") + "\r\n\r\n";
  PutOrders(table);
  EXPECT_EQ(DeleteAppointment(store, "15.11.2026", "09:00", "10:00", OrderCopy::Keep), "0001001");
  EXPECT_EQ(Orders(), table);
}

TEST_F(CalendarTest, ReplacedCopyIsReplacedInTheWholeLineAndKeepsBlankLines) {
  std::vector<std::string> fields(30);
  fields[0] = "0001001";
  fields[20] = "15.11.2026, 09:00 - 10:00";
  fields[28] = "vereinbart: 15.11.2026, 09:00 - 10:00";
  PutOrders(RecordLine(fields) + "\r\n\r\n");
  ReplaceOrderCopy(store, "0001001", "15.11.2026, 09:00 - 10:00", "16.11.2026, 09:00 - 09:30", BlankRows::Keep);
  fields[20] = "16.11.2026, 09:00 - 09:30";
  fields[28] = "vereinbart: 16.11.2026, 09:00 - 09:30";
  EXPECT_EQ(Orders(), RecordLine(fields) + "\r\n\r\n\r\n");
}

TEST_F(CalendarTest, NoteAloneDoesNotMakeACopy) {
  std::vector<std::string> fields(30);
  fields[0] = "0001001";
  fields[28] = "vereinbart: 15.11.2026, 09:00 - 10:00";
  PutOrders(RecordLine(fields) + "\r\n");
  ReplaceOrderCopy(store, "0001001", "15.11.2026, 09:00 - 10:00", "", BlankRows::Drop);
  EXPECT_EQ(Orders(), RecordLine(fields) + "\r\n");
}

}  // namespace
}  // namespace kontorwerk::test
