// A month calendar: a chosen day, and days shown in bold.
#pragma once

#include <functional>
#include <set>
#include <string_view>

#include "platform/Control.h"
#include "store/Dates.h"

namespace kontorwerk {

class MonthView final : public Control {
 public:
  MonthView(Screen& owner, std::string_view name, int index = kNoIndex)
      : Control(owner, ControlKind::MonthView, name, index) {}

  [[nodiscard]] const Date& Value() const { return value_; }
  // By program; the shown month follows. Raises OnMonthChange if the month becomes another one.
  void SetValue(const Date& date);
  // The same day `years` later, 29.02. becoming 28.02.
  void AddYears(int years);
  [[nodiscard]] bool Bold(const Date& date) const { return bold_.contains(date); }
  void SetBold(const Date& date);
  void ClearBold();
  [[nodiscard]] const std::set<Date>& BoldDays() const { return bold_; }

  void UserDate(const Date& date);      // a day was clicked: SetValue, then OnDateClick
  void UserMonth(int year, int month);  // another month was paged to; the chosen day stays

  void ResetToDesign(const ControlDesign* design) override;

  std::function<void()> OnDateClick;
  std::function<void()> OnMonthChange;

 private:
  Date value_{2000, 1, 1};
  std::set<Date> bold_;
};

}  // namespace kontorwerk
