// The dialog in which an appointment is made or changed. It checks for overlaps, writes the table and keeps the copy in
// the order up to date; the calendar behind it opens it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "calendar/Appointments.h"
#include "calendar/OrderAppointments.h"
#include "platform/ChoiceControls.h"
#include "platform/Context.h"
#include "platform/ControlCentre.h"
#include "platform/MonthView.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

// What the dialog asks of the calendar after a change.
class DayGridView {
 public:
  virtual ~DayGridView() = default;
  // Rebuilds the grid of the chosen day, if the calendar is open.
  virtual void RefreshDayGrid() = 0;
  // Brings the early or the late hours into view where the begin lies there.
  virtual void ScrollToBegin(std::string_view begin) = 0;
};

class NeuerTermin final : public Screen {
 public:
  // The AuftragNr that stands for no order.
  static constexpr std::string_view kNoOrder = "AuftragNr";
  // The colour of an appointment for which none was chosen.
  static constexpr Colour kDefaultColour{32768};

  NeuerTermin(Context& context, ControlCentre& controlCentre);
  void SetCalendar(DayGridView* calendar) { calendar_ = calendar; }
  void SetOrders(OrderAppointments* orders) { orders_ = orders; }

  // Opens the dialog for a new appointment, an earlier content is dropped. Without a date it stands on today, an empty
  // begin on the first entry, an empty order number on no order.
  void OpenNew(const std::optional<Date>& date, std::string_view begin, std::string_view orderNumber);
  // Opens the dialog for this appointment.
  void OpenEdit(const Appointment& appointment);

  // Removes the appointment, its copy in the order and the label of the order screen that shows it; the label's slot
  // or kNoSlot. Kept: the copy stays while this dialog edits the appointment, since the save replaces it.
  int DeleteAppointment(std::string_view date, std::string_view begin, std::string_view end);

  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};
  TextBox Text3{*this, "Text3"};
  kontorwerk::MonthView MonthView{*this, "MonthView"};
  ComboBox ComboBeginn{*this, "ComboBeginn"};
  ComboBox ComboDauer{*this, "ComboDauer"};
  CheckBox Check{*this, "Check"};
  RichTextBox Notizen{*this, "Notizen"};
  TextBox AuftragNr{*this, "AuftragNr"};
  Label Terminfarbe{*this, "Terminfarbe"};
  CommandButton Command2{*this, "Command2"};
  CommandButton OKButton{*this, "OKButton"};
  CommandButton CancelButton{*this, "CancelButton"};

  // Which appointment is edited; set before the dialog is shown, cleared when it closes.
  bool EditMode = false;
  std::string OldDate, OldBegin, OldEnd;
  std::optional<Date> StartDate;

 private:
  void OnLoad() override;
  void OnUnload() override;

  void ShowDate();
  void ShowEnds();
  void ShowColour(Colour colour);
  void ChooseColour();
  void WholeDayChanged();

  void Save();
  [[nodiscard]] Appointment Entered(std::string_view end) const;
  // True if another appointment stands in the way; tells which.
  bool ReportOverlap(std::string_view end);
  void HandToOrder(const Appointment& saved, bool nextDay);
  [[nodiscard]] int SlotOfOldAppointment();
  [[nodiscard]] bool Edits(std::string_view date, std::string_view begin, std::string_view end) const;

  Context& context_;
  ControlCentre& controlCentre_;
  DayGridView* calendar_ = nullptr;
  OrderAppointments* orders_ = nullptr;
  int oldSlot_ = OrderAppointments::kNoSlot;  // the order's label that showed the edited appointment
};

}  // namespace kontorwerk
