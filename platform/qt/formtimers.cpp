#include "platform/qt/formtimers.h"

#include "platform/forms/form.h"

namespace morlan {
namespace {

void Follow(const Timer& timer, QTimer& clock) {
  if (timer.Enabled() && timer.Interval() > 0)
    clock.start(timer.Interval());
  else
    clock.stop();
}

}  // namespace

FormTimers::FormTimers(Form& form) {
  for (Control* control : form.Controls()) {
    if (control->GetKind() != Control::Kind::Timer) continue;
    auto& timer = static_cast<Timer&>(*control);
    auto clock = std::make_unique<QTimer>();
    QObject::connect(clock.get(), &QTimer::timeout, clock.get(), [&timer] {
      if (timer.OnTimer) timer.OnTimer();
    });
    auto watch = std::make_unique<ControlWatch>(timer, [&timer, ticking = clock.get()](Aspect) { Follow(timer, *ticking); });
    Follow(timer, *clock);
    timers_.push_back({std::move(clock), std::move(watch)});
  }
}

}  // namespace morlan
