// Keeps the time of the Timer controls of forms, on the clock of a scripted session.
#pragma once

#include <cstdint>
#include <list>

#include "platform/forms/controls.h"
#include "platform/script/scriptclock.h"

namespace morlan {

class FormTimers : private ControlView {
 public:
  explicit FormTimers(ScriptClock& clock) : clock_(clock) {}

  // The timers of this form tick from now on. The form lives as long as this object ticks.
  void Adopt(Form& form);
  // Lets time pass; what falls due ticks in its order, equal moments in the order of adoption.
  void Pass(std::uint64_t milliseconds);
  // Ticks once what is due already.
  void TickDue();
  // Nothing ticks any more.
  void Stop() { stopped_ = true; }

 private:
  struct Entry {
    Timer* timer;
    std::uint64_t due;
    bool ticking = false;  // its handler runs, perhaps behind a question: it does not tick again meanwhile
  };
  void ControlChanged(Control& control, Aspect aspect) override;
  Entry* FirstDue(std::uint64_t until);
  void Tick(Entry& entry);

  ScriptClock& clock_;
  std::list<Entry> entries_;  // a handler may adopt further forms: entries stay where they are
  bool stopped_ = false;
};

}  // namespace morlan
