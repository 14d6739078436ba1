#include "text/spellingbits.h"

#include <gtest/gtest.h>

#include "platform/encoding.h"

namespace morlan {
namespace {

TEST(WordChecksum, IsTheReflectedCrc16OfTheBytes) {
  EXPECT_EQ(WordChecksum(""), 0);
  EXPECT_EQ(WordChecksum("123456789"), 0xBB3D);
  EXPECT_EQ(WordChecksum("a"), 0xE8C1);
  EXPECT_EQ(WordChecksum("A"), 0x30C0);
  EXPECT_EQ(WordChecksum("żółw"_pl), 0xF1E0) << "in Windows-1250";
}

TEST(WordNumber, GivesEveryLengthARegionOfItsOwn) {
  EXPECT_EQ(WordNumber("a"), 0xE8C1u + 65540);
  EXPECT_EQ(WordNumber("kot"), 0x0B5Cu + 65540 + 2 * 150000);
  EXPECT_EQ(WordNumber("żółw"_pl), 0xF1E0u + 65540 + 3 * 150000) << "the checksum has no sign";
}

TEST(WordNumber, IsBeyondTheLargestFrom41LettersOn) {
  EXPECT_EQ(WordNumber(std::string(40, 'x')), 5'960'547u);
  EXPECT_LE(WordNumber(std::string(40, 'x')), kLargestWordNumber);
  EXPECT_EQ(WordNumber(std::string(41, 'x')), 6'095'987u) << "the number is given all the same";
}

TEST(BitsHoldWord, TestsTheBitOfTheNumberFromTheLowest) {
  std::string bits(750'001, '\0');
  const std::uint64_t number = 0x0B5C + 65540 + 2 * 150000;
  bits[number / 8] = static_cast<char>(1 << number % 8);
  EXPECT_TRUE(BitsHoldWord(bits, "kot"));
  bits[number / 8] = static_cast<char>(~(1 << number % 8));
  EXPECT_FALSE(BitsHoldWord(bits, "kot"));
}

TEST(BitsHoldWord, LooksAWordUpAsItComes) {
  std::string bits = EmptyWordBits();
  SetWordBit(bits, "kot");
  EXPECT_TRUE(BitsHoldWord(bits, "kot"));
  EXPECT_FALSE(BitsHoldWord(bits, "Kot"));
  EXPECT_FALSE(BitsHoldWord(bits, "kota"));
  EXPECT_FALSE(BitsHoldWord(bits, ""));
}

TEST(BitsHoldWord, HoldsEveryWordThatSharesANumber) {
  std::string bits = EmptyWordBits();
  SetWordBit(bits, "adad");
  EXPECT_TRUE(BitsHoldWord(bits, "ahaa")) << "a set of numbers, not of words";
}

TEST(BitsHoldWord, FindsNothingBehindTheEndOfTheField) {
  std::string bits = EmptyWordBits();
  SetWordBit(bits, "kot");
  const std::size_t byte = WordNumber("kot") / 8;
  EXPECT_TRUE(BitsHoldWord(std::string_view(bits).substr(0, byte + 1), "kot"));
  EXPECT_FALSE(BitsHoldWord(std::string_view(bits).substr(0, byte), "kot"));
  EXPECT_FALSE(BitsHoldWord("", "kot"));
  EXPECT_FALSE(BitsHoldWord(std::string(750'001, '\xFF'), std::string(41, 'x')));
}

TEST(SetWordBit, LeavesOutWhatHasNoNumberInTheField) {
  std::string bits = EmptyWordBits();
  EXPECT_EQ(bits.size(), 750'001u);
  SetWordBit(bits, "");
  SetWordBit(bits, std::string(41, 'x'));
  EXPECT_EQ(bits, EmptyWordBits());
}

}  // namespace
}  // namespace morlan
