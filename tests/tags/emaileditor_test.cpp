#include "tags/emaileditor.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class EmailEditor : public testing::Test {
 protected:
  EmailEditor() { test_.Write("program\\Listy\\EMAIL.lst", ""); }
  std::string Inserted(const std::function<void(email&)>& fill, bool ok = true) {
    test_.OpenText("abc").EditedText.Select(1, 1);
    test_.windows.modals.push_back([fill, ok](Form& form) {
      auto& dialog = static_cast<email&>(form);
      fill(dialog);
      (ok ? dialog.Command2 : dialog.Command1).UserClicks();
    });
    EXPECT_TRUE(test_.program.commands.RunToolbar("Toolbar1", "email"));
    return test_.Text();
  }
  TestProgram test_;
};

TEST(EmailText, LeavesQuotesInTheAddressAlone) { EXPECT_EQ(EmailText("a\"b@c.pl"), "<A HREF=\"mailto:a\"b@c.pl\">"); }

TEST_F(EmailEditor, TheLinkGoesRoundTheSelectionAndTheAddressIsRemembered) {
  EXPECT_EQ(Inserted([](email& dialog) { dialog.emailtext.UserSets("ala@dom.pl"); }), "a<A HREF=\"mailto:ala@dom.pl\">b</A>c");
  EXPECT_EQ(test_.Read("program\\Listy\\EMAIL.lst"), "ala@dom.pl\r\n");
}

TEST_F(EmailEditor, TheLastNewAddressIsOffered) {
  test_.Write("program\\Listy\\EMAIL.lst", "ala@dom.pl\r\nola@dom.pl\r\n");
  EXPECT_EQ(Inserted([](email& dialog) { EXPECT_EQ(dialog.emailtext.ListCount(), 2u); }), "a<A HREF=\"mailto:ola@dom.pl\">b</A>c");
  Inserted([](email& dialog) { dialog.emailtext.UserSets("jan@dom.pl"); });
  EXPECT_EQ(Inserted([](email& dialog) { EXPECT_EQ(dialog.emailtext.ListCount(), 3u); }), "a<A HREF=\"mailto:jan@dom.pl\">b</A>c");
  EXPECT_EQ(test_.Read("program\\Listy\\EMAIL.lst"), "ala@dom.pl\r\nola@dom.pl\r\njan@dom.pl\r\n");
}

TEST_F(EmailEditor, AnEmptyAddressInsertsNothing) {
  EXPECT_EQ(Inserted([](email& dialog) { dialog.emailtext.UserSets(""); }), "abc");
}

TEST_F(EmailEditor, CancelInsertsAndRemembersNothing) {
  EXPECT_EQ(Inserted([](email& dialog) { dialog.emailtext.UserSets("ala@dom.pl"); }, false), "abc");
  EXPECT_EQ(test_.Read("program\\Listy\\EMAIL.lst"), "");
}

}  // namespace
}  // namespace morlan
