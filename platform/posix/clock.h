// The machine's clock.
#pragma once

#include <ctime>

#include "platform/services.h"

namespace morlan {

// A moment of the machine, as the wall clock shows it.
DateTime LocalTime(std::time_t moment);

class PosixClock : public Clock {
 public:
  DateTime Now() override;
  std::uint64_t Milliseconds() override;
};

}  // namespace morlan
