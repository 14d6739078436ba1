#include "core/sizetext.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

TEST(SizeText, DividesWhileAWholePartIsLeft) {
  EXPECT_EQ(SizeText(0), "0 B");
  EXPECT_EQ(SizeText(5), "5 B");
  EXPECT_EQ(SizeText(1023), "1023 B");
  EXPECT_EQ(SizeText(1024), "1 KB");
  EXPECT_EQ(SizeText(2048), "2 KB");
  EXPECT_EQ(SizeText(3 * 1024 * 1024), "3 MB");
}

TEST(SizeText, CutsBehindTwoDecimals) {
  EXPECT_EQ(SizeText(1536), "1.5 KB");
  EXPECT_EQ(SizeText(10000), "9.76 KB");
  EXPECT_EQ(SizeText(1047527424), "999 MB");
}

TEST(SizeText, StopsAtMegabytes) { EXPECT_EQ(SizeText(5ull * 1024 * 1024 * 1024), "5120 MB"); }

}  // namespace
}  // namespace morlan
