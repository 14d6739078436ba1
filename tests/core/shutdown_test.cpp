#include <gtest/gtest.h>

#include "core/documents.h"
#include "core/filepanel.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

const std::string kQuestion = R"(message "Chcesz zakończyć pracę ?" "Morlan7" question yesno)";

TEST(Quit, AsksStoresTheSessionAndEnds) {
  TestProgram test;
  test.Write("temp\\Morlan7.html", "x");
  test.frame().Chars2[3]->SetCaption("ę"_pl);
  test.windows.answers.push_back(Answer::Yes);
  EXPECT_TRUE(QuitProgram(test.program));
  EXPECT_EQ((Record{kQuestion, "ends"}), test.Asked());
  EXPECT_EQ("ę"_pl, test.program.MainIni.GetSubItemValue("UserSymbols", "Symbol3"));
  EXPECT_EQ(test.Path("work"), test.program.MainIni.GetSubItemValue("ProgramAccess", "StartPath"));
  EXPECT_FALSE(test.Exists("temp\\Morlan7.html"));
}

TEST(Quit, StaysOnNoWithoutDocuments) {
  TestProgram test;
  test.windows.answers.push_back(Answer::No);
  EXPECT_FALSE(QuitProgram(test.program));
  EXPECT_EQ(Record{kQuestion}, test.Asked());
  EXPECT_TRUE(test.program.documents.empty());
  EXPECT_EQ("", test.program.MainIni.GetSubItemValue("ProgramAccess", "StartPath"));
}

TEST(Quit, StopsAtADocumentThatRefuses) {
  TestProgram test;
  test.OpenText("", "a.html").EditedText.SetSelText("x");
  TEditor& refusing = test.OpenText("", "b.html");
  refusing.EditedText.SetSelText("y");
  test.OpenText("c", "c.html");
  test.windows.answers = {Answer::No, Answer::Cancel};
  EXPECT_FALSE(QuitProgram(test.program));
  EXPECT_EQ(2u, test.program.documents.size());
  EXPECT_EQ(&refusing, test.program.ActiveDocument);
}

TEST(Quit, RunsFromTheMenu) {
  TestProgram test;
  test.windows.answers.push_back(Answer::Yes);
  test.program.commands.RunMenu("xmn_quit");
  EXPECT_EQ("ends", test.record.back());
}

}  // namespace
}  // namespace morlan
