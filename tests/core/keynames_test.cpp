#include <gtest/gtest.h>

#include "core/menus.h"

namespace morlan {
namespace {

struct Case {
  const char* text;
  KeyPress press;
};

class KeyNames : public testing::TestWithParam<Case> {};

TEST_P(KeyNames, AreReadAndWritten) {
  const KeyPress press = KeyFromText(GetParam().text);
  EXPECT_EQ(GetParam().press.code, press.code);
  EXPECT_EQ(GetParam().press.shift, press.shift);
  EXPECT_EQ(GetParam().press.character, press.character);
  EXPECT_EQ(GetParam().text, TextOfKey(press));
}

INSTANTIATE_TEST_SUITE_P(All, KeyNames,
                         testing::Values(Case{"Ctrl+Z", {'Z', shift::kCtrl, 0}}, Case{"Shift+Insert", {45, shift::kShift, 0}},
                                         Case{"F4", {115, 0, 0}}, Case{"F12", {123, 0, 0}}, Case{"Delete", {46, 0, 0}},
                                         Case{"Backspace", {8, 0, 0}}, Case{"Ctrl+Shift+Tab", {9, 3, 0}},
                                         Case{"Ctrl+,", {188, shift::kCtrl, 0}}, Case{"Alt+Space", {32, shift::kAlt, 0}},
                                         Case{"Menu", {93, 0, 0}}, Case{"Enter", {13, 0, 13}}, Case{"Tab", {9, 0, 9}},
                                         Case{"Escape", {27, 0, 27}}, Case{"Space", {32, 0, ' '}}, Case{"A", {'A', 0, 'a'}},
                                         Case{"Shift+A", {'A', shift::kShift, 'A'}}, Case{"Shift+1", {'1', shift::kShift, '!'}},
                                         Case{"Ctrl+Alt+Shift+S", {'S', 7, 0}}, Case{"Ctrl+0", {'0', shift::kCtrl, 0}},
                                         Case{"Shift+=", {187, shift::kShift, '+'}}));

TEST(KeyFromText, TakesAnyLetterCaseAndOtherSpellings) {
  EXPECT_EQ(KeyFromText("Ctrl+Shift+S"), KeyFromText("shift+ctrl+s"));
  EXPECT_EQ(KeyFromText("Escape"), KeyFromText("esc"));
  EXPECT_EQ(KeyFromText("Delete"), KeyFromText("del"));
}

TEST(KeyFromText, AnswersCodeZeroForWhatNamesNoKey) {
  for (const char* text : {"", "Ctrl+", "F0", "F25", "F1x", "Krowa", "Ctrl+ą", "+"}) EXPECT_EQ(0, KeyFromText(text).code) << text;
}

}  // namespace
}  // namespace morlan
