#include "tags/propertyhints.h"

#include "core/keyboard.h"
#include "tests/tags/sheetfixture.h"

namespace morlan {
namespace {

class PropertyHints : public SheetTest {
 protected:
  std::vector<std::string> Filled(std::string_view tagName) {
    ListBox& list = test_.OpenText("").FastHelpC;
    FillHintList(test_.program, list, tagName);
    return list.Rows();
  }
};

using Rows = std::vector<std::string>;

TEST_F(PropertyHints, AttributesHaveASignAndSwitchesAreBare) {
  EXPECT_EQ(Filled("input"), (Rows{"type=", "name=", "size=", "checked", "target=", "onclick=", "style="}));
}

TEST_F(PropertyHints, ColoursAndAttributesWithADialogAreNotListedOnPurpose) {
  for (const std::string& row : Filled("INPUT")) EXPECT_TRUE(row != "bgcolor=" && row != "src=") << row;
}

TEST_F(PropertyHints, TheFirstRowIsChosen) {
  Filled("input");
  EXPECT_EQ(test_.program.ActiveDocument->FastHelpC.ListIndex(), 0);
}

TEST_F(PropertyHints, AListThatShowsTheTagIsLeftAlone) {
  ListBox& list = test_.OpenText("").FastHelpC;
  list.AddItem("x");
  list.Tag = "input";
  FillHintList(test_.program, list, "input");
  EXPECT_EQ(list.Rows(), Rows{"x"});
  list.Tag = "inny";
  FillHintList(test_.program, list, "input");
  EXPECT_EQ(list.ListCount(), 7u);
}

TEST_F(PropertyHints, AnUnknownTagHasNone) {
  EXPECT_EQ(Filled("b"), Rows{});
  EXPECT_EQ(Filled(""), Rows{});
  EXPECT_EQ(HintBlockText(test_.program, "b"), "");
}

TEST_F(PropertyHints, TheBlockHoldsEveryAttributeWithItsDefault) {
  EXPECT_EQ(HintBlockText(test_.program, "input"), " type= name= size=20 checked bgcolor= target= src= onclick= style=");
}

TEST_F(PropertyHints, TheListComesUpWhileATagIsTyped) {
  TEditor& document = test_.OpenText("");
  const auto type = [&](std::string_view text) {
    for (const char character : text) PressKey(document, {UpperCharacter(character), 0, character});
  };
  type("<input");
  EXPECT_FALSE(document.FastHelpC.Visible());
  type(" ");
  EXPECT_TRUE(document.FastHelpC.Visible());
  EXPECT_EQ(document.FastHelpC.ListCount(), 7u);
  document.FastHelpC.UserSelects(2);
  document.FastHelpC.UserDblClicks();
  EXPECT_EQ(test_.Text(), "<input size=");
  EXPECT_FALSE(document.FastHelpC.Visible());
}

TEST_F(PropertyHints, AnUnknownTagTakesTheRowsOfAnotherAway) {
  ListBox& list = test_.OpenText("").FastHelpC;
  FillHintList(test_.program, list, "input");
  list.Tag = "input";
  FillHintList(test_.program, list, "nieznany");
  EXPECT_EQ(list.ListCount(), 0u);
}

TEST_F(PropertyHints, AnAttributeThatWasAddedIsThereTheNextTimeTheTagIsTyped) {
  TEditor& document = test_.OpenText("");
  const auto type = [&](std::string_view text) {
    for (const char character : text) PressKey(document, {UpperCharacter(character), 0, character});
  };
  type("<input ");
  EXPECT_EQ(document.FastHelpC.ListCount(), 7u);
  type(">");
  SheetsOf(test_.program).Change([](PropertyFile& file) { return file.AddParam(file.FindTag("input"), {.name = "id"}) != 0; });
  type("<input ");
  EXPECT_EQ(document.FastHelpC.ListCount(), 8u);
}

TEST_F(PropertyHints, AChangedFileIsSeenByTheNextHint) {
  EXPECT_EQ(Filled("pusty"), Rows{});
  SheetsOf(test_.program).Change([](PropertyFile& file) { return file.AddParam(file.FindTag("pusty"), {.name = "id"}) != 0; });
  EXPECT_EQ(Filled("pusty"), Rows{"id="});
  PropertyFile other;
  other.AddTag({"b", "", 0});
  other.AddParam(1, {.name = "lang"});
  test_.Write("program\\Morlan7.tpf", other.Bytes());
  EXPECT_EQ(Filled("b"), Rows{"lang="}) << "written by somebody else";
}

}  // namespace
}  // namespace morlan
