// Controls in which the user chooses: tick boxes, option buttons, combo and list boxes, bars, tabs.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TextControls.h"

namespace kontorwerk {

class CheckBox final : public CaptionControl {
 public:
  CheckBox(Screen& owner, std::string_view name, int index = kNoIndex)
      : CaptionControl(owner, ControlKind::CheckBox, name, index) {}

  [[nodiscard]] bool Checked() const { return checked_; }
  [[nodiscard]] int Value() const { return checked_ ? 1 : 0; }
  // By program: raises OnChange if the value becomes another one, never OnClick.
  void SetChecked(bool checked);
  // The user has clicked it: the value turns, then OnChange, then OnClick.
  void UserToggle();

  void UseKey(Key& key) override;
  void ResetToDesign(const ControlDesign* design) override;

  std::function<void()> OnChange;

 private:
  bool checked_ = false;
};

// One of several options; the buttons of one container of the form exclude each other.
class OptionButton final : public CaptionControl {
 public:
  OptionButton(Screen& owner, std::string_view name, int index = kNoIndex)
      : CaptionControl(owner, ControlKind::OptionButton, name, index) {}

  [[nodiscard]] bool Value() const { return value_; }
  // By program: setting it on switches the others of its group off; never raises OnClick.
  void SetValue(bool value);
  // The user has clicked it: on, then OnClick (also if it was on before).
  void UserChoose();
  [[nodiscard]] const std::string& Group() const { return group_; }

  void UseKey(Key& key) override;
  void ResetToDesign(const ControlDesign* design) override;

 private:
  bool value_ = false;
  std::string group_;
};

// Entries of which one may be chosen. OnChange comes whenever the chosen entry becomes another one, by the user or
// by the program; OnClick only when the user chooses.
class ChoiceControl : public Control {
 public:
  static constexpr int kNone = -1;

  [[nodiscard]] const std::vector<std::string>& Items() const { return items_; }
  [[nodiscard]] int Count() const { return static_cast<int>(items_.size()); }
  // Replaces all entries; nothing is chosen afterwards.
  void SetItems(std::vector<std::string> items);
  void AddItem(std::string_view item);
  // Another text for the entry; the choice stays.
  void SetItem(int index, std::string_view text);
  void RemoveItem(int index);
  void ClearItems() { SetItems({}); }
  [[nodiscard]] int ListIndex() const { return listIndex_; }
  // An index outside the entries chooses nothing.
  void SetListIndex(int index);
  // The chosen entry's text, or what was typed into an editable combo.
  [[nodiscard]] const std::string& Text() const { return text_; }
  // Chooses the first entry of exactly this text; without one, nothing is chosen and the text stands as typed.
  void SetText(std::string_view text);

  void UserChoose(int index);
  void UserText(std::string_view text);

  void UseKey(Key& key) override;  // up and down
  void ResetToDesign(const ControlDesign* design) override;

  std::function<void()> OnChange;
  std::function<void()> OnClick;
  std::function<void()> OnDoubleClick;

 protected:
  using Control::Control;

 private:
  std::vector<std::string> items_;
  int listIndex_ = kNone;
  std::string text_;
};

class ComboBox final : public ChoiceControl {
 public:
  ComboBox(Screen& owner, std::string_view name, int index = kNoIndex)
      : ChoiceControl(owner, ControlKind::ComboBox, name, index) {}
};

class ListBox final : public ChoiceControl {
 public:
  ListBox(Screen& owner, std::string_view name, int index = kNoIndex)
      : ChoiceControl(owner, ControlKind::ListBox, name, index) {}
};

// A number between two bounds.
class RangeControl : public Control {
 public:
  [[nodiscard]] int Value() const { return value_; }
  [[nodiscard]] int Minimum() const { return minimum_; }
  [[nodiscard]] int Maximum() const { return maximum_; }
  // Clamped to the bounds; OnChange if it becomes another one.
  void SetValue(int value);
  void SetRange(int minimum, int maximum);
  void ResetToDesign(const ControlDesign* design) override;

  std::function<void()> OnChange;

 protected:
  using Control::Control;

 private:
  int value_ = 0;
  int minimum_ = 0;
  int maximum_ = 100;
};

class ProgressBar final : public RangeControl {
 public:
  ProgressBar(Screen& owner, std::string_view name, int index = kNoIndex)
      : RangeControl(owner, ControlKind::ProgressBar, name, index) {}
};

class ScrollBar final : public RangeControl {
 public:
  ScrollBar(Screen& owner, std::string_view name, int index = kNoIndex)
      : RangeControl(owner, ControlKind::ScrollBar, name, index) {}
};

// Tabs over pages; items are the captions, counted from 0 as in a list.
class TabStrip final : public ChoiceControl {
 public:
  TabStrip(Screen& owner, std::string_view name, int index = kNoIndex)
      : ChoiceControl(owner, ControlKind::TabStrip, name, index) {}
};

// Panels of text along the lower edge, counted from 1.
class StatusBar final : public Control {
 public:
  StatusBar(Screen& owner, std::string_view name, int index = kNoIndex)
      : Control(owner, ControlKind::StatusBar, name, index) {}

  // Empty for a panel that does not exist.
  [[nodiscard]] const std::string& Panel(int panel) const;
  void SetPanel(int panel, std::string_view text);
  [[nodiscard]] int PanelCount() const { return static_cast<int>(panels_.size()); }
  void ResetToDesign(const ControlDesign* design) override;

 private:
  std::vector<std::string> panels_ = std::vector<std::string>(4);
};

}  // namespace kontorwerk
