#include <gtest/gtest.h>

#include "core/editsurface.h"
#include "core/text.h"

namespace morlan {
namespace {

class EditKeys : public testing::Test {
 protected:
  // "|" marks the caret.
  void Start(std::string_view marked) {
    const std::size_t caret = marked.find('|');
    editor.SetText(Concat({marked.substr(0, caret), marked.substr(caret + 1)}));
    editor.SetSelStart(caret);
  }
  // Presses a key and answers with the text, the caret marked by "|" and the other end of a selection by "^".
  std::string Press(int code, int shift = shift::kNone, int times = 1) {
    for (int i = 0; i < times; ++i) editor.PerformKey({.code = code, .shift = shift}, nullptr);
    return Marked();
  }
  std::string Typed(char character) {
    editor.PerformCharacter(character);
    return Marked();
  }
  std::string Marked() const {
    std::string text = editor.Text();
    const std::size_t caret = editor.Caret(), anchor = editor.Anchor();
    text.insert(std::max(caret, anchor), caret >= anchor ? "|" : "^");
    if (caret != anchor) text.insert(std::min(caret, anchor), caret < anchor ? "|" : "^");
    return text;
  }
  MlnEditor editor;
};

TEST_F(EditKeys, LeftAndRightNeverStopInsideALineEnd) {
  Start("a|\r\nb");
  EXPECT_EQ(Press(key::kRight), "a\r\n|b");
  EXPECT_EQ(Press(key::kLeft), "a|\r\nb");
}

TEST_F(EditKeys, ALoneLfAndALoneCrAreOneStepEach) {
  Start("a|\n\rb");
  EXPECT_EQ(Press(key::kRight), "a\n|\rb");
  EXPECT_EQ(Press(key::kRight), "a\n\r|b");
}

TEST_F(EditKeys, LeftAndRightStayAtTheEnds) {
  Start("|ab");
  EXPECT_EQ(Press(key::kLeft), "|ab");
  EXPECT_EQ(Press(key::kRight, 0, 5), "ab|");
}

TEST_F(EditKeys, ShiftSelectsAndALoneArrowCollapses) {
  Start("ab|cd");
  EXPECT_EQ(Press(key::kRight, shift::kShift), "ab^c|d");
  EXPECT_EQ(Press(key::kLeft), "ab|cd");
  EXPECT_EQ(Press(key::kLeft, shift::kShift, 2), "|ab^cd");
  EXPECT_EQ(Press(key::kRight), "ab|cd");
}

TEST_F(EditKeys, HomeAndEndGoToTheEndsOfTheLine) {
  Start("ab\r\nc|d\r\nef");
  EXPECT_EQ(Press(key::kHome), "ab\r\n|cd\r\nef");
  EXPECT_EQ(Press(key::kEnd), "ab\r\ncd|\r\nef");
  EXPECT_EQ(Press(key::kHome, shift::kCtrl), "|ab\r\ncd\r\nef");
  EXPECT_EQ(Press(key::kEnd, shift::kCtrl | shift::kShift), "^ab\r\ncd\r\nef|");
}

TEST_F(EditKeys, CtrlArrowsGoByWordsPolishLettersIncluded) {
  editor.SetText(Concat({"<B>", "żółta łódź"_pl, "  x1</B>\r\ny"}));
  std::vector<std::size_t> stops;
  while (editor.SelStart() < editor.Length()) {
    editor.PerformKey({.code = key::kRight, .shift = shift::kCtrl}, nullptr);
    stops.push_back(editor.SelStart());
  }
  EXPECT_EQ(stops, (std::vector<std::size_t>{1, 2, 3, 9, 15, 17, 19, 20, 21, 23, 24}));
}

TEST_F(EditKeys, CtrlLeftGoesBackByWords) {
  Start("ab, cd  \r\n|x");
  EXPECT_EQ(Press(key::kLeft, shift::kCtrl), "ab, cd  |\r\nx");
  EXPECT_EQ(Press(key::kLeft, shift::kCtrl), "ab, |cd  \r\nx");
  EXPECT_EQ(Press(key::kLeft, shift::kCtrl), "ab|, cd  \r\nx");
  EXPECT_EQ(Press(key::kLeft, shift::kCtrl), "|ab, cd  \r\nx");
}

TEST_F(EditKeys, UpAndDownKeepTheWantedPlace) {
  Start("abcdef|gh\r\nab\r\nabcdefgh");
  EXPECT_EQ(Press(key::kDown), "abcdefgh\r\nab|\r\nabcdefgh");
  EXPECT_EQ(Press(key::kDown), "abcdefgh\r\nab\r\nabcdef|gh");
  EXPECT_EQ(Press(key::kUp, 0, 2), "abcdef|gh\r\nab\r\nabcdefgh");
}

TEST_F(EditKeys, AnyOtherMoveForgetsTheWantedPlace) {
  Start("abcdef|\r\nab\r\nabcdef");
  Press(key::kDown);
  Press(key::kLeft);
  EXPECT_EQ(Press(key::kDown), "abcdef\r\nab\r\na|bcdef");
}

TEST_F(EditKeys, TabStopsCountEightColumns) {
  Start("\tx|y\r\n123456789012");
  EXPECT_EQ(Press(key::kDown), "\txy\r\n123456789|012");
  Start("12345|\r\n\tb");
  EXPECT_EQ(Press(key::kDown), "12345\r\n|\tb");
}

TEST_F(EditKeys, PagesStopAtTheEndsOfTheText) {
  Start("a\r\nb|\r\nc");
  EXPECT_EQ(Press(key::kPageDown), "a\r\nb\r\nc|");
  EXPECT_EQ(Press(key::kPageUp, shift::kShift), "a|\r\nb\r\nc^");
}

TEST_F(EditKeys, DeletionAtALineEndTakesBothCharacters) {
  Start("a|\r\nb");
  EXPECT_EQ(Press(key::kDelete), "a|b");
  Start("a\r\n|b");
  EXPECT_EQ(Press(key::kBackspace), "a|b");
  Start("a\n|b");
  EXPECT_EQ(Press(key::kBackspace), "a|b");
}

TEST_F(EditKeys, DeletionTakesTheSelection) {
  Start("|abcd");
  editor.Select(1, 2);
  EXPECT_EQ(Press(key::kBackspace), "a|d");
  EXPECT_TRUE(editor.Modified);
}

TEST_F(EditKeys, DeletionAtTheEndsOfTheTextIsNoChange) {
  Start("|ab");
  EXPECT_EQ(Press(key::kBackspace), "|ab");
  Start("ab|");
  EXPECT_EQ(Press(key::kDelete), "ab|");
  EXPECT_FALSE(editor.Modified);
}

TEST_F(EditKeys, TypingReplacesTheSelection) {
  Start("|abcd");
  editor.Select(1, 2);
  EXPECT_EQ(Typed('x'), "ax|d");
}

TEST_F(EditKeys, EnterPutsTheCaretUnderTheStartOfTheLineAbove) {
  Start(" \t ab|cd");
  EXPECT_EQ(Typed('\r'), " \t ab\r\n \t |cd");
  editor.SetupCarret = false;
  Start("  ab|");
  EXPECT_EQ(Typed('\r'), "  ab\r\n|");
}

TEST_F(EditKeys, EnterInsideTheBlanksCopiesOnlyThoseInFrontOfTheCaret) {
  Start(" |  ab");
  EXPECT_EQ(Typed('\r'), " \r\n |  ab");
}

TEST_F(EditKeys, EnterBehindAListItemStartsTheNext) {
  Start("  <li>raz|");
  EXPECT_EQ(Typed('\r'), "  <li>raz\r\n  <LI>|");
  Start("<LI TYPE=1>raz|");
  EXPECT_EQ(Typed('\r'), "<LI TYPE=1>raz\r\n<LI>|");
}

TEST_F(EditKeys, EnterStartsNoItemWhereThereIsNone) {
  Start("|<LI>raz");
  EXPECT_EQ(Typed('\r'), "\r\n|<LI>raz");
  Start("<LINK REL=x>|");
  EXPECT_EQ(Typed('\r'), "<LINK REL=x>\r\n|");
  editor.ExtendLI = false;
  Start("<LI>raz|");
  EXPECT_EQ(Typed('\r'), "<LI>raz\r\n|");
}

TEST_F(EditKeys, CurrentTagIsTheNameUpToTheCaret) {
  const auto tagAt = [&](std::string_view marked) {
    Start(marked);
    return editor.CurrentTag();
  };
  EXPECT_EQ(tagAt("<IMG SRC=x |"), "IMG");
  EXPECT_EQ(tagAt("<IM|G"), "IM");
  EXPECT_EQ(tagAt("<  IMG |"), "  IMG");
  EXPECT_EQ(tagAt("<IMG>|"), "");
  EXPECT_EQ(tagAt("a|bc"), "");
  EXPECT_EQ(tagAt("<|"), "");
  EXPECT_EQ(tagAt("<A\r\nHREF=|"), "A");
}

TEST_F(EditKeys, SelectWordTakesARunOfOneKind) {
  editor.SetText(Concat({"ab ", "łódź"_pl, "...\r\n"}));
  editor.SelectWord(4);
  EXPECT_EQ(editor.SelText(), "łódź"_pl);
  editor.SelectWord(2);
  EXPECT_EQ(editor.SelText(), " ");
  editor.SelectWord(10);
  EXPECT_EQ(editor.SelText(), "...") << "at the end of the line";
  editor.SelectWord(12);
  EXPECT_EQ(editor.SelText(), "");
}

TEST_F(EditKeys, SelectLineTakesTheLineEnd) {
  editor.SetText("ab\r\ncd");
  editor.SelectLine(0);
  EXPECT_EQ(editor.SelText(), "ab\r\n");
  editor.SelectLine(7);
  EXPECT_EQ(editor.SelText(), "cd");
}

TEST_F(EditKeys, KeysThatMeanNothingAnswerFalse) {
  EXPECT_FALSE(editor.PerformKey({.code = key::kF1}, nullptr));
  EXPECT_FALSE(editor.PerformKey({.code = key::kUp, .shift = shift::kCtrl}, nullptr));
  EXPECT_FALSE(editor.PerformKey({.code = key::kLeft, .shift = shift::kAlt}, nullptr));
  EXPECT_TRUE(editor.PerformKey({.code = key::kLeft}, nullptr));
}

}  // namespace
}  // namespace morlan
