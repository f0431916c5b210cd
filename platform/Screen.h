// One screen of the program: its caption, its controls by name, and its life.
//
//   state      event          step
//   unloaded   Load, Show     controls go to their form's state, OnLoad; Show: visible, OnActivate
//   loaded     Hide           hidden; all values stay
//   loaded     Unload         OnUnload, hidden, unloaded; the last values stay readable until the next load
//   visible    Close          OnCloseRequest: what the window button does, as a rule the screen's end command
//
// A caller that fills fields of a screen loads it first: a load puts the fields back to their form's state.
// Members of the screen that are no controls (flags between screens) are never reset by the base class.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Control.h"

namespace kontorwerk {

class Desktop;
struct ScreenDesign;

class Screen {
 public:
  virtual ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] Desktop& Owner() const { return desktop_; }
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);

  [[nodiscard]] bool Loaded() const { return loaded_; }
  [[nodiscard]] bool Visible() const { return visible_; }
  void Load();
  // Shown and brought to the front; an OnLoad that unloads the screen again leaves it unloaded.
  void Show();
  void Hide();
  void Unload();
  void Close();
  // In front of the other screens and active.
  void BringToFront();

  // All controls in the order of their making, array elements included.
  [[nodiscard]] const std::vector<Control*>& Controls() const { return controls_; }
  [[nodiscard]] Control* Find(std::string_view name, int index = Control::kNoIndex) const;
  // True if `name` is that of a control array, whatever its present size.
  [[nodiscard]] bool IsArray(std::string_view name) const;
  // The control that has, or will have, the focus when the screen is the active one; a screen that is shown begins with
  // the first of its order of work, unless a handler has chosen another. Null on a screen without such a control.
  [[nodiscard]] Control* FocusedControl() const { return focused_; }
  // The next usable control in the order of work, behind `control` (or in front of it); null if there is none.
  [[nodiscard]] Control* NextInTabOrder(const Control& control, bool backwards) const;
  [[nodiscard]] Control* FirstInTabOrder() const;
  [[nodiscard]] const ScreenDesign* Design() const { return design_; }
  // One turn of the mouse wheel: positive notches are away from the user.
  virtual void OnWheel(int notches) { (void)notches; }
  // Controls to their form's state. Called by the desktop once after construction and at each load.
  void ResetToDesign();

 protected:
  Screen(Desktop& desktop, std::string_view name);

  virtual void OnLoad() {}
  virtual void OnActivate() {}
  virtual void OnUnload() {}
  // Behind the unload: the screen is gone.
  virtual void OnUnloaded() {}
  virtual void OnCloseRequest() { Unload(); }

 private:
  friend class Control;
  friend class Desktop;
  friend class ControlArrayBase;

  void Register(Control& control) { controls_.push_back(&control); }
  void Unregister(Control& control);

  Desktop& desktop_;
  std::string name_;
  std::string caption_;
  const ScreenDesign* design_;
  bool loaded_ = false;
  bool visible_ = false;
  std::vector<Control*> controls_;
  std::vector<std::string> arrays_;
  Control* focused_ = nullptr;
};

}  // namespace kontorwerk
