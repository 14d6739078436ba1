#include "tags/variables.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class VariablesTest : public testing::Test {
 protected:
  VariablesTest() {
    test_.Write("program\\Listy\\NVariables.lst", "author\r\nkeywords\r\n");
    test_.Write("program\\Listy\\HVariables.lst", "Expires\r\nRefresh\r\n");
  }
  std::string Set(std::string_view text, const std::function<void(Variables&)>& fill, bool ok = true) {
    test_.OpenText(text);
    test_.windows.modals.push_back([fill, ok](Form& form) {
      auto& dialog = static_cast<Variables&>(form);
      fill(dialog);
      (ok ? dialog.Command2 : dialog.Command1).UserClicks();
    });
    EXPECT_TRUE(test_.program.commands.RunToolbar("Toolbar13", "meta"));
    return test_.Text();
  }
  TestProgram test_;
};

TEST_F(VariablesTest, ANamedVariableIsSet) {
  const auto fill = [](Variables& dialog) {
    dialog.nazwa.UserSets("author");
    dialog.wartosc.UserSets("Ala");
  };
  EXPECT_EQ(Set("<HEAD></HEAD>", fill), "<HEAD>\r\n <META NAME=\"author\" CONTENT=\"Ala\"></HEAD>");
  EXPECT_EQ(Set("<HEAD><meta name=Author content=\"Ola\"></HEAD>", fill), "<HEAD><META NAME=\"author\" CONTENT=\"Ala\"></HEAD>");
  EXPECT_EQ(Set("x", fill), "<HTML><HEAD>\r\n <META NAME=\"author\" CONTENT=\"Ala\">\r\n</HEAD>\r\nx\r\n</HTML>");
}

TEST_F(VariablesTest, AnHttpVariableIsSetFromItsOwnList) {
  EXPECT_EQ(Set("<HEAD></HEAD>",
                [](Variables& dialog) {
                  dialog.typ1.UserSets();
                  EXPECT_EQ(dialog.nazwa.Rows(), (std::vector<std::string>{"Expires", "Refresh"}));
                  EXPECT_EQ(dialog.nazwa.Text(), "Refresh");
                  dialog.wartosc.UserSets("5");
                }),
            "<HEAD>\r\n <META HTTP-EQUIV=\"Refresh\" CONTENT=\"5\"></HEAD>");
}

TEST_F(VariablesTest, TheNameOfEachKindIsKeptAndRememberedInItsList) {
  Set("<HEAD></HEAD>", [](Variables& dialog) {
    dialog.nazwa.UserSets("moja");
    dialog.typ1.UserSets();
    dialog.nazwa.UserSets("X-Moja");
    dialog.typ0.UserSets();
    EXPECT_EQ(dialog.nazwa.Text(), "moja");
  });
  EXPECT_EQ(test_.Text(), "<HEAD>\r\n <META NAME=\"moja\" CONTENT=\"\"></HEAD>");
  EXPECT_EQ(test_.Read("program\\Listy\\NVariables.lst"), "author\r\nkeywords\r\nmoja\r\n");
  EXPECT_EQ(test_.Read("program\\Listy\\HVariables.lst"), "Expires\r\nRefresh\r\nX-Moja\r\n");
}

TEST_F(VariablesTest, TheLastNameOfTheListIsOffered) {
  EXPECT_EQ(Set("<HEAD></HEAD>", [](Variables& dialog) { EXPECT_EQ(dialog.nazwa.ListCount(), 2u); }),
            "<HEAD>\r\n <META NAME=\"keywords\" CONTENT=\"\"></HEAD>");
}

TEST_F(VariablesTest, ANameOfTheOtherKindDoesNotStayWhereTheListIsEmpty) {
  test_.Write("program\\Listy\\HVariables.lst", "");
  Set("", [](Variables& dialog) {
    dialog.typ1.UserSets();
    EXPECT_EQ(dialog.nazwa.Text(), "");
  });
}

TEST_F(VariablesTest, TheFieldsKeepWhatTheyHeld) {
  Set("", [](Variables& dialog) {
    dialog.nazwa.UserSets("author");
    dialog.wartosc.UserSets("Ala");
  });
  Set("", [](Variables& dialog) {
    EXPECT_EQ(dialog.nazwa.Text(), "author");
    EXPECT_EQ(dialog.wartosc.Text(), "Ala");
  });
}

TEST_F(VariablesTest, AnEmptyNameSetsNothing) {
  EXPECT_EQ(Set("<META CHARSET=\"utf-8\">", [](Variables& dialog) { dialog.nazwa.UserSets(""); }), "<META CHARSET=\"utf-8\">");
}

TEST_F(VariablesTest, CancelSetsAndRemembersNothing) {
  EXPECT_EQ(Set(
                "<HEAD></HEAD>", [](Variables& dialog) { dialog.nazwa.UserSets("moja"); }, false),
            "<HEAD></HEAD>");
  EXPECT_EQ(test_.Read("program\\Listy\\NVariables.lst"), "author\r\nkeywords\r\n");
}

}  // namespace
}  // namespace morlan
