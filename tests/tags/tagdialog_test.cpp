#include "tags/tagdialog.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Dialog : TagDialog {
  TextBox field{*this, "field"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};
  int remembered = 0;

  explicit Dialog(Program& program) : TagDialog(program, "Dialog", "Dialog", kFrameStatus) { SetUp(Command2, Command1); }
  void Read(std::string_view tag) override { field.SetText(tag); }
  std::string Text() const override { return "<" + field.Text() + ">"; }
  std::string_view Closing() const override { return "</X>"; }
  void Remember() override { ++remembered; }
};

class TagDialogTest : public testing::Test {
 protected:
  void OpenTag() {
    test_.OpenText("a<b>c");
    test_.program.tagState.CurrentTagStart = 2;
    test_.program.tagState.CurrentTagText = "<b";
  }
  void AnswerWith(Button Dialog::*button, std::string_view text = "x") {
    test_.windows.modals.push_back([this, button, text = std::string(text)](Form&) {
      dialog_.field.UserSets(text);
      (dialog_.*button).UserClicks();
    });
  }
  TestProgram test_;
  Dialog dialog_{test_.program};
};

TEST_F(TagDialogTest, AnOldTagIsReadAndWrittenOnceWithoutItsEnd) {
  OpenTag();
  test_.windows.modals.push_back([this](Form&) {
    EXPECT_EQ(dialog_.field.Text(), "<b");
    dialog_.field.UserSets("x");
    dialog_.Command2.UserClicks();
  });
  dialog_.Edit();
  EXPECT_EQ(test_.Text(), "a<x>c");
}

TEST_F(TagDialogTest, ANewTagGoesRoundTheSelectionAlsoAfterAnOldOne) {
  OpenTag();
  AnswerWith(&Dialog::Command2);
  dialog_.Edit();
  test_.program.ActiveEditor->Select(0, 1);
  AnswerWith(&Dialog::Command2, "y");
  dialog_.Insert();
  EXPECT_EQ(test_.Text(), "<y>a</X><x>c");
}

TEST_F(TagDialogTest, CancelWritesAndRemembersNothing) {
  OpenTag();
  AnswerWith(&Dialog::Command1);
  dialog_.Edit();
  AnswerWith(&Dialog::Command1);
  dialog_.Insert();
  EXPECT_EQ(test_.Text(), "a<b>c");
  EXPECT_EQ(test_.program.DialogResult, "-1");
  EXPECT_EQ(dialog_.remembered, 0);
}

TEST_F(TagDialogTest, OkRemembersOnceOnBothWays) {
  OpenTag();
  AnswerWith(&Dialog::Command2);
  dialog_.Edit();
  EXPECT_EQ(dialog_.remembered, 1);
  AnswerWith(&Dialog::Command2);
  dialog_.Insert();
  EXPECT_EQ(dialog_.remembered, 2);
}

}  // namespace
}  // namespace morlan
