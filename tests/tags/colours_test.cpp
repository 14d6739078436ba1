#include "tags/colours.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

TEST(Colours, ShortNumbersHaveNoughtsInFront) {
  EXPECT_EQ(HexToLong("FF0000"), 0xFF0000u);
  EXPECT_EQ(HexToLong("80"), 0x80u);
  EXPECT_EQ(HexToLong("8080"), 0x8080u);
}

struct NamedColourRow {
  const char* name;
  Colour value;
};

// Blue in the low byte: the numbers are those of the digits, not of the colours.
TEST(Colours, NamedColoursHaveRedAndBlueExchangedOnPurpose) {
  constexpr NamedColourRow kRows[] = {
      {"black", 0x000000},  {"green", 0x008000},  {"silver", 0xC0C0C0},  {"lime", 0x00FF00}, {"gray", 0x808080}, {"olive", 0x808000},
      {"white", 0xFFFFFF},  {"yellow", 0xFFFF00}, {"maroon", 0x800000},  {"navy", 0x000080}, {"red", 0xFF0000},  {"blue", 0x0000FF},
      {"purple", 0x800080}, {"teal", 0x008080},   {"fuchsia", 0xFF00FF}, {"aqua", 0x00FFFF},
  };
  for (const NamedColourRow& row : kRows) EXPECT_EQ(ColorNameToValue(row.name), row.value) << row.name;
}

TEST(Colours, NamesAreReadInAnyCase) { EXPECT_EQ(ColorNameToValue("Red"), ColorNameToValue("red")); }

TEST(Colours, DigitsAreNotExchanged) { EXPECT_EQ(ColorNameToValue("FF0000"), RgbColour(0xFF, 0, 0)); }

// The pairs of "#FF0000" are "#F", "F0" and "00".
TEST(Colours, ANumberSignMovesThePairsOnPurpose) {
  const Colour colour = ColorNameToValue("#FF0000");
  EXPECT_EQ(colour >> 8 & 0xFF, 0xF0u) << "green";
  EXPECT_EQ(colour >> 16, 0u) << "blue";
}

}  // namespace
}  // namespace morlan
