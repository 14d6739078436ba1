#include "core/register.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

TEST(CoreCommands, CutAsOneUndoStep) {
  TestProgram test;
  TEditor& document = test.OpenText("raz dwa");
  document.EditedText.Select(3, 4);
  test.program.commands.RunMenu("xmn_cut");
  EXPECT_EQ("raz", test.Text());
  EXPECT_EQ(" dwa", test.clipboard.text);
  test.program.commands.RunToolbar("Toolbar0", "undo");
  EXPECT_EQ("raz dwa", test.Text());
  EXPECT_EQ(0u, document.UNDO.Count());
}

TEST(CoreCommands, PasteAsOneUndoStep) {
  TestProgram test;
  TEditor& document = test.OpenText("raz dwa");
  document.EditedText.Select(0, 3);
  test.clipboard.text = "trzy";
  test.program.commands.RunMenu("xmn_paste");
  EXPECT_EQ("trzy dwa", test.Text());
  EXPECT_TRUE(document.IsModified());
  test.program.commands.RunMenu("xmn_undo");
  EXPECT_EQ("raz dwa", test.Text());
}

TEST(CoreCommands, CopyAndSelectAllChangeNothing) {
  TestProgram test;
  TEditor& document = test.OpenText("raz");
  test.program.commands.RunMenu("xmn_selectall");
  EXPECT_EQ(3u, document.EditedText.SelLength());
  test.program.commands.RunToolbar("Toolbar0", "copy");
  EXPECT_EQ("raz", test.clipboard.text);
  EXPECT_FALSE(document.IsModified());
}

TEST(CoreCommands, PasteNothingFromAnEmptyClipboard) {
  TestProgram test;
  TEditor& document = test.OpenText("raz");
  test.program.commands.RunMenu("xmn_paste");
  EXPECT_EQ("raz", test.Text());
  EXPECT_FALSE(document.IsModified());
}

TEST(CoreCommands, AreDroppedSilentlyWithoutADocument) {
  TestProgram test;
  CloseActiveDocument(test.program);
  for (const char* name :
       {"xmn_save", "xmn_saveas", "xmn_close", "xmn_closeall", "xmn_print", "xmn_undo", "xmn_cut", "xmn_copy", "xmn_paste", "xmn_selectall",
        "xmn_warp", "xmn_nextdocument", "xmn_previousdocument", "xmn_ModeCdf", "xmn_ModeHtml"})
    EXPECT_TRUE(test.program.commands.RunMenu(name)) << name;
  EXPECT_EQ((Record{"switch cdf", "switch html"}), test.Asked());
}

TEST(CoreCommands, ServeTheGeneralToolbar) {
  TestProgram test;
  for (const char* key : {"Close", "copy", "cut", "paste", "open", "save", "new", "print", "undo"})
    EXPECT_TRUE(test.program.commands.HasToolbar("Toolbar0", key)) << key;
}

TEST(CoreForms, AreKnownByTheirNames) {
  TestProgram test;
  test.windows.modals.push_back([](Form& form) { EXPECT_EQ("NewDoc", form.Name()); });
  EXPECT_TRUE(test.program.forms.ShowByName("newdoc"));
  EXPECT_NE(nullptr, test.program.forms.FindMade("NEWDOC"));
  EXPECT_FALSE(test.program.forms.ShowByName("nie ma"));
}

}  // namespace
}  // namespace morlan
