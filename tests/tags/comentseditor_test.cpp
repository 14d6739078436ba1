#include "tags/comentseditor.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class ComentsEditor : public testing::Test {
 protected:
  std::string Inserted(std::string_view comment, bool ok = true) {
    test_.OpenText("ab").EditedText.Select(1, 0);
    test_.windows.modals.push_back([comment = std::string(comment), ok](Form& form) {
      auto& dialog = static_cast<coments&>(form);
      dialog.comenttext.UserSets(comment);
      (ok ? dialog.Command2 : dialog.Command1).UserClicks();
    });
    EXPECT_TRUE(test_.program.commands.RunToolbar("Toolbar1", "comment"));
    return test_.Text();
  }
  TestProgram test_;
};

TEST_F(ComentsEditor, ASelectionBecomesACommentWithoutTheDialog) {
  test_.OpenText("abcd").EditedText.Select(1, 2);
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_coments"));
  EXPECT_EQ(test_.Text(), "a<!--bc-->d");
  EXPECT_EQ(test_.program.ActiveEditor->SelStart(), 5u);
}

TEST_F(ComentsEditor, WithoutASelectionTheTextIsAskedFor) {
  EXPECT_EQ(Inserted(" uwaga > < "), "a<!-- uwaga > < -->b");
  EXPECT_EQ(test_.program.ActiveEditor->SelStart(), 16u);  // in front of "-->"
}

TEST_F(ComentsEditor, AnEmptyTextInsertsNothing) {
  EXPECT_EQ(Inserted(""), "ab");
  EXPECT_FALSE(test_.program.ActiveDocument->IsModified());
}

TEST_F(ComentsEditor, CancelEmptiesTheFieldAndInsertsNothing) {
  EXPECT_EQ(Inserted("uwaga", false), "ab");
  EXPECT_EQ(test_.program.forms.Get<coments>().comenttext.Text(), "");
}

TEST_F(ComentsEditor, ALongTextIsKeptWhole) {
  const std::string text(100000, 'x');
  EXPECT_EQ(Inserted(text), Concat({"a<!--", text, "-->b"}));
}

}  // namespace
}  // namespace morlan
