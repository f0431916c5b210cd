#include "calendar/NeuerTermin.h"

#include <algorithm>
#include <cstdint>

#include "calendar/AppointmentTimes.h"
#include "store/Numbers.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

constexpr int kDateLength = 10;
constexpr int kDurationLength = 5;
// The copy of an appointment that runs into the next day ends here.
constexpr std::string_view kMidnight = "00:00";

}  // namespace

NeuerTermin::NeuerTermin(Context& context, ControlCentre& controlCentre)
    : Screen(context.desktop, "NeuerTermin"), context_(context), controlCentre_(controlCentre) {
  MonthView.OnDateClick = [this] { ShowDate(); };
  ComboBeginn.OnChange = [this] { ShowEnds(); };
  Check.OnChange = [this] { WholeDayChanged(); };
  Command2.OnClick = [this] { ChooseColour(); };
  Terminfarbe.OnClick = [this] { ChooseColour(); };
  OKButton.OnClick = [this] { Save(); };
  CancelButton.OnClick = [this] { Unload(); };
}

void NeuerTermin::OpenNew(const std::optional<Date>& date, std::string_view begin, std::string_view orderNumber) {
  Unload();
  StartDate = date;
  Load();
  if (!begin.empty()) ComboBeginn.SetText(begin);
  if (!orderNumber.empty()) AuftragNr.SetText(orderNumber);
  Show();
}

void NeuerTermin::OpenEdit(const Appointment& appointment) {
  Unload();
  EditMode = true;
  OldDate = appointment.date;
  OldBegin = appointment.begin;
  OldEnd = appointment.end;
  StartDate = ParseDate(appointment.date);
  Load();
  SetCaption("Termin bearbeiten");
  Text1.SetText(appointment.subject);
  Notizen.SetText(appointment.notes);
  AuftragNr.SetText(appointment.orderNumber);
  ComboBeginn.SetText(appointment.begin);
  const std::string duration = DurationBetween(appointment.begin, appointment.end);
  const auto& entries = ComboDauer.Items();
  const auto entry = std::find_if(entries.begin(), entries.end(),
                                  [&](const std::string& item) { return Left(item, kDurationLength) == duration; });
  if (entry != entries.end()) ComboDauer.SetListIndex(static_cast<int>(entry - entries.begin()));
  if (const std::optional<double> colour = ToNumber(appointment.colour);
      colour && *colour >= 0 && *colour <= kWhite.value)
    ShowColour(Colour{static_cast<int>(*colour)});
  Show();
}

void NeuerTermin::OnLoad() {
  oldSlot_ = OrderAppointments::kNoSlot;
  ComboBeginn.SetItems(BeginEntries());
  ComboBeginn.SetListIndex(0);
  ComboDauer.SetItems(DurationEntries(ComboBeginn.Text()));
  ComboDauer.SetListIndex(0);
  ShowColour(kDefaultColour);
  MonthView.SetValue(StartDate.value_or(context_.platform.Today()));
  ShowDate();
}

void NeuerTermin::OnUnload() {
  EditMode = false;
  OldDate.clear();
  OldBegin.clear();
  OldEnd.clear();
  StartDate.reset();
}

void NeuerTermin::ShowDate() {
  Text2.SetText(Concat(WeekdayName(MonthView.Value()), ", ", DateText(MonthView.Value())));
}

void NeuerTermin::ShowEnds() {
  const std::vector<std::string> entries = DurationEntries(ComboBeginn.Text());
  for (int i = 0; i < ComboDauer.Count(); ++i) ComboDauer.SetItem(i, entries[static_cast<std::size_t>(i)]);
}

void NeuerTermin::ShowColour(Colour colour) { Text3.SetBackColour(colour); }

void NeuerTermin::ChooseColour() {
  const std::optional<Colour> chosen = context_.platform.ChooseColour(Text3.BackColour().value_or(kDefaultColour));
  if (!chosen) return;
  if (*chosen == kWhite) {
    context_.platform.Tell(
        Concat("Weiss kann leider nicht angezeigt werden!", kLineEnd, "Bitte andere Farbe wählen."_t));
    return;
  }
  ShowColour(*chosen);
}

void NeuerTermin::WholeDayChanged() {
  if (!Check.Checked()) {
    ComboDauer.SetListIndex(0);
    return;
  }
  // The begin comes first: only from 00:00 on does an entry end at 23:45.
  ComboBeginn.SetListIndex(0);
  const auto& entries = ComboDauer.Items();
  const auto entry = std::find_if(entries.begin(), entries.end(),
                                  [](const std::string& item) { return InStr(item, "23:45 Uhr") > 0; });
  if (entry != entries.end()) ComboDauer.SetListIndex(static_cast<int>(entry - entries.begin()));
}

