#include "tags/insertcommands.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class InsertCommands : public testing::Test {
 protected:
  MlnEditor& Open(std::string_view text, std::size_t start = 0, std::size_t length = 0) {
    MlnEditor& editor = test_.OpenText(text).EditedText;
    editor.Select(start, length);
    return editor;
  }
  std::string RepeatCaption() const { return test_.program.ActiveDocument->menu.Find("xmn_repeatlastinsertion")->caption; }
  void Undo() { test_.program.ActiveDocument->UNDO.DoUndo(*test_.program.ActiveDocument); }
  Program& program() { return test_.program; }
  TestProgram test_;
};

TEST_F(InsertCommands, APairGoesRoundTheSelection) {
  const MlnEditor& editor = Open("x abc y", 2, 3);
  InsertPair(program(), "<B>", "</B>");
  EXPECT_EQ(test_.Text(), "x <B>abc</B> y");
  EXPECT_EQ(editor.SelStart(), 5u);
  EXPECT_EQ(editor.SelLength(), 0u);
  EXPECT_TRUE(program().ActiveDocument->IsModified());
}

TEST_F(InsertCommands, WithoutASelectionTheCaretStandsBetween) {
  const MlnEditor& editor = Open("xy", 1);
  InsertPair(program(), "<B>", "</B>");
  EXPECT_EQ(test_.Text(), "x<B></B>y");
  EXPECT_EQ(editor.SelStart(), 4u);
}

TEST_F(InsertCommands, UndoTakesTheClosingTextBackFirst) {
  Open("abc", 0, 3);
  InsertPair(program(), "<B>", "</B>");
  Undo();
  EXPECT_EQ(test_.Text(), "<B>abc");
  Undo();
  EXPECT_EQ(test_.Text(), "abc");
}

TEST_F(InsertCommands, AnEmptyClosingTextIsNoUndoStep) {
  Open("abc");
  InsertPair(program(), "<LI>", "");
  EXPECT_EQ(program().ActiveDocument->UNDO.Count(), 1u);
  Undo();
  EXPECT_EQ(test_.Text(), "abc");
}

TEST_F(InsertCommands, TheRepeatEntryNamesTheTag) {
  Open("");
  InsertPair(program(), "<FONT SIZE=+1>", "</FONT>");
  EXPECT_EQ(RepeatCaption(), "Powtórz wstawienie <FONT>"_pl);
  InsertPair(program(), "&nbsp;", "");
  EXPECT_EQ(RepeatCaption(), "Powtórz wstawienie <>"_pl);
}

TEST_F(InsertCommands, RepeatInsertsTheLastPairOnceMore) {
  MlnEditor& editor = Open("ab", 1);
  InsertPair(program(), "<I>", "</I>");
  editor.Select(0, 1);
  EXPECT_TRUE(program().commands.RunMenu("xmn_repeatlastinsertion"));
  EXPECT_EQ(test_.Text(), "<I>a</I><I></I>b");
  program().hooks.repeatLastInsertion();
  EXPECT_EQ(test_.Text(), "<I><I></I>a</I><I></I>b");
}

TEST_F(InsertCommands, RepeatBeforeAnyInsertionChangesNothing) {
  Open("ab", 1);
  RepeatLastInsertion(program());
  EXPECT_EQ(test_.Text(), "ab");
  EXPECT_FALSE(program().ActiveDocument->IsModified());
}

TEST_F(InsertCommands, NothingHappensWithoutADocument) {
  program().ActiveDocument = nullptr;
  program().ActiveEditor = nullptr;
  InsertPair(program(), "<B>", "</B>");
  ReplaceSelection(program(), "x");
  EXPECT_EQ(program().tagState.LastOpenText, "");
}

TEST_F(InsertCommands, TheInsertedTagsTakeTheirColour) {
  const MlnEditor& editor = Open("abc", 0, 3);
  InsertPair(program(), "<B>", "</B>");
  const Colour tags = program().tagState.TagsColor;
  for (const std::size_t i : {0u, 2u, 6u, 9u}) EXPECT_EQ(editor.ColourOfStyle(editor.StyleAt(i)), tags) << i;
  for (const std::size_t i : {3u, 5u}) EXPECT_EQ(editor.StyleAt(i), MlnEditor::kPlain) << i;
}

TEST_F(InsertCommands, APairInACommentTakesTheColourOfTheComment) {
  const MlnEditor& editor = Open("<!-- abc -->", 5, 3);
  InsertPair(program(), "<B>", "</B>");
  for (const std::size_t i : {5u, 8u, 11u}) EXPECT_EQ(editor.ColourOfStyle(editor.StyleAt(i)), program().tagState.CommentsColor) << i;
}

TEST_F(InsertCommands, AReplacedSelectionComesBackSelected) {
  const MlnEditor& editor = Open("x abc y", 2, 3);
  ReplaceSelection(program(), "<I>d</I>");
  EXPECT_EQ(test_.Text(), "x <I>d</I> y");
  EXPECT_NE(editor.StyleAt(2), MlnEditor::kPlain);
  Undo();
  EXPECT_EQ(test_.Text(), "x abc y");
  EXPECT_EQ(editor.SelText(), "abc");
}

TEST_F(InsertCommands, AStretchGivesWayAsOneStep) {
  MlnEditor& editor = Open("x abc y", 0, 0);
  ReplaceStretch(program(), 2, 3, "<I>d</I>");
  EXPECT_EQ(test_.Text(), "x <I>d</I> y");
  EXPECT_NE(editor.StyleAt(2), MlnEditor::kPlain);
  EXPECT_EQ(editor.SelStart(), 10u);
  Undo();
  EXPECT_EQ(test_.Text(), "x abc y");
}

TEST_F(InsertCommands, AStretchThatStandsThereAlreadyIsNoChange) {
  Open("x abc y", 0, 0);
  ReplaceStretch(program(), 2, 3, "abc");
  EXPECT_FALSE(program().ActiveDocument->IsModified());
  EXPECT_EQ(program().ActiveDocument->UNDO.Count(), 0u);
}

}  // namespace
}  // namespace morlan
