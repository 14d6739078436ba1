#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "core/text.h"

namespace morlan {
namespace {

struct FindRow {
  std::string_view text, needle;
  std::size_t from, exact, noCase;
};

class FindTest : public testing::TestWithParam<FindRow> {};

TEST_P(FindTest, GivesThePositionFromOne) {
  const FindRow& row = GetParam();
  EXPECT_EQ(Find(row.text, row.needle, row.from), row.exact) << row.needle;
  EXPECT_EQ(FindNoCase(row.text, row.needle, row.from), row.noCase) << row.needle;
}

INSTANTIATE_TEST_SUITE_P(Rows, FindTest,
                         testing::Values(FindRow{"abcABC", "ABC", 1, 4, 1}, FindRow{"abcABC", "ABC", 2, 4, 4},
                                         FindRow{"abcABC", "ABC", 4, 4, 4}, FindRow{"abcABC", "ABC", 5, 0, 0},
                                         FindRow{"abc", "abc", 0, 1, 1}, FindRow{"abc", "abcd", 1, 0, 0}, FindRow{"abc", "", 1, 1, 1},
                                         FindRow{"abc", "", 4, 4, 4}, FindRow{"abc", "", 5, 0, 0}, FindRow{"", "", 1, 1, 1},
                                         FindRow{"", "a", 1, 0, 0}, FindRow{"abc", "c", 3, 3, 3}, FindRow{"abc", "C", 1, 0, 3},
                                         FindRow{"abc", "a", 99, 0, 0}, FindRow{"jeż ŻÓŁW"_pl, "żółw"_pl, 1, 0, 5},
                                         FindRow{"ĄĆĘ"_pl, "ę"_pl, 1, 0, 3}, FindRow{"straße"_pl, "ß"_pl, 1, 5, 5},
                                         FindRow{"xx\xD7\xF7", "\xF7", 1, 4, 4}));

// The plain meaning of a search, for comparison.
std::size_t Plainly(std::string_view text, std::string_view needle, std::size_t from) {
  const std::size_t hit = text.find(needle, from - 1);
  return hit == text.npos ? 0 : hit + 1;
}

TEST(Find, AgreesWithAPlainSearchOnTextsAroundTheSizeOfABlock) {
  std::mt19937 random(7);
  for (int round = 0; round < 4000; ++round) {
    std::string text(random() % 300, 'a'), needle(1 + random() % 9, 'a');
    for (char& c : text) c = "aAbBż "[random() % 6];
    for (char& c : needle) c = "aAbBż "[random() % 6];
    if (round % 2 == 0 && text.size() > needle.size()) needle = text.substr(random() % (text.size() - needle.size()), needle.size());
    const std::size_t from = 1 + random() % (text.size() + 1);
    ASSERT_EQ(Find(text, needle, from), Plainly(text, needle, from)) << text << '/' << needle;
    ASSERT_EQ(FindNoCase(text, needle, from), Plainly(LowerCase(text), LowerCase(needle), from)) << text << '/' << needle;
  }
}

TEST(Find, FindsAtEveryPlaceOfALongText) {
  const std::string blank(1000, '.');
  for (std::size_t at = 0; at + 6 <= blank.size(); ++at) {
    std::string text = blank;
    text.replace(at, 6, "<Title");
    ASSERT_EQ(Find(text, "<Title"), at + 1);
    ASSERT_EQ(FindNoCase(text, "<TITLE"), at + 1);
  }
}

TEST(Find, StaysLinearInARunOfTheSameCharacter) {
  const std::string text(4'000'000, 'a');
  for (const std::size_t place : {std::size_t{0}, std::size_t{1'000'000}, std::size_t{1'999'999}}) {
    std::string needle(2'000'000, 'a');
    needle[place] = 'b';
    EXPECT_EQ(Find(text, needle), 0u);
    EXPECT_EQ(FindNoCase(text, needle), 0u);
  }
}

TEST(Find, FindsWhatOnlyTheSearchWithoutLookingBackReaches) {
  std::string text, needle;
  for (int i = 0; i < 200'000; ++i) text += "ab";
  for (int i = 0; i < 20'000; ++i) needle += "ab";
  needle += "b";
  text += needle;
  EXPECT_EQ(Find(text, needle), 400'001u);
  EXPECT_EQ(FindNoCase(text, UpperCase(needle)), 400'001u);
}

}  // namespace
}  // namespace morlan
