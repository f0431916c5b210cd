// Windows come and go with their screens; focus goes to the core first and from there to the widgets.
#include "platform/qt/QtDesktop.h"

#include "platform/Screen.h"

namespace kontorwerk {
namespace {

constexpr qint64 kActivationMs = 1000;

}  // namespace

QtDesktop::QtDesktop(Desktop& desktop) : desktop_(desktop) { desktop.AddObserver(*this); }

QtDesktop::~QtDesktop() { desktop_.RemoveObserver(*this); }

ScreenWindow* QtDesktop::WindowOf(const Screen& screen) const {
  const auto found = windows_.find(&screen);
  return found == windows_.end() ? nullptr : found->second.get();
}

ScreenWindow& QtDesktop::MakeWindow(Screen& screen) {
  if (ScreenWindow* window = WindowOf(screen)) return *window;
  return *(windows_[&screen] = std::make_unique<ScreenWindow>(screen, *this));
}

ScreenWindow& QtDesktop::MakeWindow(Screen& screen, const FormFile& form) {
  return *(windows_[&screen] = std::make_unique<ScreenWindow>(screen, *this, form));
}

std::vector<std::string> QtDesktop::CheckForms() const {
  std::vector<std::string> faults;
  for (const Screen* screen : desktop_.Screens())
    for (std::string& fault : CheckForm(*screen)) faults.push_back(std::move(fault));
  return faults;
}

bool QtDesktop::Take(Control& control) {
  if (!control.TakesFocus() || desktop_.Focus() == &control) return true;
  const bool taken = desktop_.MoveFocus(control);
  SyncFocus();
  return taken;
}

void QtDesktop::SyncFocus() {
  const Control* focused = desktop_.Focus();
  if (focused == nullptr) return;
  ScreenWindow* window = WindowOf(focused->Owner());
  if (window == nullptr || !window->Window().isVisible()) return;
  window->FocusOn(*focused);
  if (!window->Window().isActiveWindow()) BringForward(*window);
}

void QtDesktop::BringForward(ScreenWindow& window) {
  if (!window.Window().isActiveWindow()) {
    awaited_ = &window;
    awaitedSince_.start();
  }
  if (window.Window().isMinimized()) window.Window().showNormal();
  window.Window().raise();
  window.Window().activateWindow();
}

// Of several windows that the program has shown one after the other, the window system may activate the earlier ones
// late: only a change that the program did not ask for is the user's.
void QtDesktop::OnActivated(ScreenWindow& window) {
  const bool waiting = awaited_ != nullptr && awaitedSince_.elapsed() < kActivationMs;
  if (waiting && awaited_ != &window) return;
  awaited_ = nullptr;
  if (!waiting && desktop_.ActiveScreen() != &window.Of()) window.Of().BringToFront();
}

void QtDesktop::ThemeChanged() {
  for (const auto& [screen, window] : windows_) window->ThemeChanged();
}

void QtDesktop::Settle() {
  for (const auto& [screen, window] : windows_) window->Settle();
}

void QtDesktop::OnScreen(Screen& screen, ScreenEvent event) {
  if (event == ScreenEvent::Loaded) MakeWindow(screen);
  ScreenWindow* window = WindowOf(screen);
  if (window == nullptr) return;
  switch (event) {
    case ScreenEvent::Loaded:
      break;
    case ScreenEvent::Shown:
      window->Appear();
      BringForward(*window);
      break;
    case ScreenEvent::Hidden:
    case ScreenEvent::Unloaded:
      OnGone(screen);
      break;
    case ScreenEvent::Caption:
      window->ShowCaption();
      break;
    case ScreenEvent::Front:
      BringForward(*window);
      break;
    case ScreenEvent::FocusMoved:
      SyncFocus();
      break;
  }
}

// The screen that was used before takes over; which one that is, the window system does not decide.
void QtDesktop::OnGone(Screen& screen) {
  ScreenWindow* window = WindowOf(screen);
  if (!window->Window().isVisible()) return;
  const bool wasActive = window->Window().isActiveWindow();
  window->Disappear();
  if (awaited_ == window) awaited_ = nullptr;
  const Screen* next = desktop_.ActiveScreen();
  ScreenWindow* nextWindow = next == nullptr ? nullptr : WindowOf(*next);
  if (wasActive && nextWindow != nullptr) BringForward(*nextWindow);
}

void QtDesktop::OnControl(const Control& control, Aspect aspect, int detail) {
  if (ScreenWindow* window = WindowOf(control.Owner())) window->Update(control, aspect, detail);
}

void QtDesktop::OnArray(Screen& screen, std::string_view name, int count) {
  if (ScreenWindow* window = WindowOf(screen)) window->OnArray(name, count);
}

}  // namespace kontorwerk
