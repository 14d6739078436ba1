#include "core/keyboard.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Keys : testing::Test {
  TestProgram test;
  TEditor* document = nullptr;

  void Open(std::string_view text, std::size_t start = 0, std::size_t length = 0) {
    document = &test.OpenText(text);
    document->EditedText.Select(start, length);
  }
  void Press(std::string_view combination) { PressKey(*document, KeyFromText(combination)); }
  void Type(std::string_view text) {
    for (const char character : text) PressKey(*document, {.character = static_cast<unsigned char>(character)});
  }
  void Undo() { document->UNDO.DoUndo(*document); }
  std::size_t Caret() const { return document->EditedText.Caret(); }
  std::size_t Records() const { return document->UNDO.Count(); }
};

TEST_F(Keys, EachPolishLetterIsOneCharacterAndOneRecord) {
  Open("");
  constexpr std::string_view kLetters = "ąćęłńóśżźĄĆĘŁŃÓŚŻŹ"_pl;
  Type(kLetters);
  EXPECT_EQ(test.Text(), kLetters);
  EXPECT_EQ(Records(), kLetters.size());
  Undo();
  EXPECT_EQ(test.Text(), kLetters.substr(0, kLetters.size() - 1));
}

TEST_F(Keys, TypingOverASelectionIsUndoneWithIt) {
  Open("abcd", 1, 2);
  Type("x");
  EXPECT_EQ(test.Text(), "axd");
  Press("Ctrl+Z");
  EXPECT_EQ(test.Text(), "abcd");
  EXPECT_EQ(document->EditedText.SelText(), "bc");
}

TEST_F(Keys, EnterIsCrLfAndOneRecord) {
  Open("ab", 1);
  Press("Enter");
  EXPECT_EQ(test.Text(), "a\r\nb");
  EXPECT_EQ(Records(), 1u);
  Press("Ctrl+Z");
  EXPECT_EQ(test.Text(), "ab");
}

TEST_F(Keys, WhatEnterAddsByItselfIsUndoneWithIt) {
  Open("  <LI>raz", 9);
  Press("Enter");
  EXPECT_EQ(test.Text(), "  <LI>raz\r\n  <LI>");
  Press("Ctrl+Z");
  EXPECT_EQ(test.Text(), "  <LI>raz");
  EXPECT_EQ(Records(), 0u);
}

TEST_F(Keys, DeleteAndBackspaceAtALineEndTakeBothCharacters) {
  Open("a\r\nb", 1);
  Press("Delete");
  EXPECT_EQ(test.Text(), "ab");
  Press("Ctrl+Z");
  EXPECT_EQ(test.Text(), "a\r\nb");
  EXPECT_EQ(Caret(), 3u) << "behind the restored text";
  Press("Backspace");
  EXPECT_EQ(test.Text(), "ab");
  Press("Ctrl+Z");
  EXPECT_EQ(test.Text(), "a\r\nb");
}

TEST_F(Keys, ADeletedSelectionIsSelectedAgainByUndo) {
  Open("abcd", 1, 2);
  Press("Backspace");
  EXPECT_EQ(test.Text(), "ad");
  Press("Ctrl+Z");
  EXPECT_EQ(test.Text(), "abcd");
  EXPECT_EQ(document->EditedText.SelText(), "bc");
}

TEST_F(Keys, DeletionAtTheEndsOfTheTextIsNotRecorded) {
  Open("ab");
  Press("Backspace");
  document->EditedText.Select(2, 0);
  Press("Delete");
  EXPECT_EQ(Records(), 0u);
  EXPECT_FALSE(document->IsModified());
}

TEST_F(Keys, BothPasteKeysAreOneRecordOfThePastedLength) {
  for (const char* combination : {"Ctrl+V", "Shift+Insert"}) {
    Open("abcd", 1, 2);
    test.clipboard.text = "12345";
    Press(combination);
    EXPECT_EQ(test.Text(), "a12345d") << combination;
    EXPECT_EQ(Records(), 1u) << combination;
    Press("Ctrl+Z");
    EXPECT_EQ(test.Text(), "abcd") << combination;
    EXPECT_EQ(document->EditedText.SelText(), "bc") << combination;
    document->EditedText.Modified = false;
    CloseDocument(test.program, *document);
  }
}

