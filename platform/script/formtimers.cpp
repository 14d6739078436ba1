#include "platform/script/formtimers.h"

#include <algorithm>

#include "platform/forms/form.h"

namespace morlan {

void FormTimers::Adopt(Form& form) {
  for (Control* control : form.Controls()) {
    auto* timer = dynamic_cast<Timer*>(control);
    const auto isKnown = [&](const Entry& entry) { return entry.timer == timer; };
    if (!timer || std::any_of(entries_.begin(), entries_.end(), isKnown)) continue;
    timer->AttachView(this);
    entries_.push_back({timer, clock_.Milliseconds() + static_cast<std::uint64_t>(std::max(0, timer->Interval()))});
  }
}

// Switching a timer on or giving it another interval starts its time anew.
void FormTimers::ControlChanged(Control& control, Aspect) {
  for (Entry& entry : entries_)
    if (entry.timer == &control) entry.due = clock_.Milliseconds() + static_cast<std::uint64_t>(std::max(0, entry.timer->Interval()));
}

FormTimers::Entry* FormTimers::FirstDue(std::uint64_t until) {
  Entry* first = nullptr;
  for (Entry& entry : entries_) {
    const bool runs = entry.timer->Enabled() && entry.timer->Interval() > 0 && !entry.ticking;
    if (runs && entry.due <= until && (!first || entry.due < first->due)) first = &entry;
  }
  return first;
}

void FormTimers::Tick(Entry& entry) {
  const auto interval = static_cast<std::uint64_t>(entry.timer->Interval());
  entry.due += interval;
  // Ticks that a busy program missed are not made up for.
  if (entry.due <= clock_.Milliseconds()) entry.due = clock_.Milliseconds() + interval;
  if (!entry.timer->OnTimer) return;
  entry.ticking = true;
  entry.timer->OnTimer();
  entry.ticking = false;
}

void FormTimers::Pass(std::uint64_t milliseconds) {
  const std::uint64_t end = clock_.Milliseconds() + milliseconds;
  while (!stopped_) {
    Entry* entry = FirstDue(end);
    if (!entry) break;
    clock_.MoveTo(entry->due);
    Tick(*entry);
  }
  if (!stopped_) clock_.MoveTo(end);
}

void FormTimers::TickDue() {
  const std::uint64_t now = clock_.Milliseconds();
  for (Entry* entry = FirstDue(now); entry && !stopped_; entry = FirstDue(now)) Tick(*entry);
}

}  // namespace morlan
