// The operator's hands: how a step of a script reaches a control. The headless driver calls the controls themselves,
// the other one works the real windows. A driver never decides whether a step is allowed; the operator has checked that
// before.
#pragma once

#include <string>
#include <string_view>

#include "platform/Key.h"
#include "store/Dates.h"

namespace kontorwerk {

class ChoiceControl;
class Control;
class Desktop;
class ListView;
class MonthView;
class Screen;

class Driver {
 public:
  virtual ~Driver() = default;
  // True if the focus is on the control afterwards, or if the control takes none.
  virtual bool MoveFocus(Control& control) = 0;
  virtual void Click(Control& control) = 0;
  // Row 0: on what is selected, or on a control without rows.
  virtual void DoubleClick(Control& control, int row) = 0;
  // The field holds exactly `text` afterwards, as if typed; a change event comes even if it held it before.
  virtual void SetText(Control& control, std::string_view text) = 0;
  virtual void Choose(ChoiceControl& control, int index) = 0;
  virtual void Tick(ListView& list, int row, bool ticked) = 0;
  virtual void Select(ListView& list, int row) = 0;
  virtual void Sort(ListView& list, int column) = 0;
  virtual void PickDate(MonthView& calendar, const Date& date) = 0;
  virtual void PressKey(Control& control, const Key& key) = 0;
  virtual void Wheel(Screen& screen, int notches) = 0;
  virtual void CloseScreen(Screen& screen) = 0;
  // Saves the screen's picture as PNG; `file` is a path of the machine in UTF-8. False if it could not be saved.
  virtual bool Shot(Screen& screen, const std::string& file) = 0;
  // Runs the events of the real world (sockets, processes) for a moment.
  virtual void RunEvents() = 0;
};

}  // namespace kontorwerk
