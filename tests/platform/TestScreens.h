// A screen with one control of each kind, and a desktop that records what it is told.
#pragma once

#include <string>
#include <vector>

#include "platform/ChoiceControls.h"
#include "platform/ControlArray.h"
#include "platform/Desktop.h"
#include "platform/ListView.h"
#include "platform/MonthView.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "platform/Timer.h"
#include "store/Text.h"

namespace kontorwerk::test {

class TestScreen : public Screen {
 public:
  TestScreen(Desktop& desktop, std::string_view name) : Screen(desktop, name) {
    First.OnEnter = [this] { steps.push_back("enter First"); };
    First.OnLeave = [this] { steps.push_back("leave First"); };
    Second.OnEnter = [this] { steps.push_back("enter Second"); };
    Second.OnLeave = [this] { steps.push_back("leave Second"); };
    Second.OnChange = [this] { steps.push_back("change Second"); };
    Command1.OnClick = [this] { steps.push_back("click Command1"); };
    LGNr.Resize(3, [](TextBox&, int) {});
  }

  TextBox First{*this, "First"};
  TextBox Second{*this, "Second"};
  TextBox Straße{*this, "Straße"_t};
  RichTextBox Notizen{*this, "Notizen"};
  CommandButton Command1{*this, "Command1"};
  Label Label1{*this, "Label1"};
  CheckBox Check1{*this, "Check1"};
  OptionButton Netto{*this, "Netto"};
  OptionButton Brutto{*this, "Brutto"};
  ComboBox Combo{*this, "Combo"};
  ComboBox Locked{*this, "Locked"};
  ListView List{*this, "List"};
  MonthView Calendar{*this, "Calendar"};
  StatusBar StatusBar1{*this, "StatusBar1"};
  ScrollBar Bar{*this, "Bar"};
  MenuEntry Entry{*this, "Entry"};
  Timer Beat{*this, "Beat", 50, Timer::Start::Off};
  ControlArray<TextBox> LGNr{*this, "LGNr"};

  std::vector<std::string> steps;

  void OnWheel(int notches) override { Bar.SetValue(Bar.Value() - 3 * notches); }

 protected:
  void OnLoad() override { steps.push_back("load"); }
  void OnUnload() override { steps.push_back("unload"); }
};

}  // namespace kontorwerk::test
