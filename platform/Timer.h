// A timer of a screen. The surroundings watch the timers that are enabled and call Fire when one falls due.
#pragma once

#include <functional>
#include <string_view>

#include "platform/Control.h"

namespace kontorwerk {

class Timer final : public Control {
 public:
  enum class Start { Off, On };

  // `intervalMs` and the state at each load of the screen.
  Timer(Screen& owner, std::string_view name, int intervalMs, Start start)
      : Control(owner, ControlKind::Timer, name, kNoIndex),
        designIntervalMs_(intervalMs),
        intervalMs_(intervalMs),
        start_(start) {}

  [[nodiscard]] int IntervalMs() const { return intervalMs_; }
  void SetIntervalMs(int intervalMs);
  // Runs only while its screen is loaded. Enabling a timer that runs changes nothing.
  [[nodiscard]] bool Running() const { return running_; }
  void SetRunning(bool running);
  void Fire() { Raise(OnTimer); }

  void ResetToDesign(const ControlDesign* design) override;

  std::function<void()> OnTimer;

 private:
  int designIntervalMs_;
  int intervalMs_;
  Start start_;
  bool running_ = false;
};

}  // namespace kontorwerk
