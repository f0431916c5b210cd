// The calendar: a month, and the chosen day as a grid of quarter hours from which appointments are made, changed and
// deleted. Opened from an order it also holds that order's context, under which appointments of other orders are
// not to be touched.
#pragma once

#include <string>
#include <string_view>

#include "calendar/NeuerTermin.h"
#include "platform/ListView.h"
#include "platform/Timer.h"

namespace kontorwerk {

// The order from which the calendar was opened, with the texts of its three appointments.
struct OrderContext {
  std::string number;
  std::string termin1, termin2, termin3;
};

class Terminkalender final : public Screen, public DayGridView {
 public:
  Terminkalender(Context& context, ControlCentre& controlCentre, NeuerTermin& neuerTermin);
  void SetOrders(OrderAppointments* orders) { orders_ = orders; }

  // Shows the day without an order.
  void OpenAt(const Date& date);
  // Shows the day for an order.
  void OpenForOrder(const Date& date, const OrderContext& order);
  // Shows the appointment of an order for editing, this calendar behind it; both lead "Zurück" to the order.
  void EditForOrder(const Appointment& appointment, const OrderContext& order);
  // The control centre's way to a new appointment: this calendar takes the day, without an order and without being
  // shown, and the dialog opens. False, with a message, if the day lies in the past.
  bool OpenNewAt(const Date& date);
  // Asks whether the appointment is really to go; then deletes it and refreshes whatever shows it.
  void AskAndDelete(const Appointment& appointment);

  void RefreshDayGrid() override;
  void ScrollToBegin(std::string_view begin) override;

  kontorwerk::MonthView MonthView1{*this, "MonthView1"};
  kontorwerk::ListView ListView{*this, "ListView"};
  TextBox Auftragsnummer{*this, "Auftragsnummer"};
  TextBox Termin1{*this, "Termin1"};
  TextBox Termin2{*this, "Termin2"};
  TextBox Termin3{*this, "Termin3"};
  Label Label1{*this, "Label1"};
  Label Label24{*this, "Label24"};
  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};
  CommandButton Command3{*this, "Command3"};
  CommandButton Command4{*this, "Command4"};
  CommandButton Command28{*this, "Command28"};
  CommandButton Command29{*this, "Command29"};
  CommandButton CancelButton{*this, "CancelButton"};
  Timer Aktiv_Fenster{*this, "Aktiv_Fenster", 50, Timer::Start::On};
  Timer Daybold{*this, "Daybold", 50, Timer::Start::Off};

  bool WindowActive = false;

 private:
  void OnLoad() override;

  void WireCommands();
  void WireTimers();
  void SetOrderContext(const OrderContext& order);
  // False, with a message, if the day lies before today.
  bool AllowsNewAppointment(const Date& date);
  void NewAppointment();
  void EditSelected();
  void DeleteSelected();
  void OpenOrderOfSelected();
  void RowDoubleClicked();
  void ShowUsableCommands();
  void AddYears(int years);
  [[nodiscard]] bool AppointmentSelected() const;
  [[nodiscard]] Appointment SelectedAppointment() const;

  Context& context_;
  ControlCentre& controlCentre_;
  NeuerTermin& neuerTermin_;
  OrderAppointments* orders_ = nullptr;
};

}  // namespace kontorwerk
