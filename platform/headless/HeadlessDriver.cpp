#include "platform/headless/HeadlessDriver.h"

#include "platform/ChoiceControls.h"
#include "platform/ListView.h"
#include "platform/MonthView.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

void HeadlessDriver::Click(Control& control) {
  switch (control.Kind()) {
    case ControlKind::CheckBox:
      static_cast<CheckBox&>(control).UserToggle();
      break;
    case ControlKind::OptionButton:
      static_cast<OptionButton&>(control).UserChoose();
      break;
    case ControlKind::Label:
    case ControlKind::Image:
    case ControlKind::CommandButton:
    case ControlKind::MenuEntry:
      static_cast<CaptionControl&>(control).UserClick();
      break;
    case ControlKind::ListView:
      static_cast<ListView&>(control).UserClick(0);
      break;
    case ControlKind::TextBox:
    case ControlKind::RichTextBox:
      if (auto& box = static_cast<TextBox&>(control); box.OnClick) box.OnClick();
      break;
    default:
      break;
  }
}

void HeadlessDriver::DoubleClick(Control& control, int row) {
  const auto raise = [](const std::function<void()>& handler) {
    if (handler) handler();
  };
  switch (control.Kind()) {
    case ControlKind::ListView:
      static_cast<ListView&>(control).UserDoubleClick(row);
      break;
    case ControlKind::TextBox:
    case ControlKind::RichTextBox:
      raise(static_cast<TextBox&>(control).OnDoubleClick);
      break;
    case ControlKind::ComboBox:
    case ControlKind::ListBox:
      raise(static_cast<ChoiceControl&>(control).OnDoubleClick);
      break;
    case ControlKind::Label:
    case ControlKind::Image:
      raise(static_cast<CaptionControl&>(control).OnDoubleClick);
      break;
    default:
      break;
  }
}

void HeadlessDriver::SetText(Control& control, std::string_view text) {
  if (control.Kind() == ControlKind::ComboBox)
    static_cast<ChoiceControl&>(control).UserText(text);
  else
    static_cast<TextBox&>(control).UserText(text);
}

void HeadlessDriver::Choose(ChoiceControl& control, int index) { control.UserChoose(index); }

void HeadlessDriver::Tick(ListView& list, int row, bool ticked) { list.UserTick(row, ticked); }

void HeadlessDriver::Select(ListView& list, int row) { list.UserClick(row); }

void HeadlessDriver::Sort(ListView& list, int column) { list.UserSort(column); }

void HeadlessDriver::PickDate(MonthView& calendar, const Date& date) { calendar.UserDate(date); }

void HeadlessDriver::Wheel(Screen& screen, int notches) { screen.OnWheel(notches); }

void HeadlessDriver::CloseScreen(Screen& screen) { screen.Close(); }

}  // namespace kontorwerk