TEST_F(Keys, PastingNothingDoesNothing) {
  Open("abcd", 1, 2);
  test.clipboard.text.reset();
  Press("Ctrl+V");
  EXPECT_EQ(test.Text(), "abcd");
  EXPECT_EQ(Records(), 0u);
}

TEST_F(Keys, ThePastedTextIsColoured) {
  Open("ab", 1);
  test.clipboard.text = "<B>";
  Press("Ctrl+V");
  EXPECT_NE(document->EditedText.StyleAt(1), MlnEditor::kPlain);
  EXPECT_EQ(document->EditedText.StyleAt(4), MlnEditor::kPlain);
}

TEST_F(Keys, CutCopyAndSelectAllAreTheMenusShortcuts) {
  Open("abcd", 1, 2);
  Press("Ctrl+C");
  EXPECT_EQ(test.clipboard.text, "bc");
  Press("Ctrl+A");
  Press("Ctrl+X");
  EXPECT_EQ(test.clipboard.text, "abcd");
  EXPECT_EQ(test.Text(), "");
  Press("Ctrl+Z");
  EXPECT_EQ(test.Text(), "abcd");
}

TEST_F(Keys, ShiftDeleteCutsAndCtrlInsertCopies) {
  Open("abcd", 1, 2);
  Press("Ctrl+Insert");
  EXPECT_EQ(test.clipboard.text, "bc");
  test.clipboard.text = "x";
  Press("Shift+Delete");
  EXPECT_EQ(test.clipboard.text, "bc");
  EXPECT_EQ(test.Text(), "ad");
  EXPECT_EQ(Records(), 1u);
}

TEST_F(Keys, AltSpaceAndCtrlSpaceInsertTheEntity) {
  for (const char* combination : {"Alt+Space", "Ctrl+Space"}) {
    Open("ab", 1);
    Press(combination);
    EXPECT_EQ(test.Text(), "a&nbsp;b") << combination;
    Press("Ctrl+Z");
    EXPECT_EQ(test.Text(), "ab") << combination;
    document->EditedText.Modified = false;
    CloseDocument(test.program, *document);
  }
}

TEST_F(Keys, CtrlEnterInsertsBr) {
  Open("ab", 1);
  Press("Ctrl+Enter");
  EXPECT_EQ(test.Text(), "a<BR>b");
}

TEST_F(Keys, CtrlCommaRepeatsTheLastInsertion) {
  Open("ab", 1);
  test.program.hooks.insertPair("<B>", "</B>");
  document->EditedText.Select(0, 0);
  Press("Ctrl+,");
  EXPECT_EQ(test.Text(), "<B></B>a<B></B>b");
}

TEST_F(Keys, CtrlTabGoesRoundTheDocuments) {
  TEditor& first = test.OpenText("1", "a.html");
  TEditor& second = test.OpenText("2", "b.html");
  document = &second;
  Press("Ctrl+Tab");
  EXPECT_EQ(test.program.ActiveDocument, &first);
  document = &first;
  Press("Ctrl+Shift+Tab");
  EXPECT_EQ(test.program.ActiveDocument, &second);
}

TEST_F(Keys, CtrlAndAltKeysTypeNothing) {
  Open("ab");
  PressKey(*document, {.code = 'Q', .shift = shift::kAlt, .character = 'q'});
  PressKey(*document, {.code = 'J', .shift = shift::kCtrl, .character = 10});
  EXPECT_EQ(test.Text(), "ab");
  EXPECT_EQ(Records(), 0u);
}

TEST_F(Keys, EscapeTypesNothingAndEndsTheHints) {
  Open("ab", 0, 2);
  document->FastHelpC.SetVisible(true);
  Press("Escape");
  EXPECT_FALSE(document->FastHelpC.Visible());
  EXPECT_EQ(test.Text(), "ab");
  EXPECT_EQ(Records(), 0u);
}

TEST_F(Keys, TabTypesATab) {
  Open("ab", 1);
  Press("Tab");
  EXPECT_EQ(test.Text(), "a\tb");
  EXPECT_EQ(Records(), 1u);
}

