// The machine's clock.
#pragma once

#include "platform/services.h"

namespace morlan {

class PosixClock : public Clock {
 public:
  DateTime Now() override;
  std::uint64_t Milliseconds() override;
};

}  // namespace morlan
