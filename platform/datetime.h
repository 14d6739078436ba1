// A moment by the wall clock of this machine.
#pragma once

namespace morlan {

struct DateTime {
  int year = 1970, month = 1, day = 1;  // month and day from 1
  int hour = 0, minute = 0, second = 0;
  int dayOfWeek = 4;  // 0 is Sunday
  bool operator==(const DateTime&) const = default;
};

}  // namespace morlan
