#include "calendar/CalendarScreens.h"

namespace kontorwerk {

CalendarScreens::CalendarScreens(Context& context, ControlCentre& controlCentre)
    : neuerTermin(context, controlCentre), terminkalender(context, controlCentre, neuerTermin) {
  neuerTermin.SetCalendar(&terminkalender);
  context.desktop.Add(neuerTermin);
  context.desktop.Add(terminkalender);
}

void CalendarScreens::SetOrders(OrderAppointments* orders) {
  neuerTermin.SetOrders(orders);
  terminkalender.SetOrders(orders);
}

}  // namespace kontorwerk
