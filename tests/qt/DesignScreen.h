// A screen without any handler, with a control for each entry of a form's design: for tests of windows alone.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/ChoiceControls.h"
#include "platform/ControlArray.h"
#include "platform/FormDesign.h"
#include "platform/ListView.h"
#include "platform/MonthView.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

class DesignScreen final : public Screen {
 public:
  DesignScreen(Desktop& desktop, const ScreenDesign& design) : Screen(desktop, design.screen) {
    for (const ControlDesign& control : design.controls) Make(control);
    desktop.Add(*this);
  }

 private:
  void Make(const ControlDesign& design) {
    std::string name = design.name;
    int index = Control::kNoIndex;
    if (const std::size_t mark = name.find('('); mark != std::string::npos) {
      index = std::stoi(name.substr(mark + 1));
      name.resize(mark);
    }
    MakeAs<TextBox, RichTextBox, Label, CommandButton, CheckBox, OptionButton, ComboBox, ListBox, ListView, MonthView,
           StatusBar, ProgressBar, ScrollBar, TabStrip, MenuEntry, Image>(
        {"TextBox", "RichTextBox", "Label", "CommandButton", "CheckBox", "OptionButton", "ComboBox", "ListBox", "ListView",
         "MonthView", "StatusBar", "ProgressBar", "ScrollBar", "TabStrip", "MenuEntry", "Image"},
        design.kind, name, index);
  }

  template <typename... Kinds>
  void MakeAs(const std::vector<std::string>& names, const std::string& kind, const std::string& name, int index) {
    std::size_t place = 0;
    ((names[place++] == kind ? owned_.push_back(std::make_unique<Kinds>(*this, name, index)) : void()), ...);
  }

  std::vector<std::unique_ptr<Control>> owned_;
};

}  // namespace kontorwerk
