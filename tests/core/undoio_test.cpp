#include "core/undoio.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Undo : testing::Test {
  TestProgram test;
  TEditor& Open(std::string_view text) { return test.OpenText(text); }
};

TEST_F(Undo, RecordsNothingWhereNothingWasChanged) {
  UndoIO undo;
  undo.AddChange(3, 0, "", "", ChangeKind::Replacement);
  EXPECT_EQ(undo.Count(), 0u);
  undo.AddChange(3, 2, "", "", ChangeKind::Replacement);
  EXPECT_EQ(undo.Count(), 1u);
}

TEST_F(Undo, WithoutARecordItDoesNothing) {
  TEditor& document = Open("abc");
  document.UNDO.DoUndo(document);
  EXPECT_EQ(test.Text(), "abc");
  EXPECT_FALSE(document.EditedText.Modified);
}

TEST_F(Undo, AReplacementGivesBackWhatItRemoved) {
  TEditor& document = Open("ala miala kota");
  document.UNDO.AddChange(4, 0, "miala", "ma", ChangeKind::Replacement);
  document.UNDO.DoUndo(document);
  EXPECT_EQ(test.Text(), "ala ma kota");
  EXPECT_EQ(document.EditedText.SelStart(), 6u);
  EXPECT_EQ(document.UNDO.Count(), 0u);
}

TEST_F(Undo, ADeletionLeavesTheCaretBehindTheRestoredText) {
  TEditor& document = Open("ad");
  document.UNDO.AddChange(1, 0, "", "bc", ChangeKind::Deletion);
  document.UNDO.DoUndo(document);
  EXPECT_EQ(test.Text(), "abcd");
  EXPECT_EQ(document.EditedText.SelStart(), 3u);
  EXPECT_EQ(document.EditedText.SelLength(), 0u);
}

TEST_F(Undo, AStoredSelectionIsSelectedAgain) {
  TEditor& document = Open("ad");
  document.UNDO.AddChange(1, 2, "", "bc", ChangeKind::Deletion);
  document.UNDO.DoUndo(document);
  EXPECT_EQ(document.EditedText.SelStart(), 1u);
  EXPECT_EQ(document.EditedText.SelText(), "bc");
}

TEST_F(Undo, After51ChangesTheOldestIsLost) {
  TEditor& document = Open("");
  std::string text;
  for (std::size_t i = 0; i < 51; ++i) {
    text += static_cast<char>('A' + i);
    document.UNDO.AddChange(i, 0, text.substr(i), "", ChangeKind::Replacement);
  }
  test.program.ActiveEditor->SetText(text);
  EXPECT_EQ(document.UNDO.Count(), 50u);
  for (int i = 0; i < 60; ++i) document.UNDO.DoUndo(document);
  EXPECT_EQ(test.Text(), "A");
}

TEST_F(Undo, AnUndoPushesNothingAndCountsAsAChange) {
  TEditor& document = Open("ab");
  document.UNDO.AddChange(1, 0, "b", "", ChangeKind::Replacement);
  document.UNDO.DoUndo(document);
  EXPECT_EQ(document.UNDO.Count(), 0u);
  EXPECT_TRUE(document.IsModified());
}

TEST_F(Undo, TheRestoredTextIsColoured) {
  TEditor& document = Open("a<B>b");
  document.EditedText.Select(1, 3);
  const MlnEditor::Style tag = document.EditedText.StyleAt(1);
  document.UNDO.AddChange(1, 3, "", "<B>", ChangeKind::Deletion);
  document.EditedText.SetSelText("");
  document.UNDO.DoUndo(document);
  EXPECT_NE(tag, MlnEditor::kPlain);
  EXPECT_EQ(document.EditedText.StyleAt(1), tag);
  EXPECT_EQ(document.EditedText.StyleAt(3), tag);
  EXPECT_EQ(document.EditedText.StyleAt(4), MlnEditor::kPlain);
}

}  // namespace
}  // namespace morlan
