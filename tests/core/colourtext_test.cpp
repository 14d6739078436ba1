#include "core/colourtext.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

TEST(ColourText, HexPairsAreReadInAnyCaseAndUnchecked) {
  EXPECT_EQ(HexPairToByte("00"), 0);
  EXPECT_EQ(HexPairToByte("7f"), 0x7F);
  EXPECT_EQ(HexPairToByte("FF"), 0xFF);
  EXPECT_EQ(HexPairToByte("1G"), 0x20);
  EXPECT_EQ(HexPairToByte(""), 0);
}

TEST(ColourText, DigitsReadRedFirst) {
  EXPECT_EQ(HexToRgb("FF8001"), RgbColour(0xFF, 0x80, 0x01));
  EXPECT_EQ(HexToRgb(""), 0u);
}

TEST(ColourText, IsWrittenRedFirst) {
  EXPECT_EQ(ColorToHex(RgbColour(0xFF, 0x80, 0x01)), "FF8001");
  EXPECT_EQ(ColorToHex(0), "000000");
  EXPECT_EQ(HexToRgb(ColorToHex(0x00ABCDEF)), 0x00ABCDEFu);
}

TEST(ColourText, IsSixDigitsAndNothingElse) {
  for (const char* colour : {"000000", "FFFFFF", "12abEF"}) EXPECT_TRUE(IsHexColour(colour)) << colour;
  for (const char* other : {"", "12345", "1234567", "#12345", "12345G", "12 456"}) EXPECT_FALSE(IsHexColour(other)) << other;
}

}  // namespace
}  // namespace morlan
