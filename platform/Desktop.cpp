#include "platform/Desktop.h"

#include <algorithm>

#include "platform/Screen.h"

namespace kontorwerk {

void Desktop::RemoveObserver(DesktopObserver& observer) { std::erase(observers_, &observer); }

void Desktop::Add(Screen& screen) {
  screens_.push_back(&screen);
  screen.ResetToDesign();
}

Screen* Desktop::Find(std::string_view name) const {
  const auto found =
      std::find_if(screens_.begin(), screens_.end(), [&](const Screen* screen) { return screen->Name() == name; });
  return found == screens_.end() ? nullptr : *found;
}

Screen* Desktop::ActiveScreen() const {
  const auto found =
      std::find_if(activeOrder_.rbegin(), activeOrder_.rend(), [](const Screen* screen) { return screen->Visible(); });
  return found == activeOrder_.rend() ? nullptr : *found;
}

void Desktop::Activate(Screen& screen) {
  std::erase(activeOrder_, &screen);
  activeOrder_.push_back(&screen);
}

bool Desktop::MoveFocus(Control& target) {
  if (!target.TakesFocus()) return true;
  if (&target.Owner() != ActiveScreen() && target.Owner().Visible()) Activate(target.Owner());
  if (focus_ == &target) return true;
  Control* const old = focus_;
  const bool leave = old && entered_ && old->Owner().Visible() && old->Enabled();
  focus_ = &target;
  entered_ = false;
  target.Owner().focused_ = &target;
  if (leave) Control::Raise(old->OnLeave);
  if (focus_ != &target) return false;
  if (!entered_) {
    entered_ = true;
    NotifyScreen(target.Owner(), ScreenEvent::FocusMoved);
    Control::Raise(target.OnEnter);
  }
  return focus_ == &target;
}

void Desktop::PressKey(Control& control, Key key) {
  if (control.OnKey) control.OnKey(key);
  if (key.handled) return;
  control.UseKey(key);
  if (key.handled || key.code != KeyCode::Tab || key.ctrl || key.alt) return;
  if (Control* next = control.Owner().NextInTabOrder(control, key.shift)) MoveFocus(*next);
}

// By index throughout: an observer may come or go while it is told.
void Desktop::NotifyControl(const Control& control, Aspect aspect, int detail) {
  for (std::size_t i = 0; i < observers_.size(); ++i) observers_[i]->OnControl(control, aspect, detail);
}

void Desktop::NotifyScreen(Screen& screen, ScreenEvent event) {
  for (std::size_t i = 0; i < observers_.size(); ++i) observers_[i]->OnScreen(screen, event);
}

void Desktop::NotifyArray(Screen& screen, std::string_view name, int count) {
  for (std::size_t i = 0; i < observers_.size(); ++i) observers_[i]->OnArray(screen, name, count);
}

void Desktop::Remove(Screen& screen) {
  ForgetFocus(screen);
  std::erase(screens_, &screen);
  std::erase(activeOrder_, &screen);
}

void Desktop::ForgetFocus(const Screen& screen) {
  if (focus_ && &focus_->Owner() == &screen) focus_ = nullptr;
}

void Desktop::ForgetControl(const Control& control) {
  if (focus_ == &control) focus_ = nullptr;
}

}  // namespace kontorwerk
