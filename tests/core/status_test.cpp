#include "core/status.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

std::string Message(const TestProgram& test) { return ToUtf8(test.program.frame().statusBar.PanelText("status")); }

TEST(Status, ShowsBusyWithItsOwnTextForAnEmptyOne) {
  TestProgram test;
  ShowBusy(test.program, "");
  EXPECT_EQ("Proces w toku...Proszę czekać...", Message(test));
  EXPECT_TRUE(test.windows.busyPointer);
}

TEST(Status, ShowsReadyAndGivesThePointerBack) {
  TestProgram test;
  ShowBusy(test.program, "Coś"_pl);
  EXPECT_EQ("Coś", Message(test));
  ShowReady(test.program);
  EXPECT_EQ("Gotowy", Message(test));
  EXPECT_FALSE(test.windows.busyPointer);
}

TEST(Status, ShowsInAPanelWithoutTouchingThePointer) {
  TestProgram test;
  ShowBusy(test.program, "x");
  ShowInPanel(test.program, 3, "2 KB");
  ShowInPanel(test.program, 4, "");
  ShowInPanel(test.program, 99, "nowhere");
  EXPECT_EQ("2 KB", test.frame().statusBar.PanelText("docsize"));
  EXPECT_EQ("Gotowy", test.frame().statusBar.PanelText("mode"));
  EXPECT_TRUE(test.windows.busyPointer);
}

TEST(Status, ShowsErrorsWithTheStopIcon) {
  TestProgram test;
  ShowError(test.program, "Źle"_pl);
  EXPECT_EQ(Record{R"(message "Źle" "Morlan7" stop ok)"}, test.Asked());
}

TEST(FileExists, IsFalseForDirectoriesAndTheEmptyName) {
  TestProgram test;
  test.Write("work\\a.html", "");
  EXPECT_TRUE(FileExists(test.program, test.Path("work\\a.html")));
  EXPECT_FALSE(FileExists(test.program, test.Path("work")));
  EXPECT_FALSE(FileExists(test.program, test.Path("work\\b.html")));
  EXPECT_FALSE(FileExists(test.program, ""));
}

TEST(EnsureDirectory, MakesAMissingOneAndStaysWhereItWas) {
  TestProgram test;
  EnsureDirectory(test.program, test.Path("work\\nowy"));
  EnsureDirectory(test.program, test.Path("work\\nowy"));
  EXPECT_TRUE(test.files.DirectoryExists(test.Path("work\\nowy")));
  EXPECT_EQ(test.Path("work"), test.files.CurrentDirectory());
}

TEST(TextToBool, KnowsOnlyTrue) {
  EXPECT_TRUE(TextToBool("True"));
  EXPECT_TRUE(TextToBool("TRUE"));
  for (const char* text : {"", "False", "1", "-1", "True ", "yes"}) EXPECT_FALSE(TextToBool(text)) << text;
}

struct Lists : testing::Test {
  TestProgram test;
  Form form{"form", ""};
  ComboBox box{form, "box"};
  Lists() { EnsureDirectory(test.program, test.Path("program\\Listy")); }
};

TEST_F(Lists, FillABoxWithTheLinesAndSelectTheLast) {
  test.Write("program\\Listy\\a.lst", "pierwszy\r\n\r\ndrugi\r\ntrzeci");
  LoadComboFromList(test.program, box, "Listy\\a.lst");
  EXPECT_EQ((std::vector<std::string>{"pierwszy", "drugi", "trzeci"}), box.Rows());
  EXPECT_EQ(2, box.ListIndex());
  EXPECT_EQ("trzeci", box.Text());
}

TEST_F(Lists, LeaveTheBoxEmptyWhereTheFileIsMissing) {
  LoadComboFromList(test.program, box, "Listy\\brak.lst");
  EXPECT_EQ(0u, box.ListCount());
}

TEST_F(Lists, AreSearchedLineByLineIgnoringCase) {
  test.Write("program\\Listy\\a.lst", "Łódź\r\nindex.html\r\n"_pl);
  EXPECT_TRUE(IsInList(test.program, "łÓDŹ"_pl, "Listy\\a.lst"));
  EXPECT_TRUE(IsInList(test.program, "INDEX.HTML", "Listy\\a.lst"));
  EXPECT_FALSE(IsInList(test.program, "index", "Listy\\a.lst"));
  EXPECT_FALSE(IsInList(test.program, "x", "Listy\\brak.lst"));
}

TEST_F(Lists, RememberOnlyWhatIsNew) {
  test.Write("program\\Listy\\a.lst", "jeden\r\n");
  for (const char* text : {"dwa", "JEDEN", "", "dwa"}) {
    box.SetText(text);
    RememberInList(test.program, box, "Listy\\a.lst");
  }
  EXPECT_EQ("jeden\r\ndwa\r\n", test.Read("program\\Listy\\a.lst"));
}

TEST_F(Lists, MakeAMissingFile) {
  box.SetText("a");
  RememberInList(test.program, box, "Listy\\nowa.lst");
  EXPECT_EQ("a\r\n", test.Read("program\\Listy\\nowa.lst"));
}

TEST_F(Lists, EndALastLineThatHasNoEnd) {
  test.Write("program\\Listy\\a.lst", "jeden");
  box.SetText("dwa");
  RememberInList(test.program, box, "Listy\\a.lst");
  EXPECT_EQ("jeden\r\ndwa\r\n", test.Read("program\\Listy\\a.lst"));
}

TEST_F(Lists, AreSortedWithAWordInTheStatusLine) {
  box.AddItems({"b", "A", "c"});
  SortComboBox(test.program, box);
  EXPECT_EQ((std::vector<std::string>{"A", "b", "c"}), box.Rows());
  EXPECT_EQ("Gotowy", Message(test));
}

TEST_F(Lists, TakeTheFontsOfTheScreen) {
  LoadFontNames(test.program, box);
  EXPECT_EQ((std::vector<std::string>{"Courier", "Sans"}), box.Rows());
}

}  // namespace
}  // namespace morlan
