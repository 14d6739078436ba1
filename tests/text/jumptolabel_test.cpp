#include "text/jumptolabel.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

std::vector<std::string> NamesOf(std::string_view text) {
  std::vector<std::string> names;
  for (const PageLabel& label : LabelsOf(text)) names.push_back(label.name);
  return names;
}

using Names = std::vector<std::string>;

TEST(LabelsOf, ListsNamedTagsBehindBody) {
  EXPECT_EQ(NamesOf("<META NAME=x><BODY><A NAME=\"raz\">1</A><a name=Dwa>2</a>"), (Names{"raz", "Dwa"}));
  EXPECT_EQ(NamesOf("<A NAME=raz>"), Names{}) << "no body";
}

TEST(LabelsOf, FormFieldsAreAmongThem) { EXPECT_EQ(NamesOf("<BODY><INPUT NAME=pole>"), (Names{"pole"})); }

TEST(LabelsOf, ATagCountsOnce) { EXPECT_EQ(NamesOf("<BODY><A NAME=raz data-name=dwa>"), (Names{"raz"})); }

TEST(LabelsOf, TextOutsideTagsIsNoLabel) {
  EXPECT_EQ(NamesOf("<BODY> name=x"), Names{});
  EXPECT_EQ(NamesOf("<BODY>name=x>"), Names{});
}

TEST(LabelsOf, TellsWhereTheTagLies) {
  const std::vector<PageLabel> labels = LabelsOf("<BODY>ab<A NAME=raz>c");
  ASSERT_EQ(labels.size(), 1u);
  EXPECT_EQ(labels[0].offset, 8u);
  EXPECT_EQ(labels[0].length, 12u);
}

TEST(LabelsOf, UnclosedTagsTakeLinearTime) {
  std::string text = "<BODY>";
  for (int i = 0; i < 100000; ++i) text += "<A NAME=x ";
  EXPECT_EQ(LabelsOf(text).size(), 0u);
  text += ">";
  EXPECT_EQ(LabelsOf(text).size(), 100000u);
}

struct Jump : testing::Test {
  TestProgram test;
  MlnEditor& editor = test.OpenText("<BODY><A NAME=raz><A NAME=dwa>").EditedText;
  JumpToLabel& form = test.program.forms.Get<JumpToLabel>();

  void Show(std::function<void()> act) {
    test.windows.modals.push_back([act](Form&) { act(); });
    ASSERT_TRUE(test.program.commands.RunMenu("xmn_jumptolabel"));
  }
};

TEST_F(Jump, OkSelectsTheTag) {
  Show([&] {
    EXPECT_EQ(form.Labels.Rows(), (Names{"raz", "dwa"}));
    form.Labels.UserSelects(1);
    form.Command2.UserClicks();
  });
  EXPECT_EQ(editor.SelStart(), 18u);
  EXPECT_EQ(editor.SelText(), "<A NAME=dwa>");
  EXPECT_FALSE(form.IsVisible());
}

TEST_F(Jump, ADoubleClickDoesTheSame) {
  Show([&] { form.Labels.UserDblClicks(); });
  EXPECT_EQ(editor.SelText(), "<A NAME=raz>");
}

TEST_F(Jump, CancelStays) {
  Show([&] { form.Command1.UserClicks(); });
  EXPECT_EQ(editor.SelLength(), 0u);
}

TEST_F(Jump, APageWithoutLabelsOnlyClosesTheForm) {
  editor.SetText("<BODY>");
  Show([&] { form.Command2.UserClicks(); });
  EXPECT_EQ(editor.SelLength(), 0u);
}

TEST_F(Jump, ALabelIsFoundByItsNameWithoutRegardToCase) {
  EXPECT_TRUE(GoToLabel(test.program, "DWA"));
  EXPECT_EQ(editor.SelStart(), 18u);
  EXPECT_FALSE(GoToLabel(test.program, "trzy"));
  EXPECT_EQ(editor.SelStart(), 18u);
}

TEST_F(Jump, TheContextMenusJumpGoesToTheLabel) {
  test.program.tagState.targetActions.at(TargetAction::JumpToLabel)("dwa");
  EXPECT_EQ(editor.SelText(), "<A NAME=dwa>");
}

}  // namespace
}  // namespace morlan