TEST_F(Keys, TheUsersOwnShortcutSwallowsTheKey) {
  Open("ab");
  int ran = 0;
  test.program.runShortcut = [&](const KeyPress& press) { return press == KeyFromText("Ctrl+A") && ++ran > 0; };
  Press("Ctrl+A");
  EXPECT_EQ(ran, 1);
  EXPECT_EQ(document->EditedText.SelLength(), 0u);
  Type("x");
  EXPECT_EQ(test.Text(), "xab");
}

TEST_F(Keys, CtrlZGoesToTheShortcutsWithoutARecord) {
  Open("ab");
  bool asked = false;
  test.program.runShortcut = [&](const KeyPress&) { return asked = true; };
  Press("Ctrl+Z");
  EXPECT_TRUE(asked);
  EXPECT_EQ(Records(), 0u);
}

TEST_F(Keys, TypingDuringLoadingChangesNothing) {
  Open("ab");
  test.program.DocumentLoading = true;
  Type("x");
  Press("Delete");
  InsertTyped(*document, "y");
  test.program.DocumentLoading = false;
  EXPECT_EQ(test.Text(), "ab");
  EXPECT_FALSE(document->IsModified());
  EXPECT_EQ(Records(), 0u);
}

TEST_F(Keys, InsertTypedIsOneRecordAndIsColoured) {
  Open("abcd", 1, 2);
  InsertTyped(*document, "<B>");
  EXPECT_EQ(test.Text(), "a<B>d");
  EXPECT_NE(document->EditedText.StyleAt(1), MlnEditor::kPlain);
  EXPECT_EQ(Records(), 1u);
  Undo();
  EXPECT_EQ(test.Text(), "abcd");
}

TEST_F(Keys, EveryKeyTellsLineAndColumn) {
  Open("ab\r\ncd", 5);
  Press("Right");
  EXPECT_EQ(test.frame().statusBar.PanelText("docline"), "2/3");
  Press("Home");
  EXPECT_EQ(test.frame().statusBar.PanelText("docline"), "2/1");
}

TEST_F(Keys, EveryKeyDelaysTheLineInformation) {
  Open("ab");
  test.program.LineInfoCounter = 1;
  Press("Right");
  EXPECT_EQ(test.program.LineInfoCounter, 0);
}

TEST_F(Keys, TypedMarkupIsColouredAsTheWholeDocumentWouldBe) {
  Open("a  b", 2);
  Type("<B CLASS=x>");
  MlnEditor whole;
  whole.SetText(test.Text());
  whole.SetTextColor(document->EditedText.TextColor());
  test.program.passes.colourDocument(whole);
  for (std::size_t i = 0; i < whole.Length(); ++i)
    EXPECT_EQ(document->EditedText.ColourOfStyle(document->EditedText.StyleAt(i)), whole.ColourOfStyle(whole.StyleAt(i))) << i;
}

TEST_F(Keys, AKeyMayCloseTheDocumentThatItWasPressedIn) {
  TEditor& other = test.OpenText("1", "a.html");
  Open("ab");
  Press("Ctrl+W");
  EXPECT_EQ(test.program.ActiveDocument, &other);
  EXPECT_EQ(test.program.documents.size(), 1u);
}

TEST_F(Keys, F4WithoutASheetOpensTheQuickMenu) {
  Open("a<B>b", 2);
  int menus = 0, sheets = 0;
  test.program.hooks.showQuickMenu = [&](TEditor&) { ++menus; };
  Press("F4");
  EXPECT_EQ(menus, 1);
  test.program.hooks.openPropertySheet = [&](TEditor&) { return ++sheets > 0; };
  Press("F4");
  EXPECT_EQ(sheets, 1);
  EXPECT_EQ(menus, 1);
  Open("bez", 1);
  Press("F4");
  EXPECT_EQ(sheets, 1) << "no tag under the caret";
  EXPECT_EQ(menus, 2);
}

TEST_F(Keys, TheMenuKeyIsARightClick) {
  Open("ab");
  int clicks = 0;
  test.program.hooks.mouseDown = [&](TEditor&, MouseButton button) { clicks += button == MouseButton::Right; };
  Press("Menu");
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace morlan
