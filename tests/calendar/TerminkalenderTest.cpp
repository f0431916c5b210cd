// The calendar: its grid, which commands are usable, the order's context.
#include "calendar/Terminkalender.h"

#include "tests/calendar/CalendarTest.h"

namespace kontorwerk::test {
namespace {

constexpr Date kDay{2026, 11, 15};
constexpr std::string_view kTwoAppointments =
    "'15.11.2026','09:00','10:00','Besuch','','0001000','255\r\n"
    "'15.11.2026','12:00','13:00','Mittag','','','128\r\n"
    "'20.12.2026','12:00','13:00','Advent','','','128\r\n";

TEST_F(CalendarTest, CalendarOpensOnTodayWithoutAnOrder) {
  Calendar().Show();
  EXPECT_EQ(Calendar().MonthView1.Value(), (Date{2026, 11, 10}));
  EXPECT_EQ(Calendar().ListView.RowCount(), 96);
  EXPECT_FALSE(Calendar().Auftragsnummer.Visible());
  EXPECT_FALSE(Calendar().Label1.Visible());
}

TEST_F(CalendarTest, DaysOfAllAppointmentsAreBold) {
  PutAppointments(kTwoAppointments);
  Calendar().OpenAt(kDay);
  EXPECT_TRUE(Calendar().MonthView1.Bold(kDay));
  EXPECT_TRUE(Calendar().MonthView1.Bold({2026, 12, 20}));
  EXPECT_EQ(Calendar().MonthView1.BoldDays().size(), 2U);
  PutAppointments("");
  Calendar().RefreshDayGrid();
  EXPECT_TRUE(Calendar().MonthView1.BoldDays().empty());
}

TEST_F(CalendarTest, ClickedDayFillsTheGrid) {
  PutAppointments(kTwoAppointments);
  Calendar().Show();
  EXPECT_EQ(Calendar().ListView.Cell(RowOf(9, 0), grid::kSubject), "");
  Calendar().MonthView1.UserDate(kDay);
  EXPECT_EQ(Calendar().ListView.Cell(RowOf(9, 0), grid::kSubject), "Besuch");
}

TEST_F(CalendarTest, YearArrowsTurnTheYearAndRefillOnce) {
  PutAppointments("'15.11.2027','09:00','10:00','naechstes Jahr','','','255\r\n");
  Calendar().OpenAt(kDay);
  Calendar().Command28.UserClick();
  EXPECT_EQ(Calendar().MonthView1.Value(), (Date{2027, 11, 15}));
  platform.Advance(50);
  EXPECT_EQ(Calendar().ListView.Cell(RowOf(9, 0), grid::kSubject), "naechstes Jahr");
  EXPECT_FALSE(Calendar().Daybold.Running());
  Calendar().Command29.UserClick();
  Calendar().Command29.UserClick();
  EXPECT_EQ(Calendar().MonthView1.Value(), (Date{2025, 11, 15}));
}

TEST_F(CalendarTest, CommandsAskForASelectionBeforeTheFirstClick) {
  screens.SetOrders(&orders);
  Calendar().OpenAt(kDay);
  Calendar().Command2.UserClick();
  EXPECT_EQ(platform.LastBoxText(), "Bitte zuerst einen Termin auswählen!"_t);
  Calendar().Command3.UserClick();
  EXPECT_EQ(platform.BoxCount(), 2);
  EXPECT_EQ(platform.LastBoxText(), "Bitte zuerst einen Termin auswählen!"_t);
  Calendar().Command4.UserClick();
  EXPECT_EQ(platform.LastBoxText(), "Bitte zuerst einen Termin mit Auftragsnummer auswählen!"_t);
  EXPECT_TRUE(Calendar().Command2.Enabled() && Calendar().Command3.Enabled() && Calendar().Command4.Enabled());
}

TEST_F(CalendarTest, ClickEnablesWhatTheRowAllows) {
  screens.SetOrders(&orders);
  PutAppointments(kTwoAppointments);
  Calendar().OpenAt(kDay);
  const auto usable = [this](int row) {
    Calendar().ListView.UserClick(row);
    return std::array{Calendar().Command2.Enabled(), Calendar().Command3.Enabled(), Calendar().Command4.Enabled()};
  };
  EXPECT_EQ(usable(RowOf(8, 0)), (std::array{false, false, false}));
  EXPECT_EQ(usable(RowOf(9, 0)), (std::array{true, true, true}));
  EXPECT_EQ(usable(RowOf(9, 15)), (std::array{false, false, false}));
  EXPECT_EQ(usable(RowOf(12, 0)), (std::array{true, true, false}));
}

TEST_F(CalendarTest, OrderCommandIsUnusableWithoutAnOrderScreen) {
  PutAppointments(kTwoAppointments);
  Calendar().OpenAt(kDay);
  EXPECT_FALSE(Calendar().Command4.Enabled());
  Calendar().ListView.UserClick(RowOf(9, 0));
  EXPECT_FALSE(Calendar().Command4.Enabled());
}

TEST_F(CalendarTest, AppointmentsOfOtherOrdersAreLockedInAnOrdersContext) {
  screens.SetOrders(&orders);
  PutAppointments(kTwoAppointments);
  Calendar().OpenForOrder(kDay, {"0001001", "15.11.2026, 14:00 - 15:00", "", ""});
  EXPECT_TRUE(Calendar().Label1.Visible());
  EXPECT_EQ(Calendar().Auftragsnummer.Text(), "0001001");
  EXPECT_EQ(Calendar().Termin1.Text(), "15.11.2026, 14:00 - 15:00");
  Calendar().ListView.UserClick(RowOf(9, 0));
  EXPECT_FALSE(Calendar().Command2.Enabled() || Calendar().Command3.Enabled() || Calendar().Command4.Enabled());
  Calendar().ListView.UserDoubleClick(RowOf(9, 0));
  EXPECT_FALSE(Dialog().Visible());
  Calendar().ListView.UserClick(RowOf(12, 0));
  EXPECT_TRUE(Calendar().Command2.Enabled());
  Calendar().OpenAt(kDay);
  EXPECT_EQ(Calendar().Auftragsnummer.Text() + Calendar().Termin1.Text(), "");
  Calendar().ListView.UserClick(RowOf(9, 0));
  EXPECT_TRUE(Calendar().Command2.Enabled());
}

TEST_F(CalendarTest, TheWayBackToAnOrderIsNamedOnlyWhileThereIsOne) {
  Appointment appointment;
  appointment.date = "15.11.2026";
  appointment.begin = "09:00";
  appointment.end = "10:00";
  Calendar().EditForOrder(appointment, {"0001000", "", "", ""});
  EXPECT_EQ(Calendar().CancelButton.Caption(), "Zurück"_t);
  Calendar().OpenAt(kDay);
  EXPECT_EQ(Calendar().CancelButton.Caption(), "Beenden");
}

TEST_F(CalendarTest, NewAppointmentTakesDayTimeAndOrder) {
  Calendar().OpenForOrder(kDay, {"0001000", "", "", ""});
  Calendar().ListView.UserClick(RowOf(16, 30));
  Calendar().Command1.UserClick();
  EXPECT_EQ(Dialog().Text2.Text(), "Sonntag, 15.11.2026");
  EXPECT_EQ(Dialog().ComboBeginn.Text(), "16:30");
  EXPECT_EQ(Dialog().ComboDauer.Text(), "00:15 Std.   -    (bis 16:45 Uhr)");
  EXPECT_EQ(Dialog().AuftragNr.Text(), "0001000");
}

TEST_F(CalendarTest, PastDayTakesNoNewAppointment) {
  Calendar().OpenAt({2026, 11, 9});
  Calendar().Command1.UserClick();
  EXPECT_EQ(platform.LastBoxText(), "Termin liegt in der Vergangenheit!");
  EXPECT_FALSE(Dialog().Visible());
  Calendar().MonthView1.UserDate({2026, 11, 10});
  Calendar().Command1.UserClick();
  EXPECT_TRUE(Dialog().Visible());
}

TEST_F(CalendarTest, DoubleClickEditsAnAppointmentAndMakesOneOnAnEmptyRow) {
  PutAppointments(kTwoAppointments);
  Calendar().OpenAt(kDay);
  Calendar().ListView.UserDoubleClick(RowOf(12, 0));
  EXPECT_EQ(Dialog().Caption(), "Termin bearbeiten");
  EXPECT_EQ(Dialog().Text1.Text(), "Mittag");
  Calendar().ListView.UserDoubleClick(RowOf(15, 0));
  EXPECT_EQ(Dialog().Caption(), "Neuer Termin");
  EXPECT_EQ(Dialog().Text1.Text(), "");
  EXPECT_EQ(Dialog().ComboBeginn.Text(), "15:00");
}

TEST_F(CalendarTest, DeletionAsksAndRefreshes) {
  PutAppointments(kTwoAppointments);
  Calendar().OpenAt(kDay);
  Calendar().ListView.UserClick(RowOf(9, 0));
  platform.Push(Answer::No);
  Calendar().Command3.UserClick();
  EXPECT_EQ(platform.LastBoxTitle(), "Termin wirklich löschen?"_t);
  EXPECT_EQ(platform.LastBoxText(), "Termin: 15.11.2026, 09:00 - 10:00 Besuch\r\n\r\nwirklich löschen?"_t);
  EXPECT_EQ(Appointments(), kTwoAppointments);
  platform.Push(Answer::Yes);
  Calendar().Command3.UserClick();
  EXPECT_EQ(Appointments(),
            "'15.11.2026','12:00','13:00','Mittag','','','128\r\n"
            "'20.12.2026','12:00','13:00','Advent','','','128\r\n");
  EXPECT_EQ(Calendar().ListView.Cell(RowOf(9, 0), grid::kSubject), "");
  EXPECT_EQ(centre.refreshes, 1);
}

TEST_F(CalendarTest, OrderOfTheAppointmentIsOpened) {
  screens.SetOrders(&orders);
  PutAppointments(kTwoAppointments);
  PutOrders(OrderRow("0001001", "", "", "") + "\r\n" + OrderRow("0001000", "", "", "") + "\r\n");
  Calendar().OpenAt(kDay);
  Calendar().ListView.UserClick(RowOf(9, 0));
  Calendar().Command4.UserClick();
  EXPECT_EQ(orders.openedRow, OrderRow("0001000", "", "", ""));
}

TEST_F(CalendarTest, OrderLeadsToItsAppointmentAndBack) {
  PutAppointments(kTwoAppointments);
  Calendar().EditForOrder({"15.11.2026", "09:00", "10:00", "Besuch", "", "0001000", "255"}, {"0001000", "", "", ""});
  EXPECT_TRUE(Calendar().Visible());
  EXPECT_EQ(Calendar().MonthView1.Value(), kDay);
  EXPECT_EQ(Calendar().CancelButton.Caption(), "Zurück"_t);
  EXPECT_EQ(Dialog().Caption(), "Termin bearbeiten");
  EXPECT_EQ(Dialog().OKButton.Caption(), "Termin bearbeiten");
  EXPECT_EQ(Dialog().CancelButton.Caption(), "Zurück"_t);
  EXPECT_EQ(Dialog().AuftragNr.Text(), "0001000");
  Dialog().CancelButton.UserClick();
  Calendar().CancelButton.UserClick();
  Calendar().OpenAt(kDay);
  Calendar().Command1.UserClick();
  EXPECT_EQ(Calendar().CancelButton.Caption(), "Beenden");
  EXPECT_EQ(Dialog().OKButton.Caption(), "Speichern");
}

TEST_F(CalendarTest, ControlCentreMakesAnAppointmentWithoutShowingTheCalendar) {
  EXPECT_TRUE(Calendar().OpenNewAt(kDay));
  EXPECT_FALSE(Calendar().Visible());
  EXPECT_EQ(Calendar().MonthView1.Value(), kDay);
  EXPECT_EQ(Dialog().Text2.Text(), "Sonntag, 15.11.2026");
  Enter("Besuch", "09:00", 3);
  EXPECT_EQ(Calendar().ListView.Cell(RowOf(9, 0), grid::kSubject), "Besuch");
  EXPECT_FALSE(Calendar().OpenNewAt({2026, 11, 9}));
  EXPECT_EQ(platform.LastBoxText(), "Termin liegt in der Vergangenheit!");
  EXPECT_FALSE(Dialog().Visible());
}

TEST_F(CalendarTest, HoverTakesTheFocusOnlyInTheActiveWindow) {
  Calendar().OpenAt(kDay);
  Calendar().Command1.OnHover();
  EXPECT_FALSE(Calendar().Command1.HasFocus());
  platform.Advance(50);
  Calendar().Command1.OnHover();
  EXPECT_TRUE(Calendar().Command1.HasFocus());
  Dialog().OpenNew(kDay, {}, {});
  platform.Advance(50);
  EXPECT_FALSE(Calendar().WindowActive);
}

}  // namespace
}  // namespace kontorwerk::test
