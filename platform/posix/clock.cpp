#include "platform/posix/clock.h"

#include <chrono>
#include <ctime>

namespace morlan {

DateTime LocalTime(std::time_t moment) {
  std::tm local{};
  ::localtime_r(&moment, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec, local.tm_wday};
}

DateTime PosixClock::Now() { return LocalTime(std::time(nullptr)); }

std::uint64_t PosixClock::Milliseconds() {
  const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count());
}

}  // namespace morlan
