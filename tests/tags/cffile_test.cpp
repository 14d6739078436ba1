#include "tags/cffile.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct ActionCase {
  std::string_view action;
  std::string_view text;  // with all fields filled in
};
constexpr ActionCase kActions[] = {
    {"Append", " ACTION=\"Append\" OUTPUT=\"o\" FILE=\"f\""},
    {"Copy", " ACTION=\"Copy\" SOURCE=\"s\" DESTINATION=\"d\""},
    {"Delete", " ACTION=\"Delete\" FILE=\"f\""},
    {"Move", " ACTION=\"Move\" SOURCE=\"s\" DESTINATION=\"d\""},
    {"Read", " ACTION=\"Read\" FILE=\"f\" VARIABLE=\"v\""},
    {"Rename", " ACTION=\"Rename\" SOURCE=\"s\" DESTINATION=\"d\""},
    {"Upload", " ACTION=\"Upload\" DESTINATION=\"d\" FILEFIELD=\"p\" NAMECONFLICT=\"Error\""},
    {"Write", " ACTION=\"Write\" OUTPUT=\"o\" FILE=\"f\""},
};

CfFileValues Filled(std::string_view action) {
  return {.action = std::string(action),
          .source = "s",
          .destination = "d",
          .output = "o",
          .file = "f",
          .variable = "v",
          .filefield = "p",
          .nameconflict = "Error"};
}

class CfFile : public testing::Test {
 protected:
  // The names of the fields that can be filled in, with a blank behind each.
  std::string Enabled() const {
    std::string names;
    for (const Control* control : form_.Controls())
      if (control->Enabled() && control->GetKind() != Control::Kind::Button) names += Concat({control->Name(), " "});
    return names;
  }
  std::string Asked() {
    std::string lines;
    for (const std::string& line : test_.Asked()) lines += line + "\n";
    return lines;
  }
  TestProgram test_;
  CFFILE form_{test_.program};
};

TEST_F(CfFile, AnActionWritesTheFieldsThatItKnows) {
  for (const ActionCase& row : kActions) EXPECT_EQ(CfFileText(Filled(row.action)), row.text);
}

TEST_F(CfFile, EmptyFieldsAreLeftOut) {
  EXPECT_EQ(CfFileText({.action = "Upload", .destination = "d"}), " ACTION=\"Upload\" DESTINATION=\"d\"");
}

TEST_F(CfFile, OffersTheActionsInTheirOrder) {
  ASSERT_EQ(form_.action.ListCount(), std::size(kActions));
  for (std::size_t i = 0; i < std::size(kActions); ++i) EXPECT_EQ(form_.action.List(i), kActions[i].action);
  EXPECT_EQ(form_.nameconflict_.Rows(), (std::vector<std::string>{"Error", "OverWrite", "MakeUnique"}));
}

TEST_F(CfFile, TheActionEnablesItsFields) {
  const std::pair<std::string_view, std::string_view> kFields[] = {
      {"Append", "action output_ file_ "},
      {"Copy", "action source_ destination_ "},
      {"Delete", "action file_ "},
      {"Move", "action source_ destination_ "},
      {"Read", "action file_ variable_ "},
      {"Rename", "action source_ destination_ "},
      {"Upload", "action destination_ filefield_ nameconflict_ "},
      {"Write", "action output_ file_ "},
  };
  EXPECT_EQ(Enabled(), "action ");
  for (const auto& [action, fields] : kFields) {
    EXPECT_TRUE(form_.action.UserSetsText(action));
    EXPECT_EQ(Enabled(), fields) << action;
  }
}

TEST_F(CfFile, ADisabledFieldKeepsItsTextAndWritesNothing) {
  form_.action.UserSetsText("Copy");
  form_.source_.UserSets("s");
  form_.action.UserSetsText("Delete");
  EXPECT_EQ(form_.Result(), " ACTION=\"Delete\"");
  form_.action.UserSetsText("Move");
  EXPECT_EQ(form_.Result(), " ACTION=\"Move\" SOURCE=\"s\"");
}

TEST_F(CfFile, OkAsksForAnAction) {
  Asked();
  test_.windows.modals.push_back([this](Form&) {
    form_.Command2.UserClicks();
    EXPECT_TRUE(form_.IsVisible());
    form_.action.UserSetsText("Delete");
    form_.Command2.UserClicks();
    EXPECT_FALSE(form_.IsVisible());
  });
  EXPECT_EQ(form_.Ask(), " ACTION=\"Delete\"");
  EXPECT_NE(Asked().find("Proszę sprecyzować działanie."), std::string::npos);
}

TEST_F(CfFile, ReadsTheTag) {
  for (const ActionCase& row : kActions) {
    form_.Read(Concat({"<CFFILE", row.text}));
    EXPECT_EQ(form_.Result(), row.text);
  }
}

TEST_F(CfFile, TheActionIsReadWithoutRegardToCase) {
  form_.Read("<cffile action=\"UPLOAD\" destination=\"d\"");
  EXPECT_EQ(Enabled(), "action destination_ filefield_ nameconflict_ ");
  EXPECT_EQ(form_.Result(), " ACTION=\"Upload\" DESTINATION=\"d\"");
}

TEST_F(CfFile, AnUnknownActionIsNotChosenAndAnUnknownConflictIsKept) {
  form_.Read("<CFFILE ACTION=\"ReadBinary\" FILE=\"f\"");
  EXPECT_EQ(form_.action.ListIndex(), -1);
  EXPECT_EQ(Enabled(), "action ");
  form_.Read("<CFFILE ACTION=\"Upload\" NAMECONFLICT=\"Skip\"");
  EXPECT_EQ(form_.Result(), " ACTION=\"Upload\" NAMECONFLICT=\"Skip\"");
}

TEST_F(CfFile, TheNameOfTheFormsFieldIsTakenForTheFileOnPurpose) {
  form_.Read("<CFFILE ACTION=\"Upload\" FILEFIELD=\"plik\"");
  EXPECT_EQ(form_.file_.Text(), "plik");
  EXPECT_EQ(form_.filefield_.Text(), "plik");
  form_.Read("<CFFILE ACTION=\"Read\" FILEFIELD=\"plik\" FILE=\"c:\\a.txt\"");
  EXPECT_EQ(form_.Result(), " ACTION=\"Read\" FILE=\"plik\"");
}

TEST_F(CfFile, VariablesAreOfferedButNotChosenAndNotRemembered) {
  test_.Write("program\\Listy\\FileVar.lst", "File.ServerFile\r\nFile.FileSize\r\n");
  CFFILE form(test_.program);
  EXPECT_EQ(form.variable_.Rows(), (std::vector<std::string>{"File.ServerFile", "File.FileSize"}));
  EXPECT_EQ(form.variable_.Text(), "");
  test_.windows.modals.push_back([&form](Form&) {
    form.action.UserSetsText("Read");
    form.variable_.UserSets("nowa");
    form.Command2.UserClicks();
  });
  form.Ask();
  EXPECT_EQ(test_.Read("program\\Listy\\FileVar.lst"), "File.ServerFile\r\nFile.FileSize\r\n");
}

}  // namespace
}  // namespace morlan
