#include "core/text.h"

#include <gtest/gtest.h>

#include <limits>

namespace morlan {
namespace {

TEST(Text, ConcatPutsThePiecesBehindEachOther) {
  EXPECT_EQ(Concat({"a", "", "bc"}), "abc");
  EXPECT_EQ(Concat({}), "");
}

TEST(Text, TrimTakesBlanksOnly) {
  EXPECT_EQ(Trim("  a b \t "), "a b \t");
  EXPECT_EQ(TrimLeft("  a "), "a ");
  EXPECT_EQ(TrimRight("  a "), "  a");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(Text, StartsWithNoCaseKnowsPolishLetters) {
  EXPECT_TRUE(StartsWithNoCase("ŻÓŁW i jeż"_pl, "żółw"_pl));
  EXPECT_FALSE(StartsWithNoCase("żół"_pl, "żółw"_pl));
  EXPECT_TRUE(StartsWithNoCase("", ""));
}

struct NumberRow {
  std::string_view text;
  double number;
};

class LeadingNumberTest : public testing::TestWithParam<NumberRow> {};

TEST_P(LeadingNumberTest, Reads) { EXPECT_EQ(LeadingNumber(GetParam().text), GetParam().number) << GetParam().text; }

INSTANTIATE_TEST_SUITE_P(Rows, LeadingNumberTest,
                         testing::Values(NumberRow{"", 0}, NumberRow{"abc", 0}, NumberRow{"5,5x", 5}, NumberRow{"5.5x", 5.5},
                                         NumberRow{"  12 34", 12}, NumberRow{"-7", -7}, NumberRow{"+7", 7}, NumberRow{"--7", 0},
                                         NumberRow{".5", 0.5}, NumberRow{"-.5", -0.5}, NumberRow{"5.", 5}, NumberRow{".", 0},
                                         NumberRow{"1.2.3", 1.2}, NumberRow{"1e3", 1000}, NumberRow{"1E-2px", 0.01}, NumberRow{"1e", 1},
                                         NumberRow{"1e+", 1}, NumberRow{"1em", 1}, NumberRow{"e3", 0}, NumberRow{"inf", 0},
                                         NumberRow{"nan", 0}, NumberRow{"0x10", 0}, NumberRow{"100%", 100}));

TEST(Text, ANumberOutOfRangeGoesToItsEnd) {
  EXPECT_EQ(LeadingNumber("1e999999999999"), std::numeric_limits<double>::max());
  EXPECT_EQ(LeadingNumber("-1e999"), -std::numeric_limits<double>::max());
  EXPECT_EQ(LeadingNumber("1e-999"), 0);
  EXPECT_EQ(LeadingNumber("00" + std::string(400, '9')), std::numeric_limits<double>::max());
}

TEST(Text, LeadingIntegerCutsTheFractionAndKeepsTo32Bits) {
  EXPECT_EQ(LeadingInteger("12.9"), 12);
  EXPECT_EQ(LeadingInteger("-12.9"), -12);
  EXPECT_EQ(LeadingInteger("99999999999"), 2147483647);
  EXPECT_EQ(LeadingInteger("-99999999999"), -2147483647 - 1);
  EXPECT_EQ(LeadingInteger("nic"), 0);
}

TEST(Text, NumberTextHasNoLeadingBlank) {
  EXPECT_EQ(NumberText(std::int64_t{0}), "0");
  EXPECT_EQ(NumberText(std::int64_t{-15}), "-15");
  EXPECT_EQ(NumberText(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
  EXPECT_EQ(NumberText(2.5), "2.5");
  EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(NumberText(100.0), "100");
}

TEST(Text, ReplacedReplacesEachHitOnce) {
  EXPECT_EQ(Replaced("a.b.c", ".", ".."), "a..b..c");
  EXPECT_EQ(Replaced("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Replaced("abc", "", "x"), "abc");
  EXPECT_EQ(Replaced("abc", "z", "x"), "abc");
  EXPECT_EQ(Replaced("abab", "ab", ""), "");
}

}  // namespace
}  // namespace morlan