void NeuerTermin::Save() {
  Platform& platform = context_.platform;
  if (Text1.Text().empty()) {
    platform.Tell("Bitte Betreff eingeben!");
    return;
  }
  const AppointmentEnd end = EndOfAppointment(ComboBeginn.Text(), ComboDauer.Text());
  // Kept: the warning stops nothing, the row is written with an hour above 23.
  if (end.nextDay)
    platform.Tell("Termin geht in den nächsten Tag, bitte für den nächsten Tag neuen Termin erstellen!"_t);
  if (EditMode) {
    // Kept: the old row goes before the check for overlaps and stays gone when the check fails.
    const int slot = DeleteAppointment(OldDate, OldBegin, OldEnd);
    if (slot != OrderAppointments::kNoSlot) oldSlot_ = slot;
  }
  if (ReportOverlap(end.text)) return;

  if (AuftragNr.Text() == kNoOrder) AuftragNr.Clear();
  const Appointment saved = Entered(end.text);
  context_.store.AppendRow(table::kAppointments, AppointmentRow(saved));
  if (EditMode && !saved.orderNumber.empty())
    ReplaceOrderCopy(context_.store, saved.orderNumber, AppointmentText(OldDate, OldBegin, OldEnd),
                     AppointmentText(saved.date, saved.begin, saved.end), BlankRows::Keep);
  HandToOrder(saved, end.nextDay);

  controlCentre_.RefreshAppointments();
  if (calendar_ != nullptr) {
    calendar_->RefreshDayGrid();
    calendar_->ScrollToBegin(saved.begin);
  }
  Unload();
}

Appointment NeuerTermin::Entered(std::string_view end) const {
  Appointment result;
  result.date = Right(Text2.Text(), kDateLength);
  result.begin = ComboBeginn.Text();
  result.end = end;
  result.subject = Text1.Text();
  result.notes = Notizen.Text();
  result.orderNumber = AuftragNr.Text();
  result.colour = NumberText(std::int64_t{Text3.BackColour().value_or(kDefaultColour).value});
  return result;
}

bool NeuerTermin::ReportOverlap(std::string_view end) {
  const std::string table = context_.store.ReadTableText(table::kAppointments);
  const std::optional<std::string> other =
      OverlappingAppointment(table, DateText(MonthView.Value()), ComboBeginn.Text(), end);
  if (!other) return false;
  context_.platform.Tell(Concat("Der Termin überschneidet sich mit einem anderen Termin!"_t, kLineEnd, kLineEnd,
                                "Anderer Termin:", kLineEnd, *other, kLineEnd, kLineEnd,
                                "Bitte wählen Sie andere Beginn / Endzeiten aus!"_t));
  return true;
}

void NeuerTermin::HandToOrder(const Appointment& saved, bool nextDay) {
  if (orders_ == nullptr || saved.orderNumber.empty() || !orders_->ShowsOrder(saved.orderNumber)) return;
  // Kept: the copy of an appointment into the next day ends at midnight, its row in the table does not.
  const std::string text = AppointmentText(saved.date, saved.begin, nextDay ? kMidnight : std::string_view(saved.end));
  const int slot = EditMode ? SlotOfOldAppointment() : OrderAppointments::kNoSlot;
  if (slot != OrderAppointments::kNoSlot)
    orders_->SetAppointment(slot, text);
  else
    orders_->AddAppointment(text);
  orders_->SaveOrder();
}

int NeuerTermin::SlotOfOldAppointment() {
  if (oldSlot_ != OrderAppointments::kNoSlot) return oldSlot_;
  const int slot = orders_->ClearAppointment(AppointmentText(OldDate, OldBegin, OldEnd));
  if (slot != OrderAppointments::kNoSlot) return slot;
  return orders_->ClearAppointment(AppointmentText(OldDate, OldBegin, kMidnight));
}

int NeuerTermin::DeleteAppointment(std::string_view date, std::string_view begin, std::string_view end) {
  const OrderCopy copy = Edits(date, begin, end) ? OrderCopy::Keep : OrderCopy::Clear;
  const std::string order = kontorwerk::DeleteAppointment(context_.store, date, begin, end, copy);
  if (order.empty() || orders_ == nullptr || !orders_->ShowsOrder(order)) return OrderAppointments::kNoSlot;
  return orders_->ClearAppointment(AppointmentText(date, begin, end));
}

bool NeuerTermin::Edits(std::string_view date, std::string_view begin, std::string_view end) const {
  return Loaded() && EditMode && OldDate == date && OldBegin == begin && OldEnd == end;
}

}  // namespace kontorwerk
