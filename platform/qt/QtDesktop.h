// The windows of all screens. The desktop of the core decides where the focus is; what the user does at a window is
// taken there first, and the toolkit's own focus follows.
//
// A window that comes to the front by program takes the toolkit's focus at once, but the core hears of it only with
// the user's first act in it: so a field is left exactly when the user goes on.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/Desktop.h"
#include "platform/qt/ScreenWindow.h"

namespace kontorwerk {

class QtDesktop final : public QObject, public DesktopObserver {
 public:
  explicit QtDesktop(Desktop& desktop);
  ~QtDesktop() override;

  [[nodiscard]] Desktop& Core() const { return desktop_; }
  // Null if the screen was never loaded.
  [[nodiscard]] ScreenWindow* WindowOf(const Screen& screen) const;
  // Makes the window before the screen is loaded; at most once a screen.
  ScreenWindow& MakeWindow(Screen& screen);
  ScreenWindow& MakeWindow(Screen& screen, const FormFile& form);

  // The faults of all screens' forms, see CheckForm.
  [[nodiscard]] std::vector<std::string> CheckForms() const;

  // The user turns to a control. False if the focus is somewhere else afterwards.
  bool Take(Control& control);
  void OnActivated(ScreenWindow& window);
  void ThemeChanged();
  void Settle();

  // While a script works the windows, widgets do nothing of their own with a key.
  void SetOperated(bool operated) { operated_ = operated; }
  [[nodiscard]] bool Operated() const { return operated_; }
  // How many modal boxes have come so far.
  void CountModal() { ++modalCount_; }
  [[nodiscard]] int ModalCount() const { return modalCount_; }

  // DesktopObserver
  void OnScreen(Screen& screen, ScreenEvent event) override;
  void OnControl(const Control& control, Aspect aspect, int detail) override;
  void OnArray(Screen& screen, std::string_view name, int count) override;

 private:
  void SyncFocus();
  void BringForward(ScreenWindow& window);
  void OnGone(Screen& screen);

  Desktop& desktop_;
  std::unordered_map<const Screen*, std::unique_ptr<ScreenWindow>> windows_;
  // The window that the program has asked to the front and that the window system has not put there yet.
  const ScreenWindow* awaited_ = nullptr;
  QElapsedTimer awaitedSince_;
  bool operated_ = false;
  int modalCount_ = 0;
};

}  // namespace kontorwerk
