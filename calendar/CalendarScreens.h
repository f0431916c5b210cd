// The screens of the calendar, wired together and known to the desktop.
#pragma once

#include "calendar/NeuerTermin.h"
#include "calendar/Terminkalender.h"

namespace kontorwerk {

struct CalendarScreens {
  CalendarScreens(Context& context, ControlCentre& controlCentre);
  CalendarScreens(const CalendarScreens&) = delete;
  CalendarScreens& operator=(const CalendarScreens&) = delete;

  // The screen in which orders are edited; null takes it away again.
  void SetOrders(OrderAppointments* orders);

  NeuerTermin neuerTermin;
  Terminkalender terminkalender;
};

}  // namespace kontorwerk
