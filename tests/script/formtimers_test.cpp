#include "platform/script/formtimers.h"

#include <gtest/gtest.h>

#include "platform/forms/form.h"
#include "tests/support/recordingplatform.h"

namespace morlan {
namespace {

struct FormTimersTest : testing::Test {
  struct TimedForm : Form {
    TimedForm() : Form("Zegary", "") {}
    Timer quick{*this, "quick", 100}, slow{*this, "slow", 250}, off{*this, "off", 10, false};
  };
  StoppedClock real;
  ScriptClock clock{real, DateTime{}};
  TimedForm form;
  FormTimers timers{clock};
  std::vector<std::string> ticks;

  void SetUp() override {
    for (Timer* timer : {&form.quick, &form.slow, &form.off})
      timer->OnTimer = [this, timer] { ticks.push_back(timer->Name() + std::to_string(clock.Milliseconds())); };
    timers.Adopt(form);
  }
};

TEST_F(FormTimersTest, WhatFallsDueTicksInItsOrder) {
  timers.Pass(500);
  EXPECT_EQ(ticks, (std::vector<std::string>{"quick100", "quick200", "slow250", "quick300", "quick400", "quick500", "slow500"}));
  EXPECT_EQ(clock.Milliseconds(), 500u);
}

TEST_F(FormTimersTest, TimeLeftOverCountsForTheNextWait) {
  timers.Pass(99);
  EXPECT_TRUE(ticks.empty());
  timers.Pass(1);
  EXPECT_EQ(ticks, std::vector<std::string>{"quick100"});
}

TEST_F(FormTimersTest, AdoptingAFormTwiceTicksOnce) {
  timers.Adopt(form);
  timers.Pass(100);
  EXPECT_EQ(ticks.size(), 1u);
}

TEST_F(FormTimersTest, SwitchingOnAndANewIntervalStartTheTimeAnew) {
  timers.Pass(50);
  form.quick.SetInterval(200);
  form.slow.SetEnabled(false);
  form.off.SetInterval(70);
  form.off.SetEnabled(true);
  timers.Pass(150);
  EXPECT_EQ(ticks, (std::vector<std::string>{"off120", "off190"}));
  timers.Pass(50);
  EXPECT_EQ(ticks.back(), "quick250");
}

TEST_F(FormTimersTest, AnIntervalOfZeroNeverTicks) {
  form.quick.SetInterval(0);
  timers.Pass(240);
  EXPECT_TRUE(ticks.empty());
}

TEST_F(FormTimersTest, AHandlerThatWaitsDoesNotTickAgainMeanwhile) {
  form.quick.OnTimer = [this] {
    ticks.push_back("quick" + std::to_string(clock.Milliseconds()));
    if (ticks.size() == 1) timers.Pass(220);
  };
  timers.Pass(150);
  EXPECT_EQ(ticks, (std::vector<std::string>{"quick100", "slow250"}));
  timers.Pass(100);
  EXPECT_EQ(ticks.back(), "quick420");
}

TEST_F(FormTimersTest, NothingTicksWhenStopped) {
  timers.Stop();
  timers.Pass(1000);
  EXPECT_TRUE(ticks.empty());
}

}  // namespace
}  // namespace morlan
