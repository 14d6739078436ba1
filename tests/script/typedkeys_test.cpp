#include "platform/script/typedkeys.h"

#include <gtest/gtest.h>

#include "platform/encoding.h"

namespace morlan {
namespace {

TEST(TypedKeys, LettersDigitsAndSignsHaveTheKeysOfTheKeyboard) {
  struct Row {
    char character;
    int code, shift;
  };
  constexpr Row kRows[] = {
      {'a', 'A', shift::kNone},
      {'Z', 'Z', shift::kShift},
      {'7', '7', shift::kNone},
      {'&', '7', shift::kShift},
      {'.', key::kPeriod, shift::kNone},
      {'<', key::kComma, shift::kShift},
      {'"', key::kApostrophe, shift::kShift},
      {' ', key::kSpace, shift::kNone},
      {'\r', key::kEnter, shift::kNone},
      {'\t', key::kTab, shift::kNone},
  };
  for (const Row& row : kRows) EXPECT_EQ(KeyOfCharacter(row.character), (KeyPress{row.code, row.shift, row.character})) << row.character;
}

TEST(TypedKeys, PolishLettersComeWithoutShiftKeys) {
  constexpr std::string_view kLetters = "ąćęłńóśźżĄĆĘŁŃÓŚŹŻ"_pl, kKeys = "ACELNOSXZACELNOSXZ";
  for (std::size_t i = 0; i < kLetters.size(); ++i)
    EXPECT_EQ(KeyOfCharacter(kLetters[i]), (KeyPress{kKeys[i], shift::kNone, static_cast<unsigned char>(kLetters[i])}));
}

TEST(TypedKeys, EveryCharacterHasAKeyThatNoCommandTakesForItsOwn) {
  for (int character = ' '; character < 256; ++character) {
    const KeyPress press = KeyOfCharacter(static_cast<char>(character));
    EXPECT_EQ(press.character, character);
    EXPECT_NE(press.code, 0);
    EXPECT_NE(press.code, key::kDelete) << character;
    EXPECT_NE(press.code, key::kInsert) << character;
    EXPECT_FALSE(press.code > key::kSpace && press.code <= key::kDown) << character;
  }
}

}  // namespace
}  // namespace morlan
