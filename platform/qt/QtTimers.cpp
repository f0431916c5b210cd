// One clockwork a timer, made when it is first heard of and kept.
#include "platform/qt/QtTimers.h"

#include "platform/Screen.h"
#include "platform/Timer.h"

namespace kontorwerk {

QtTimers::QtTimers(Desktop& desktop) : desktop_(desktop) { desktop.AddObserver(*this); }

QtTimers::~QtTimers() { desktop_.RemoveObserver(*this); }

void QtTimers::OnScreen(Screen& screen, ScreenEvent event) {
  if (event != ScreenEvent::Loaded && event != ScreenEvent::Unloaded) return;
  for (Control* control : screen.Controls())
    if (control->Kind() == ControlKind::Timer) Follow(static_cast<Timer&>(*control));
}

void QtTimers::OnControl(const Control& control, Aspect aspect, int) {
  if (aspect != Aspect::TimerState) return;
  // The observer is shown the control as one that it does not change; firing it is the timer's own business.
  for (Control* own : control.Owner().Controls())
    if (own == &control) Follow(static_cast<Timer&>(*own));
}

void QtTimers::Follow(Timer& timer) {
  std::unique_ptr<Clockwork>& clockwork = clockworks_[&timer];
  if (!clockwork) {
    clockwork = std::make_unique<Clockwork>();
    QObject::connect(&clockwork->timer, &QTimer::timeout, [&timer, works = clockwork.get()] {
      if (works->atWork || !timer.Running()) return;
      works->atWork = true;
      timer.Fire();
      works->atWork = false;
    });
  }
  QTimer& real = clockwork->timer;
  if (!timer.Running()) {
    real.stop();
  } else if (!real.isActive() || real.interval() != timer.IntervalMs()) {
    real.start(timer.IntervalMs());
  }
}

}  // namespace kontorwerk
