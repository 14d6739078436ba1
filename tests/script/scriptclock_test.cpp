#include "platform/script/scriptclock.h"

#include <gtest/gtest.h>

#include "tests/support/recordingplatform.h"

namespace morlan {
namespace {

TEST(ScriptClock, ReadsAMomentWithItsDayOfTheWeek) {
  EXPECT_EQ(ReadMoment("1998-05-04T12:30:07"), (DateTime{1998, 5, 4, 12, 30, 7, 1}));
  EXPECT_EQ(ReadMoment("2000-02-29T23:59:59"), (DateTime{2000, 2, 29, 23, 59, 59, 2}));
}

TEST(ScriptClock, RefusesWhatIsNoMoment) {
  for (const std::string_view text :
       {"", "1998-05-04", "1998-05-04 12:30:00", "1998-13-04T12:30:00", "1999-02-29T12:30:00", "1998-05-04T24:00:00", "1998-05-04T12:60:00",
        "1998-05-04T12:30:0", "1998-05-04T12:30:00Z", "1998-05-00T12:30:00", "199a-05-04T12:30:00"})
    EXPECT_EQ(ReadMoment(text), std::nullopt) << text;
}

TEST(ScriptClock, AStoppedClockMovesOnlyWhenItIsMoved) {
  StoppedClock real;
  real.milliseconds = 77;
  ScriptClock clock(real, DateTime{1998, 12, 31, 23, 59, 59, 4});
  EXPECT_EQ(clock.Milliseconds(), 0u);
  clock.MoveTo(999);
  EXPECT_EQ(clock.Now(), (DateTime{1998, 12, 31, 23, 59, 59, 4}));
  clock.MoveTo(1000);
  EXPECT_EQ(clock.Now(), (DateTime{1999, 1, 1, 0, 0, 0, 5}));
  clock.MoveTo(500);
  EXPECT_EQ(clock.Milliseconds(), 1000u);
}

TEST(ScriptClock, WithoutAMomentItIsTheRealClock) {
  StoppedClock real;
  real.milliseconds = 77;
  ScriptClock clock(real, std::nullopt);
  EXPECT_EQ(clock.Now(), real.now);
  EXPECT_EQ(clock.Milliseconds(), 77u);
  clock.MoveTo(50);
}

}  // namespace
}  // namespace morlan
