#include "calendar/Terminkalender.h"

#include <optional>

#include "calendar/AppointmentTimes.h"
#include "calendar/DayGrid.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

// The row of 15:15: with it at the lower edge a window of usual size shows the working day.
constexpr int kAfternoonRow = 62;
// From this begin on the end of the day, up to that one its start is brought into view.
constexpr int kLateBegin = 1600;
constexpr int kEarlyBegin = 659;

}  // namespace

Terminkalender::Terminkalender(Context& context, ControlCentre& controlCentre, NeuerTermin& neuerTermin)
    : Screen(context.desktop, "Terminkalender"),
      context_(context),
      controlCentre_(controlCentre),
      neuerTermin_(neuerTermin) {
  MonthView1.OnDateClick = [this] { RefreshDayGrid(); };
  ListView.OnClick = [this] { ShowUsableCommands(); };
  ListView.OnDoubleClick = [this] { RowDoubleClicked(); };
  WireCommands();
  WireTimers();
}

void Terminkalender::WireCommands() {
  Command1.OnClick = [this] { NewAppointment(); };
  Command2.OnClick = [this] { EditSelected(); };
  Command3.OnClick = [this] { DeleteSelected(); };
  Command4.OnClick = [this] { OpenOrderOfSelected(); };
  Command28.OnClick = [this] { AddYears(1); };
  Command29.OnClick = [this] { AddYears(-1); };
  CancelButton.OnClick = [this] { Unload(); };
  for (CommandButton* command : {&Command1, &Command2, &Command3, &Command4, &Command28, &Command29, &CancelButton})
    command->OnHover = [this, command] {
      if (WindowActive) command->SetFocus();
    };
}

void Terminkalender::WireTimers() {
  Aktiv_Fenster.OnTimer = [this] {
    WindowActive = context_.desktop.ApplicationActive() && context_.desktop.ActiveScreen() == this;
  };
  Daybold.OnTimer = [this] {
    Daybold.SetRunning(false);
    RefreshDayGrid();
  };
}

void Terminkalender::OnLoad() {
  WindowActive = false;
  SetOrderContext({});
  MonthView1.SetValue(context_.platform.Today());
  RefreshDayGrid();
}

void Terminkalender::OpenAt(const Date& date) { OpenForOrder(date, {}); }

void Terminkalender::OpenForOrder(const Date& date, const OrderContext& order) {
  Load();
  SetOrderContext(order);
  MonthView1.SetValue(date);
  RefreshDayGrid();
  CancelButton.SetCaption("Beenden");
  Show();
}

void Terminkalender::EditForOrder(const Appointment& appointment, const OrderContext& order) {
  OpenForOrder(ParseDate(appointment.date).value_or(context_.platform.Today()), order);
  CancelButton.SetCaption("Zurück"_t);
  neuerTermin_.OpenEdit(appointment);
  neuerTermin_.AuftragNr.SetText(order.number);
  neuerTermin_.OKButton.SetCaption("Termin bearbeiten");
  neuerTermin_.CancelButton.SetCaption("Zurück"_t);
}

bool Terminkalender::OpenNewAt(const Date& date) {
  if (!AllowsNewAppointment(date)) return false;
  Load();
  SetOrderContext({});
  MonthView1.SetValue(date);
  RefreshDayGrid();
  neuerTermin_.OpenNew(date, {}, {});
  return true;
}

void Terminkalender::SetOrderContext(const OrderContext& order) {
  Auftragsnummer.SetText(order.number);
  Termin1.SetText(order.termin1);
  Termin2.SetText(order.termin2);
  Termin3.SetText(order.termin3);
  Label1.SetVisible(!order.number.empty());
  for (TextBox* box : {&Auftragsnummer, &Termin1, &Termin2, &Termin3}) box->SetVisible(!order.number.empty());
}

void Terminkalender::RefreshDayGrid() {
  if (!Loaded()) return;
  const std::string table = context_.store.ReadTableText(table::kAppointments);
  DayGrid day = MakeDayGrid(table, MonthView1.Value());
  MonthView1.ClearBold();
  for (const Date& date : day.days) MonthView1.SetBold(date);
  ListView.SetRows(std::move(day.rows));
  ListView.EnsureVisible(kAfternoonRow);
  ShowUsableCommands();
}

