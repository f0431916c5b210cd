// What the control centre starts in screens that need more than being shown. The program fills these in; a command
// whose action is missing is shown but disabled.
#pragma once

#include <functional>

#include "calendar/Appointments.h"
#include "store/Dates.h"

namespace kontorwerk {

struct StartFormActions {
  // The order editor for a new order, and the search for its customer or supplier above it.
  std::function<void()> openNewCustomerOrder;
  std::function<void()> openNewSupplierOrder;
  // The document editor for a new document, and the search for its customer above it.
  std::function<void()> openNewDocument;
  // The article mask in create mode.
  std::function<void()> openNewArticle;
  // The stock search, loaded and captioned already, shown in goods-receipt mode.
  std::function<void()> openGoodsReceipt;
  // The stock search shown in stock-edit mode.
  std::function<void()> openStockEdit;
  // The day grid at the date, without an order link.
  std::function<void(const Date& date)> openAppointments;
  // The day grid put to the date without an order link, and the mask for a new appointment at that date. False, with
  // a message, for a day in the past.
  std::function<bool(const Date& date)> openNewAppointment;
  // Asks, then removes the appointment with the copy in its order and refreshes whatever shows it. Of the appointment
  // only date, begin, end and subject are filled.
  std::function<void(const Appointment& appointment)> askAndDeleteAppointment;
  // The check for a new version that the menu asks for, and the one of the start.
  std::function<void()> checkForUpdates;
  std::function<void()> checkForUpdatesAtStart;
  // Writes the switch of the automatic check.
  std::function<void(bool on)> setAutomaticUpdates;
  // Puts the default templates into the data folder, on a first start only.
  std::function<void()> provideTemplates;
};

}  // namespace kontorwerk
