#include "platform/posix/clock.h"

#include <gtest/gtest.h>

#include <ctime>

namespace morlan {
namespace {

TEST(PosixClock, TellsTheLocalTime) {
  PosixClock clock;
  const std::time_t before = std::time(nullptr);
  const DateTime now = clock.Now();
  std::tm fields{};
  fields.tm_year = now.year - 1900;
  fields.tm_mon = now.month - 1;
  fields.tm_mday = now.day;
  fields.tm_hour = now.hour;
  fields.tm_min = now.minute;
  fields.tm_sec = now.second;
  fields.tm_isdst = -1;
  const std::time_t told = std::mktime(&fields);
  EXPECT_GE(told, before);
  EXPECT_LE(told, before + 2);
  EXPECT_EQ(fields.tm_wday, now.dayOfWeek);
}

TEST(PosixClock, MillisecondsNeverGoBack) {
  PosixClock clock;
  const std::uint64_t before = clock.Milliseconds();
  EXPECT_GE(clock.Milliseconds(), before);
}

}  // namespace
}  // namespace morlan