void Terminkalender::ScrollToBegin(std::string_view begin) {
  if (!Loaded()) return;
  if (ClockNumber(begin) >= kLateBegin) ListView.EnsureVisible(kQuartersOfDay);
  if (ClockNumber(begin) <= kEarlyBegin) ListView.EnsureVisible(1);
}

bool Terminkalender::AllowsNewAppointment(const Date& date) {
  if (date >= context_.platform.Today()) return true;
  context_.platform.Tell("Termin liegt in der Vergangenheit!");
  return false;
}

void Terminkalender::NewAppointment() {
  if (!AllowsNewAppointment(MonthView1.Value())) return;
  neuerTermin_.OpenNew(MonthView1.Value(), ListView.SelectedCell(grid::kTime), Auftragsnummer.Text());
}

void Terminkalender::EditSelected() {
  if (!AppointmentSelected()) {
    context_.platform.Tell("Bitte zuerst einen Termin auswählen!"_t);
    return;
  }
  const Appointment selected = SelectedAppointment();
  const std::optional<Appointment> found = FindAppointment(context_.store, selected.date, selected.begin, selected.end);
  if (found) neuerTermin_.OpenEdit(*found);
}

void Terminkalender::DeleteSelected() {
  if (!AppointmentSelected()) {
    context_.platform.Tell("Bitte zuerst einen Termin auswählen!"_t);
    return;
  }
  AskAndDelete(SelectedAppointment());
}

void Terminkalender::AskAndDelete(const Appointment& appointment) {
  const std::string question = Concat("Termin: ", AppointmentText(appointment.date, appointment.begin, appointment.end),
                                      " ", appointment.subject, kLineEnd, kLineEnd, "wirklich löschen?"_t);
  if (!context_.platform.Ask(question, "Termin wirklich löschen?"_t)) return;
  neuerTermin_.DeleteAppointment(appointment.date, appointment.begin, appointment.end);
  RefreshDayGrid();
  controlCentre_.RefreshAppointments();
}

void Terminkalender::OpenOrderOfSelected() {
  const std::string number = ListView.SelectedCell(grid::kOrderNumber);
  if (number.empty()) {
    context_.platform.Tell("Bitte zuerst einen Termin mit Auftragsnummer auswählen!"_t);
    return;
  }
  const std::string table = context_.store.ReadTableText(table::kOrders);
  std::string_view order;
  ForEachRow(table, [&](std::string_view row) {
    if (order.empty() && RecordField(row, kOrderKeyColumn) == number) order = row;
  });
  if (!order.empty() && orders_ != nullptr) orders_->OpenOrder(order);
}

void Terminkalender::RowDoubleClicked() {
  if (ListView.Selected() == 0) return;
  if (!AppointmentSelected())
    NewAppointment();
  else if (Command2.Enabled())
    EditSelected();
}

void Terminkalender::ShowUsableCommands() {
  // Without a row the commands stay usable and say what they need.
  bool appointmentUsable = true;
  bool orderUsable = true;
  if (ListView.Selected() != 0) {
    const std::string& order = ListView.SelectedCell(grid::kOrderNumber);
    const bool foreignOrder = !Auftragsnummer.Text().empty() && !order.empty() && order != Auftragsnummer.Text();
    appointmentUsable = AppointmentSelected() && !foreignOrder;
    orderUsable = !order.empty() && !foreignOrder;
  }
  Command2.SetEnabled(appointmentUsable);
  Command3.SetEnabled(appointmentUsable);
  Command4.SetEnabled(orderUsable && orders_ != nullptr);
}

void Terminkalender::AddYears(int years) {
  MonthView1.AddYears(years);
  Daybold.SetRunning(true);
}

bool Terminkalender::AppointmentSelected() const { return !ListView.SelectedCell(grid::kBegin).empty(); }

Appointment Terminkalender::SelectedAppointment() const {
  Appointment selected;
  selected.date = DateText(MonthView1.Value());
  selected.begin = ListView.SelectedCell(grid::kBegin);
  selected.end = ListView.SelectedCell(grid::kEnd);
  selected.subject = ListView.SelectedCell(grid::kSubject);
  return selected;
}

}  // namespace kontorwerk
