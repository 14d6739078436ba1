// The clock of a scripted session: the real one, or one that stands still until it is moved.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/services.h"

namespace morlan {

// "1998-05-04T12:30:00"; nothing when the text is no such moment.
std::optional<DateTime> ReadMoment(std::string_view text);

class ScriptClock : public Clock {
 public:
  // With a moment the clock stands still at it, without one it follows `real`.
  ScriptClock(Clock& real, std::optional<DateTime> stoppedAt);

  DateTime Now() override;
  std::uint64_t Milliseconds() override;
  // Lets time pass until Milliseconds() has reached the given value; a real clock makes the caller sleep.
  void MoveTo(std::uint64_t milliseconds);

 private:
  Clock& real_;
  std::optional<std::chrono::sys_seconds> stoppedAt_;
  std::uint64_t passed_ = 0;
};

}  // namespace morlan
