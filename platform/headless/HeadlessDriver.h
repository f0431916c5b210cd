// Works the controls without drawing anything.
#pragma once

#include "platform/Desktop.h"
#include "platform/headless/Driver.h"

namespace kontorwerk {

class HeadlessDriver final : public Driver {
 public:
  explicit HeadlessDriver(Desktop& desktop) : desktop_(desktop) {}

  bool MoveFocus(Control& control) override { return desktop_.MoveFocus(control); }
  void Click(Control& control) override;
  void DoubleClick(Control& control, int row) override;
  void SetText(Control& control, std::string_view text) override;
  void Choose(ChoiceControl& control, int index) override;
  void Tick(ListView& list, int row, bool ticked) override;
  void Select(ListView& list, int row) override;
  void Sort(ListView& list, int column) override;
  void PickDate(MonthView& calendar, const Date& date) override;
  void PressKey(Control& control, const Key& key) override { desktop_.PressKey(control, key); }
  void Wheel(Screen& screen, int notches) override;
  void CloseScreen(Screen& screen) override;
  bool Shot(Screen&, const std::string&) override { return true; }
  void RunEvents() override {}

 private:
  Desktop& desktop_;
};

}  // namespace kontorwerk
