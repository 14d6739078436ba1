#include "tags/selectioncommands.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class SelectionCommands : public testing::Test {
 protected:
  std::string Run(std::string_view menu, std::string_view text, std::size_t start, std::size_t length) {
    test_.OpenText(text).EditedText.Select(start, length);
    EXPECT_TRUE(test_.program.commands.RunMenu(menu)) << menu;
    return test_.Text();
  }
  void Undo() { test_.program.ActiveDocument->UNDO.DoUndo(*test_.program.ActiveDocument); }
  TestProgram test_;
};

TEST_F(SelectionCommands, ChangeOfCaseKnowsPolishLettersAndIsOneUndoStep) {
  EXPECT_EQ(Run("mn_uppercase", "x zażółć y"_pl, 2, 6), "x ZAŻÓŁĆ y"_pl);
  EXPECT_EQ(test_.program.ActiveDocument->UNDO.Count(), 1u);
  Undo();
  EXPECT_EQ(test_.Text(), "x zażółć y"_pl);
  EXPECT_EQ(Run("mn_lowercase", "ŁÓDŹ"_pl, 0, 4), "łódź"_pl);
}

TEST_F(SelectionCommands, WithoutASelectionNothingChanges) {
  EXPECT_EQ(Run("mn_uppercase", "abc", 1, 0), "abc");
  EXPECT_EQ(Run("mn_numlist", "abc", 1, 0), "abc");
  EXPECT_FALSE(test_.program.ActiveDocument->IsModified());
}

TEST_F(SelectionCommands, TheLinesOfTheSelectionBecomeAList) {
  EXPECT_EQ(Run("mn_numlist", "raz\r\ndwa", 0, 8), "\r\n<OL>\r\n <LI>raz\r\n <LI>dwa\r\n</OL>");
  EXPECT_EQ(Run("mn_ordlist", "raz", 0, 3), "\r\n<UL>\r\n <LI>raz\r\n</UL>");
  Undo();
  EXPECT_EQ(test_.Text(), "raz");
}

TEST(ListOfLines, TakesAnyLineEndAndKeepsEmptyLines) {
  EXPECT_EQ(ListOfLines("a\nb\rc\r\n\r\nd\r\n", "OL"), "\r\n<OL>\r\n <LI>a\r\n <LI>b\r\n <LI>c\r\n <LI>\r\n <LI>d\r\n</OL>");
}

TEST_F(SelectionCommands, AnotherColourIsWrittenInDigits) {
  test_.windows.colours = {RgbColour(0xFF, 0x80, 0x01)};
  EXPECT_EQ(Run("mn_other", "a", 0, 1), "<FONT COLOR=\"#FF8001\">a</FONT>");
}

TEST_F(SelectionCommands, NoColourIsNoInsertion) {
  test_.windows.colours = {std::nullopt};
  EXPECT_EQ(Run("mn_other", "a", 0, 1), "a");
}

TEST_F(SelectionCommands, TheEditingEntriesAreThoseOfTheEditMenu) {
  Run("mn_selectall2", "abc", 0, 0);
  EXPECT_EQ(test_.program.ActiveEditor->SelText(), "abc");
  EXPECT_TRUE(test_.program.commands.RunMenu("mn_edit_cut"));
  EXPECT_EQ(test_.Text(), "");
  EXPECT_EQ(test_.clipboard.text, "abc");
  EXPECT_TRUE(test_.program.commands.RunMenu("mn_undo2"));
  EXPECT_EQ(test_.Text(), "abc");
  test_.program.ActiveEditor->Select(0, 1);
  EXPECT_TRUE(test_.program.commands.RunMenu("mn_edit_copy"));
  test_.program.ActiveEditor->Select(3, 0);
  EXPECT_TRUE(test_.program.commands.RunMenu("mn_edit_paste"));
  EXPECT_EQ(test_.Text(), "abca");
}

}  // namespace
}  // namespace morlan
