// The dialog for appointments: what it shows, what it says, what it writes.
#include "calendar/NeuerTermin.h"

#include "tests/calendar/CalendarTest.h"

namespace kontorwerk::test {
namespace {

constexpr Date kDay{2026, 11, 15};
constexpr int kHalfHour = 1;
constexpr int kOneHour = 3;
constexpr int kTwoHours = 7;

TEST_F(CalendarTest, NewDialogStandsOnTheGivenDay) {
  Dialog().OpenNew(kDay, {}, {});
  EXPECT_EQ(Dialog().Caption(), "Neuer Termin");
  EXPECT_EQ(Dialog().Text2.Text(), "Sonntag, 15.11.2026");
  EXPECT_EQ(Dialog().ComboBeginn.Text(), "00:00");
  EXPECT_EQ(Dialog().ComboDauer.Text(), "00:15 Std.   -    (bis 00:15 Uhr)");
  EXPECT_EQ(Dialog().AuftragNr.Text(), "AuftragNr");
  EXPECT_TRUE(Dialog().Text2.Locked());
}

TEST_F(CalendarTest, NewDialogWithoutADayStandsOnToday) {
  Dialog().Show();
  EXPECT_EQ(Dialog().Text2.Text(), "Dienstag, 10.11.2026");
}

TEST_F(CalendarTest, ClickedDayIsShown) {
  Dialog().OpenNew(kDay, {}, {});
  Dialog().MonthView.UserDate({2026, 11, 21});
  EXPECT_EQ(Dialog().Text2.Text(), "Samstag, 21.11.2026");
}

TEST_F(CalendarTest, BeginTurnsTheEndsOfAllDurations) {
  Dialog().OpenNew(kDay, {}, {});
  Dialog().ComboBeginn.UserChoose(95);
  EXPECT_EQ(Dialog().ComboDauer.Text(), "00:15 Std.   -    ungültig!"_t);
  Dialog().ComboBeginn.UserChoose(40);
  EXPECT_EQ(Dialog().ComboDauer.Text(), "00:15 Std.   -    (bis 10:15 Uhr)");
}

TEST_F(CalendarTest, WholeDayGoesFromMidnightToTheLastQuarter) {
  Dialog().OpenNew(kDay, "10:00", {});
  Dialog().Check.UserToggle();
  EXPECT_EQ(Dialog().ComboBeginn.Text(), "00:00");
  EXPECT_EQ(Dialog().ComboDauer.Text(), "23:45 Std.   -    (bis 23:45 Uhr)");
  Dialog().Check.UserToggle();
  EXPECT_EQ(Dialog().ComboBeginn.Text(), "00:00");
  EXPECT_EQ(Dialog().ComboDauer.ListIndex(), 0);
}

TEST_F(CalendarTest, ChosenColourIsStored) {
  Dialog().OpenNew(kDay, {}, {});
  platform.PushAnswer({.kind = QueuedAnswer::Kind::Colour, .colour = 255});
  Dialog().Command2.UserClick();
  EXPECT_EQ(Dialog().Text3.BackColour(), Colour{255});
  Enter("rot", "09:00", kHalfHour);
  EXPECT_EQ(Appointments(), "'15.11.2026','09:00','09:30','rot','','','255\r\n");
}

TEST_F(CalendarTest, WhiteIsRefusedAndTheOldColourStays) {
  Dialog().OpenNew(kDay, {}, {});
  const auto before = Dialog().Text3.BackColour();
  platform.PushAnswer({.kind = QueuedAnswer::Kind::Colour, .colour = 16777215});
  Dialog().Command2.UserClick();
  EXPECT_EQ(platform.LastBoxText(), "Weiss kann leider nicht angezeigt werden!\r\nBitte andere Farbe wählen."_t);
  EXPECT_EQ(Dialog().Text3.BackColour(), before);
}

TEST_F(CalendarTest, CancelledColourChangesNothing) {
  Dialog().OpenNew(kDay, {}, {});
  const auto before = Dialog().Text3.BackColour();
  platform.PushAnswer({.kind = QueuedAnswer::Kind::Cancel});
  Dialog().Command2.UserClick();
  EXPECT_EQ(Dialog().Text3.BackColour(), before);
  EXPECT_EQ(platform.BoxCount(), 0);
}

TEST_F(CalendarTest, SubjectIsRequired) {
  Dialog().OpenNew(kDay, {}, {});
  Dialog().OKButton.UserClick();
  EXPECT_EQ(platform.LastBoxText(), "Bitte Betreff eingeben!");
  EXPECT_EQ(Appointments(), "(missing)");
  EXPECT_TRUE(Dialog().Visible());
}

TEST_F(CalendarTest, NewAppointmentGoesToTheEndOfTheTable) {
  PutAppointments("'15.11.2026','08:00','08:30','eins','','','0\r\n");
  Dialog().OpenNew(kDay, {}, {});
  Dialog().Notizen.UserText("Anruf vorher\r\nUnterlagen");
  Enter("Besuch", "09:15", 2);
  EXPECT_EQ(Appointments(),
            "'15.11.2026','08:00','08:30','eins','','','0\r\n"
            "'15.11.2026','09:15','10:00','Besuch','Anruf vorher*__*Unterlagen','','32768\r\n");
  EXPECT_EQ(platform.BoxCount(), 0);
  EXPECT_FALSE(Dialog().Loaded());
  EXPECT_EQ(centre.refreshes, 1);
}

TEST_F(CalendarTest, EndBehindMidnightIsWarnedOfAndWritten) {
  Dialog().OpenNew(kDay, {}, {});
  Enter("spät"_t, "23:00", kTwoHours);
  EXPECT_EQ(platform.LastBoxText(),
            "Termin geht in den nächsten Tag, bitte für den nächsten Tag neuen Termin erstellen!"_t);
  EXPECT_EQ(Appointments(), Concat("'15.11.2026','23:00','25:00','spät','','','32768\r\n"_t));
}

TEST_F(CalendarTest, ConflictSavesNothingAndNamesTheOther) {
  PutAppointments("'15.11.2026','10:00','10:30','Meier','','','0\r\n");
  Dialog().OpenNew(kDay, {}, {});
  Enter("neu", "10:00", 0);
  EXPECT_EQ(platform.LastBoxText(),
            "Der Termin überschneidet sich mit einem anderen Termin!\r\n\r\nAnderer Termin:\r\n"_t
            "15.11.2026, 10:00-10:30 : Meier\r\n\r\nBitte wählen Sie andere Beginn / Endzeiten aus!"_t);
  EXPECT_EQ(Appointments(), "'15.11.2026','10:00','10:30','Meier','','','0\r\n");
  EXPECT_TRUE(Dialog().Visible());
  EXPECT_EQ(centre.refreshes, 0);
}

TEST_F(CalendarTest, TwoOpenCasesOfOverlapAreSaved) {
  PutAppointments("'15.11.2026','10:00','10:30','Meier','','','0\r\n");
  Dialog().OpenNew(kDay, {}, {});
  Enter("gleicher Beginn", "10:00", kOneHour);
  EXPECT_EQ(platform.BoxCount(), 0);
  PutAppointments("'15.11.2026','10:00','10:30','Meier','','','0\r\n");
  Dialog().OpenNew(kDay, {}, {});
  Enter("gleiches Ende", "09:00", 5);
  EXPECT_EQ(platform.BoxCount(), 0);
  EXPECT_EQ(Appointments(),
            "'15.11.2026','10:00','10:30','Meier','','','0\r\n"
            "'15.11.2026','09:00','10:30','gleiches Ende','','','32768\r\n");
}

TEST_F(CalendarTest, EditFillsAllFieldsFromTheRow) {
  Dialog().OpenEdit({"15.11.2026", "09:15", "10:00", "Besuch", "Zeile 1\r\nZeile 2", "0001000", "255"});
  EXPECT_EQ(Dialog().Caption(), "Termin bearbeiten");
  EXPECT_EQ(Dialog().Text1.Text(), "Besuch");
  EXPECT_EQ(Dialog().Text2.Text(), "Sonntag, 15.11.2026");
  EXPECT_EQ(Dialog().ComboBeginn.Text(), "09:15");
  EXPECT_EQ(Dialog().ComboDauer.Text(), "00:45 Std.   -    (bis 10:00 Uhr)");
  EXPECT_EQ(Dialog().Notizen.Text(), "Zeile 1\r\nZeile 2");
  EXPECT_EQ(Dialog().AuftragNr.Text(), "0001000");
  EXPECT_EQ(Dialog().Text3.BackColour(), Colour{255});
  EXPECT_TRUE(Dialog().EditMode);
}

TEST_F(CalendarTest, EditOfABeginBetweenTheQuartersKeepsIt) {
  PutAppointments("'15.11.2026','09:20','10:05','Besuch','','','255\r\n");
  Dialog().OpenEdit({"15.11.2026", "09:20", "10:05", "Besuch", "", "", "255"});
  EXPECT_EQ(Dialog().ComboDauer.Text(), "00:45 Std.   -    (bis 10:05 Uhr)");
  Dialog().OKButton.UserClick();
  EXPECT_EQ(Appointments(), "'15.11.2026','09:20','10:05','Besuch','','','255\r\n");
}

TEST_F(CalendarTest, EditReplacesTheRowAndTheCopyInTheOrder) {
  PutAppointments("'15.11.2026','09:00','10:00','Besuch','','0001000','255\r\n");
  PutOrders(OrderRow("0001000", "", "15.11.2026, 09:00 - 10:00", "") + "\r\n");
  Dialog().OpenEdit({"15.11.2026", "09:00", "10:00", "Besuch", "", "0001000", "255"});
  Dialog().MonthView.UserDate({2026, 11, 16});
  Enter("Besuch", "11:00", kHalfHour);
  EXPECT_EQ(Appointments(), "'16.11.2026','11:00','11:30','Besuch','','0001000','255\r\n");
  EXPECT_EQ(Orders(), OrderRow("0001000", "", "16.11.2026, 11:00 - 11:30", "") + "\r\n\r\n");
}

TEST_F(CalendarTest, EditThatEndsInAConflictLosesTheOldRowAndCanBeSavedAgain) {
  PutAppointments(
      "'15.11.2026','09:00','10:00','alt','','0001000','255\r\n"
      "'15.11.2026','12:00','13:00','Mittag','','','0\r\n");
  PutOrders(OrderRow("0001000", "15.11.2026, 09:00 - 10:00", "", "") + "\r\n");
  Dialog().OpenEdit({"15.11.2026", "09:00", "10:00", "alt", "", "0001000", "255"});
  Enter("alt", "12:15", kHalfHour);
  EXPECT_EQ(platform.BoxCount(), 1);
  EXPECT_EQ(Appointments(), "'15.11.2026','12:00','13:00','Mittag','','','0\r\n");
  EXPECT_EQ(Dialog().OldBegin, "09:00");
  EXPECT_TRUE(Dialog().Visible());
  Enter("alt", "14:00", kHalfHour);
  EXPECT_EQ(Appointments(),
            "'15.11.2026','12:00','13:00','Mittag','','','0\r\n"
            "'15.11.2026','14:00','14:30','alt','','0001000','255\r\n");
  EXPECT_EQ(Orders(), OrderRow("0001000", "15.11.2026, 14:00 - 14:30", "", "") + "\r\n\r\n");
}

TEST_F(CalendarTest, OpenOrderTakesANewAppointmentAndIsSaved) {
  screens.SetOrders(&orders);
  orders.number = "0001000";
  orders.labels = {"14.11.2026, 08:00 - 09:00", "", ""};
  Dialog().OpenNew(kDay, {}, "0001000");
  Enter("Besuch", "09:00", kOneHour);
  EXPECT_EQ(orders.labels[1], "15.11.2026, 09:00 - 10:00");
  EXPECT_EQ(orders.saves, 1);
}

TEST_F(CalendarTest, CopyOfAnAppointmentIntoTheNextDayEndsAtMidnight) {
  screens.SetOrders(&orders);
  orders.number = "0001000";
  Dialog().OpenNew(kDay, {}, "0001000");
  Enter("Besuch", "23:00", kTwoHours);
  EXPECT_EQ(orders.labels[0], "15.11.2026, 23:00 - 00:00");
  EXPECT_EQ(Appointments(), "'15.11.2026','23:00','25:00','Besuch','','0001000','32768\r\n");
}

TEST_F(CalendarTest, OtherOrdersScreenIsLeftAlone) {
  screens.SetOrders(&orders);
  orders.number = "0001001";
  Dialog().OpenNew(kDay, {}, "0001000");
  Enter("Besuch", "09:00", kOneHour);
  orders.number = "0001000";
  orders.open = false;
  Dialog().OpenNew({{2026, 11, 16}}, {}, "0001000");
  Enter("Besuch", "09:00", kOneHour);
  EXPECT_EQ(orders.labels, (std::array<std::string, 3>{}));
  EXPECT_EQ(orders.saves, 0);
}

TEST_F(CalendarTest, EditedAppointmentStaysInTheLabelThatShowedIt) {
  screens.SetOrders(&orders);
  orders.number = "0001000";
  orders.labels = {"", "15.11.2026, 09:00 - 10:00", ""};
  PutAppointments("'15.11.2026','09:00','10:00','Besuch','','0001000','255\r\n");
  Dialog().OpenEdit({"15.11.2026", "09:00", "10:00", "Besuch", "", "0001000", "255"});
  Enter("Besuch", "11:00", kOneHour);
  EXPECT_EQ(orders.labels, (std::array<std::string, 3>{"", "15.11.2026, 11:00 - 12:00", ""}));
  EXPECT_EQ(orders.saves, 1);
}

TEST_F(CalendarTest, LabelIsRememberedOverAConflict) {
  screens.SetOrders(&orders);
  orders.number = "0001000";
  orders.labels = {"", "15.11.2026, 09:00 - 10:00", ""};
  PutAppointments(
      "'15.11.2026','09:00','10:00','Besuch','','0001000','255\r\n"
      "'15.11.2026','12:00','13:00','Mittag','','','0\r\n");
  Dialog().OpenEdit({"15.11.2026", "09:00", "10:00", "Besuch", "", "0001000", "255"});
  Enter("Besuch", "12:15", kHalfHour);
  EXPECT_EQ(orders.saves, 0);
  Enter("Besuch", "14:00", kHalfHour);
  EXPECT_EQ(orders.labels, (std::array<std::string, 3>{"", "15.11.2026, 14:00 - 14:30", ""}));
}

TEST_F(CalendarTest, DeletionClearsTheLabelOfTheOpenOrder) {
  screens.SetOrders(&orders);
  orders.number = "0001000";
  orders.labels = {"15.11.2026, 09:00 - 10:00", "16.11.2026, 09:00 - 10:00", ""};
  PutAppointments("'15.11.2026','09:00','10:00','Besuch','','0001000','255\r\n");
  EXPECT_EQ(Dialog().DeleteAppointment("15.11.2026", "09:00", "10:00"), 1);
  EXPECT_EQ(orders.labels, (std::array<std::string, 3>{"", "16.11.2026, 09:00 - 10:00", ""}));
  EXPECT_EQ(Appointments(), "");
}

TEST_F(CalendarTest, CancelAndWindowButtonSaveNothing) {
  Dialog().OpenNew(kDay, {}, {});
  Dialog().Text1.UserText("Besuch");
  Dialog().CancelButton.UserClick();
  EXPECT_FALSE(Dialog().Loaded());
  Dialog().OpenNew(kDay, {}, {});
  EXPECT_EQ(Dialog().Text1.Text(), "");
  Dialog().Close();
  EXPECT_FALSE(Dialog().Loaded());
  EXPECT_EQ(Appointments(), "(missing)");
}

}  // namespace
}  // namespace kontorwerk::test
