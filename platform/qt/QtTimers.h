// Runs the timers of all screens by the real clock, for as long as the object lives.
#pragma once

#include <QTimer>
#include <memory>
#include <unordered_map>

#include "platform/Desktop.h"

namespace kontorwerk {

class Timer;

class QtTimers final : public DesktopObserver {
 public:
  explicit QtTimers(Desktop& desktop);
  ~QtTimers() override;

  void OnScreen(Screen& screen, ScreenEvent event) override;
  void OnControl(const Control& control, Aspect aspect, int detail) override;
  void OnArray(Screen&, std::string_view, int) override {}

 private:
  struct Clockwork {
    QTimer timer;
    bool atWork = false;  // its handler runs; it does not fire into itself
  };
  void Follow(Timer& timer);

  Desktop& desktop_;
  std::unordered_map<const Timer*, std::unique_ptr<Clockwork>> clockworks_;
};

}  // namespace kontorwerk
