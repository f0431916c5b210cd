#include "platform/MonthView.h"

#include <algorithm>

#include "platform/FormDesign.h"

namespace kontorwerk {

void MonthView::SetValue(const Date& date) {
  if (value_ == date) return;
  const bool otherMonth = value_.year != date.year || value_.month != date.month;
  value_ = date;
  Notify(Aspect::Date);
  if (otherMonth) Raise(OnMonthChange);
}

void MonthView::AddYears(int years) {
  Date date = value_;
  date.year += years;
  date.day = std::min(date.day, DaysInMonth(date.year, date.month));
  SetValue(date);
}

void MonthView::SetBold(const Date& date) {
  if (bold_.insert(date).second) Notify(Aspect::BoldDays);
}

void MonthView::ClearBold() {
  if (bold_.empty()) return;
  bold_.clear();
  Notify(Aspect::BoldDays);
}

void MonthView::UserDate(const Date& date) {
  SetValue(date);
  Raise(OnDateClick);
}

void MonthView::UserMonth(int year, int month) {
  (void)year;
  (void)month;
  Raise(OnMonthChange);
}

void MonthView::ResetToDesign(const ControlDesign* design) {
  Control::ResetToDesign(design);
  ClearBold();
}

}  // namespace kontorwerk
