#include "text/recentwords.h"

#include <gtest/gtest.h>

#include <string>

namespace morlan {
namespace {

TEST(RecentWords, HasTheWordsThatWereAddedUntilTheyAreCleared) {
  RecentWords words;
  EXPECT_FALSE(words.Has("kot"));
  EXPECT_FALSE(words.Has(""));
  words.Add("kot");
  EXPECT_TRUE(words.Has("kot"));
  EXPECT_FALSE(words.Has("kota"));
  EXPECT_FALSE(words.Has("ko"));
  words.Clear();
  EXPECT_FALSE(words.Has("kot"));
}

TEST(RecentWords, NeverHasAWordThatWasNotAdded) {
  RecentWords words;
  for (int i = 0; i < 50'000; ++i) words.Add("tak" + std::to_string(i));
  for (int i = 0; i < 50'000; ++i) EXPECT_FALSE(words.Has("nie" + std::to_string(i)));
  EXPECT_TRUE(words.Has("tak49999"));
}

TEST(RecentWords, DoesNotKeepLongWords) {
  RecentWords words;
  words.Add(std::string(31, 'x'));
  words.Add(std::string(32, 'y'));
  EXPECT_TRUE(words.Has(std::string(31, 'x')));
  EXPECT_FALSE(words.Has(std::string(32, 'y')));
}

}  // namespace
}  // namespace morlan
