// All screens of the program, the one focus among their controls, and the observers that draw or record them.
//
// Focus: a move raises the leave event of the control that had it, then the enter event of the new one. A handler that
// moves the focus itself has the last word. Invariants: 1. at most one control has the focus; 2. a control is left only
// after it was entered; 3. unloading or hiding a screen takes its focus away without a leave event.
#pragma once

#include <string_view>
#include <vector>

#include "platform/Control.h"

namespace kontorwerk {

class Screen;

enum class ScreenEvent { Loaded, Shown, Hidden, Unloaded, Caption, Front, FocusMoved };

class DesktopObserver {
 public:
  virtual ~DesktopObserver() = default;
  virtual void OnScreen(Screen& screen, ScreenEvent event) = 0;
  virtual void OnControl(const Control& control, Aspect aspect, int detail) = 0;
  // A control array has grown or shrunk to `count` elements.
  virtual void OnArray(Screen& screen, std::string_view name, int count) = 0;
};

class Desktop {
 public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  // Observers must outlive the screens they observe or be removed before.
  void AddObserver(DesktopObserver& observer) { observers_.push_back(&observer); }
  void RemoveObserver(DesktopObserver& observer);

  // Makes a finished screen known, its controls in their form's state.
  void Add(Screen& screen);
  [[nodiscard]] const std::vector<Screen*>& Screens() const { return screens_; }
  [[nodiscard]] Screen* Find(std::string_view name) const;
  // The visible screen that was shown, brought to the front or used last; null if none is visible.
  [[nodiscard]] Screen* ActiveScreen() const;
  // The window system says that no window of the program is active (or one is again).
  void SetApplicationActive(bool active) { applicationActive_ = active; }
  [[nodiscard]] bool ApplicationActive() const { return applicationActive_; }

  [[nodiscard]] Control* Focus() const { return focus_; }
  // Moves the focus as a user does. True if it is on `target` afterwards; a control that takes none leaves the focus
  // where it is and gives true.
  bool MoveFocus(Control& target);
  // A key for the control: its handler, then the control itself, then Tab as a move in the order of work.
  void PressKey(Control& control, Key key);

 private:
  friend class Control;
  friend class Screen;
  friend class ControlArrayBase;

  void NotifyControl(const Control& control, Aspect aspect, int detail);
  void NotifyScreen(Screen& screen, ScreenEvent event);
  void NotifyArray(Screen& screen, std::string_view name, int count);
  void Activate(Screen& screen);
  void Remove(Screen& screen);
  void ForgetFocus(const Screen& screen);
  void ForgetControl(const Control& control);

  std::vector<Screen*> screens_;
  std::vector<Screen*> activeOrder_;  // the screen used last at the end
  std::vector<DesktopObserver*> observers_;
  Control* focus_ = nullptr;
  bool entered_ = false;
  bool applicationActive_ = true;
};

}  // namespace kontorwerk
