#include "core/gapbuffer.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace morlan {
namespace {

using TextBuffer = GapBuffer<std::string>;

void Put(TextBuffer& buffer, std::size_t offset, std::size_t removed, const std::string& text) {
  std::copy(text.begin(), text.end(), buffer.Replace(offset, removed, text.size()));
}

std::string Stretch(const TextBuffer& buffer, std::size_t offset, std::size_t length) {
  std::string text(length, '?');
  buffer.CopyTo(text.data(), offset, length);
  return text;
}

TEST(GapBuffer, ReadsOnBothSidesOfTheGap) {
  TextBuffer buffer;
  buffer.Assign("abcdef");
  Put(buffer, 3, 0, "XY");
  EXPECT_EQ(buffer.GapStart(), 5u);
  EXPECT_EQ(buffer.At(4), 'Y');
  EXPECT_EQ(buffer.At(5), 'd');
  EXPECT_EQ(Stretch(buffer, 2, 4), "cXYd");
  EXPECT_EQ(std::string(buffer.Back(), 3), "def");
}

TEST(GapBuffer, WholeClosesTheGapAndKeepsTheLength) {
  TextBuffer buffer;
  buffer.Assign("abcdef");
  Put(buffer, 2, 2, "12345");
  EXPECT_EQ(buffer.Whole(), "ab12345ef");
  EXPECT_EQ(buffer.Whole().size(), buffer.Size());
  Put(buffer, 0, 1, "");
  EXPECT_EQ(buffer.Whole(), "b12345ef");
}

TEST(GapBuffer, TypingInOnePlaceKeepsTheGapThere) {
  TextBuffer buffer;
  buffer.Assign(std::string(100000, 'a'));
  Put(buffer, 50000, 0, "x");
  const char* const back = buffer.Back();
  for (std::size_t i = 1; i < 500; ++i) Put(buffer, 50000 + i, 0, "x");
  EXPECT_EQ(buffer.Back(), back) << "the characters behind the gap were moved";
}

TEST(GapBuffer, TheGapStaysASmallPartOfTheWhole) {
  TextBuffer buffer;
  buffer.Assign(std::string(1000000, 'a'));
  Put(buffer, 10, 0, "x");
  const std::size_t block = static_cast<std::size_t>(buffer.Back() - buffer.Front()) + buffer.Size() - buffer.GapStart();
  EXPECT_LT(block, 1100000u);
}

TEST(GapBuffer, AgreesWithAPlainStringOverManyEdits) {
  std::mt19937 random(7);
  TextBuffer buffer;
  std::string plain;
  for (int step = 0; step < 5000; ++step) {
    const std::size_t offset = random() % (plain.size() + 1);
    const std::size_t removed = random() % (std::min<std::size_t>(plain.size() - offset, 9) + 1);
    const std::string text(random() % (step % 100 == 0 ? 3000 : 12), static_cast<char>('a' + step % 26));
    plain.replace(offset, removed, text);
    Put(buffer, offset, removed, text);
    ASSERT_EQ(buffer.Size(), plain.size());
    const std::size_t from = random() % (plain.size() + 1), length = random() % (plain.size() - from + 1);
    ASSERT_EQ(Stretch(buffer, from, length), plain.substr(from, length)) << "step " << step;
    if (step % 50 == 0) {
      ASSERT_EQ(buffer.Whole(), plain) << "step " << step;
    }
  }
}

}  // namespace
}  // namespace morlan
