#include "platform/Timer.h"

#include "platform/FormDesign.h"
#include "platform/Screen.h"

namespace kontorwerk {

void Timer::SetIntervalMs(int intervalMs) {
  if (intervalMs_ == intervalMs) return;
  intervalMs_ = intervalMs;
  Notify(Aspect::TimerState);
}

void Timer::SetRunning(bool running) {
  if (running_ == running) return;
  running_ = running;
  Notify(Aspect::TimerState);
}

void Timer::ResetToDesign(const ControlDesign* design) {
  (void)design;
  SetIntervalMs(designIntervalMs_);
  SetRunning(Owner().Loaded() && start_ == Start::On);
}

}  // namespace kontorwerk
