// What every control of a screen has in common: its name, whether it is seen and usable, its colours and tool tip, and
// its focus, key and hover events. A control holds its state and tells the desktop's observers what has changed;
// drawing it is the observers' business.
//
// Two roads lead into a control. The program's road (SetText, SetVisible ...) changes state. The user's road (User...,
// called by the windows and by the operator) changes state and raises the event of the action.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Colour.h"
#include "platform/Key.h"

namespace kontorwerk {

class Screen;
struct ControlDesign;

enum class ControlKind {
  TextBox,
  RichTextBox,
  Label,
  CommandButton,
  CheckBox,
  OptionButton,
  ComboBox,
  ListBox,
  ListView,
  MonthView,
  StatusBar,
  ProgressBar,
  ScrollBar,
  TabStrip,
  MenuEntry,
  Timer,
  Image,
};

// The kind's name, as forms and messages spell it: "TextBox".
[[nodiscard]] std::string_view KindName(ControlKind kind);

// What of a control has changed; `detail` of the notification is the row, panel or item concerned, -1 for all.
enum class Aspect {
  Text,
  Caption,
  Value,
  Items,
  ListIndex,
  Visible,
  Enabled,
  ToolTip,
  Colour,
  BackColour,
  Columns,
  Rows,
  RowLook,
  Selection,
  EnsureVisible,
  Panel,
  Date,
  BoldDays,
  Range,
  TextSelection,
  TimerState,
  Picture,
  Rtf,
};

class Control {
 public:
  static constexpr int kNoIndex = -1;

  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  [[nodiscard]] ControlKind Kind() const { return kind_; }
  [[nodiscard]] const std::string& Name() const { return name_; }  // Windows-1252
  [[nodiscard]] int Index() const { return index_; }               // place in a control array, or kNoIndex
  [[nodiscard]] Screen& Owner() const { return owner_; }

  [[nodiscard]] bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  void Show() { SetVisible(true); }
  void Hide() { SetVisible(false); }
  [[nodiscard]] bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  void Enable() { SetEnabled(true); }
  void Disable() { SetEnabled(false); }
  [[nodiscard]] const std::string& ToolTip() const { return toolTip_; }
  void SetToolTip(std::string_view toolTip);
  [[nodiscard]] const std::optional<Colour>& ForeColour() const { return foreColour_; }  // nothing: the default
  void SetForeColour(std::optional<Colour> colour);
  [[nodiscard]] const std::optional<Colour>& BackColour() const { return backColour_; }
  void SetBackColour(std::optional<Colour> colour);

  // True if the kind takes the focus at all and the control is enabled; labels, pictures and menu entries never do.
  [[nodiscard]] bool TakesFocus() const;
  // True if a user can act on it now: its screen and itself seen, enabled, and not locked.
  [[nodiscard]] virtual bool Usable() const;
  // Moves the focus here by program, with the leave and enter events; on a hidden screen only remembers it there.
  void SetFocus();
  [[nodiscard]] bool HasFocus() const;

  // Puts the control into the state of its form; called before each load of the screen.
  virtual void ResetToDesign(const ControlDesign* design);

  std::function<void()> OnEnter;    // the focus has come
  std::function<void()> OnLeave;    // the focus has gone on
  std::function<void(Key&)> OnKey;  // before the control itself uses the key
  std::function<void()> OnHover;    // the mouse has moved over it

  // What the control does with a key that its handler has left; sets `handled` if it used it.
  virtual void UseKey(Key& key);

 protected:
  Control(Screen& owner, ControlKind kind, std::string_view name, int index);
  void Notify(Aspect aspect, int detail = -1) const;
  static void Raise(const std::function<void()>& handler) {
    if (handler) handler();
  }

 private:
  friend class Desktop;

  Screen& owner_;
  ControlKind kind_;
  std::string name_;
  int index_;
  bool visible_ = true;
  bool enabled_ = true;
  std::string toolTip_;
  std::optional<Colour> foreColour_;
  std::optional<Colour> backColour_;
};

}  // namespace kontorwerk
