#include "core/clipboard.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct ClipboardCommands : testing::Test {
  TestProgram test;
  TEditor& document = test.OpenText("a<B>b");
};

TEST_F(ClipboardCommands, CopyLeavesTheClipboardAloneWithoutASelection) {
  test.clipboard.text = "x";
  CopySelection(document);
  EXPECT_EQ(test.clipboard.text, "x");
  document.EditedText.Select(1, 3);
  CopySelection(document);
  EXPECT_EQ(test.clipboard.text, "<B>");
}

TEST_F(ClipboardCommands, CutIsOneUndoStepThatSelectsAgain) {
  document.EditedText.Select(1, 3);
  CutSelection(document);
  EXPECT_EQ(test.Text(), "ab");
  EXPECT_EQ(test.clipboard.text, "<B>");
  document.UNDO.DoUndo(document);
  EXPECT_EQ(test.Text(), "a<B>b");
  EXPECT_EQ(document.EditedText.SelText(), "<B>");
}

TEST_F(ClipboardCommands, CutWithoutASelectionDoesNothing) {
  CutSelection(document);
  EXPECT_EQ(document.UNDO.Count(), 0u);
  EXPECT_FALSE(test.clipboard.text.has_value());
}

TEST_F(ClipboardCommands, PasteIsOneUndoStepAndIsColoured) {
  document.EditedText.Select(4, 1);
  PasteText(document, "<I>");
  EXPECT_EQ(test.Text(), "a<B><I>");
  EXPECT_EQ(document.EditedText.StyleAt(5), document.EditedText.StyleAt(1));
  document.UNDO.DoUndo(document);
  EXPECT_EQ(test.Text(), "a<B>b");
}

TEST_F(ClipboardCommands, PastingAnEmptyTextDoesNothing) {
  document.EditedText.Select(1, 3);
  PasteText(document, "");
  EXPECT_EQ(test.Text(), "a<B>b");
  EXPECT_EQ(document.UNDO.Count(), 0u);
}

}  // namespace
}  // namespace morlan
