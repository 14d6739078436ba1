#include "platform/encoding.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

TEST(Encoding, LiteralsAreWindows1250) {
  EXPECT_EQ("Zażółć gęślą jaźń"_pl, "Za\xBF\xF3\xB3\xE6 g\xEA\x9Cl\xB9 ja\x9F\xF1");
  EXPECT_EQ("ŁĄĆĘŃÓŚŹŻ"_pl, "\xA3\xA5\xC6\xCA\xD1\xD3\x8C\x8F\xAF");
  EXPECT_EQ("€–„”…"_pl, "\x80\x96\x84\x94\x85");
  EXPECT_EQ(""_pl, "");
}

TEST(Encoding, EveryByteSurvivesTheWayToUtf8AndBack) {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  EXPECT_EQ(FromUtf8(ToUtf8(bytes)), bytes);
}

TEST(Encoding, WhatThePageLacksBecomesAQuestionMarkOrAReference) {
  EXPECT_EQ(FromUtf8("a→😀"), "a??");
  EXPECT_EQ(FromUtf8("a→😀", Unmappable::NumericReference), "a&#8594;&#128512;");
}

TEST(Encoding, MalformedUtf8IsOneQuestionMarkAByte) {
  EXPECT_EQ(FromUtf8("a\xC5"), "a?");
  EXPECT_EQ(FromUtf8("\xC0\xAF"), "??");
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), "???");
  EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), "????");
  EXPECT_EQ(FromUtf8("\xE2\x82z"), "??z");
  EXPECT_EQ(FromUtf8("\xFF", Unmappable::NumericReference), "?");
}

}  // namespace
}  // namespace morlan
