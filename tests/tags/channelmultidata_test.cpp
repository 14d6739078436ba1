#include "tags/channelmultidata.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

std::string Reread(std::string_view value) { return ChannelDateText(ReadChannelDate(value, {1, 2, 3, 4, 5})); }

TEST(ChannelDate, HasPointsNoZerosInFrontAndAFixedZone) {
  EXPECT_EQ(ChannelDateText({.year = 1998, .month = 5, .day = 4, .hour = 7, .minute = 0}), "1998.5.4T7:0-0500");
}

TEST(ChannelDate, IsReadWhateverStandsBetweenItsNumbers) {
  EXPECT_EQ(Reread("1998.5.4T12:30-0500"), "1998.5.4T12:30-0500");
  EXPECT_EQ(Reread("1998-05-04T12:30+0100"), "1998.5.4T12:30-0500");
  EXPECT_EQ(Reread("1998-05-04"), "1998.5.4T4:5-0500");
  EXPECT_EQ(Reread("wczoraj"), "1.2.3T4:5-0500");
  EXPECT_EQ(Reread(""), "1.2.3T4:5-0500");
}

class ChannelMultiData : public testing::Test {
 protected:
  std::string Asked(std::string_view value, const std::function<void(Channel_MultiData&)>& act = {}, bool ok = true) {
    test_.windows.modals.push_back([act, ok](Form& form) {
      auto& dialog = static_cast<Channel_MultiData&>(form);
      if (act) act(dialog);
      (ok ? dialog.Command2 : dialog.Command1).UserClicks();
    });
    return test_.program.forms.Get<Channel_MultiData>().Ask("Data publikacji:", value);
  }
  TestProgram test_;
};

TEST_F(ChannelMultiData, StartsFromNowOrFromTheValue) {
  EXPECT_EQ(Asked("", [](Channel_MultiData& dialog) { EXPECT_EQ(dialog.Info.Caption(), "Data publikacji:"); }), "1998.3.7T12:30-0500");
  EXPECT_EQ(Asked("1997.1.2T3:4-0500"), "1997.1.2T3:4-0500");
  EXPECT_EQ(Asked(""), "1998.3.7T12:30-0500");
}

TEST_F(ChannelMultiData, NumbersBeyondTheirBoundsAreCut) {
  EXPECT_EQ(Asked("99999999999.13.77T99:99"), "9999.12.31T23:59-0500");
  EXPECT_EQ(Asked("0.0.0T0:0"), "1.1.1T0:0-0500");
}

TEST_F(ChannelMultiData, TheFieldsMakeTheValue) {
  EXPECT_EQ(Asked("",
                  [](Channel_MultiData& dialog) {
                    dialog.Year_.UserSets(2001);
                    dialog.Month_.UserSets(12);
                    dialog.Day_.UserSets(31);
                    dialog.Hour_.UserSets(0);
                    dialog.Min_.UserSets(9);
                  }),
            "2001.12.31T0:9-0500");
}

TEST_F(ChannelMultiData, CancelAnswersWithNothing) { EXPECT_EQ(Asked("", {}, false), ""); }

}  // namespace
}  // namespace morlan
