#include "platform/qt/readablecolour.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

constexpr Colour kWhite = RgbColour(255, 255, 255), kBlack = RgbColour(0, 0, 0), kDark = RgbColour(30, 30, 32);

TEST(ReadableColour, ContrastRunsFromOneToTwentyOne) {
  EXPECT_NEAR(Contrast(kWhite, kWhite), 1, 1e-9);
  EXPECT_NEAR(Contrast(kWhite, kBlack), 21, 1e-9);
  EXPECT_NEAR(Contrast(kBlack, kWhite), 21, 1e-9);
}

TEST(ReadableColour, ReadableColoursStayAsChosen) {
  for (const Colour colour : {kBlack, RgbColour(0, 0, 255), RgbColour(0, 128, 0), RgbColour(128, 128, 128), RgbColour(255, 0, 0)})
    EXPECT_EQ(ReadableOn(colour, kWhite), colour) << colour;
  EXPECT_EQ(ReadableOn(RgbColour(220, 220, 220), kDark), RgbColour(220, 220, 220));
}

TEST(ReadableColour, BlackTextTurnsWhiteOnBlack) { EXPECT_EQ(ReadableOn(kBlack, kBlack), kWhite); }

TEST(ReadableColour, TheFourColoursCanBeReadOnDark) {
  for (const Colour colour :
       {kBlack, RgbColour(0, 0, 255), RgbColour(0, 128, 0), RgbColour(128, 128, 128), RgbColour(128, 0, 0), RgbColour(0, 0, 128)})
    EXPECT_GE(Contrast(ReadableOn(colour, kDark), kDark), 3) << colour;
}

TEST(ReadableColour, AMovedColourKeepsItsHue) {
  const Colour blue = ReadableOn(RgbColour(0, 0, 128), kDark);
  EXPECT_EQ(RedOf(blue), GreenOf(blue));
  EXPECT_GT(BlueOf(blue), RedOf(blue));
  const Colour red = ReadableOn(RgbColour(96, 0, 0), kDark);
  EXPECT_EQ(GreenOf(red), BlueOf(red));
  EXPECT_GT(RedOf(red), GreenOf(red));
}

TEST(ReadableColour, PaleColoursAreDarkenedOnWhite) {
  const Colour shown = ReadableOn(RgbColour(255, 255, 0), kWhite);
  EXPECT_GE(Contrast(shown, kWhite), 4.5);
  EXPECT_EQ(BlueOf(shown), 0);
}

TEST(ReadableColour, MixesByShare) {
  EXPECT_EQ(Mixed(kWhite, kBlack, 1), kWhite);
  EXPECT_EQ(Mixed(kWhite, kBlack, 0), kBlack);
  EXPECT_EQ(Mixed(RgbColour(200, 100, 0), kBlack, 0.5), RgbColour(100, 50, 0));
}

}  // namespace
}  // namespace morlan
