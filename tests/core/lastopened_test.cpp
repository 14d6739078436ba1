#include "core/lastopened.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct LastOpened : testing::Test {
  TestProgram test;
  std::vector<std::string> Stored() {
    std::vector<std::string> items;
    for (const char* item : {"Item0", "Item1", "Item2", "Item3"}) items.push_back(test.program.MainIni.GetSubItemValue("LastOpened", item));
    return items;
  }
};

TEST_F(LastOpened, KeepsTheFourNewestFirst) {
  for (const char* path : {"c:\\1", "c:\\2", "c:\\3", "c:\\4", "c:\\5"}) RememberOpened(test.program, path);
  EXPECT_EQ((std::vector<std::string>{"c:\\5", "c:\\4", "c:\\3", "c:\\2"}), Stored());
}

TEST_F(LastOpened, DoesNotMoveAFileThatIsInTheList) {
  for (const char* path : {"c:\\a.html", "c:\\b.html", "C:\\A.HTML"}) RememberOpened(test.program, path);
  EXPECT_EQ((std::vector<std::string>{"c:\\b.html", "c:\\a.html", "", ""}), Stored());
}

TEST_F(LastOpened, ShowsInTheFramesMenuAtOnceAndInADocumentsOnActivation) {
  RememberOpened(test.program, "c:\\a.html");
  EXPECT_EQ("c:\\a.html", test.frame().menu.Find("mn_lastopen(0)")->caption);
  EXPECT_FALSE(test.program.ActiveDocument->menu.Find("mn_lastopen(0)")->visible);
  ActivateDocument(test.program, *test.program.ActiveDocument);
  EXPECT_EQ("c:\\a.html", test.program.ActiveDocument->menu.Find("mn_lastopen(0)")->caption);
  EXPECT_TRUE(test.program.ActiveDocument->menu.Find("mn_lastopen(0)")->visible);
}

TEST_F(LastOpened, IsRefreshedInAllDocuments) {
  RememberOpened(test.program, "c:\\a.html");
  RefreshLastOpened(test.program);
  EXPECT_EQ("c:\\a.html", test.program.ActiveDocument->menu.Find("mn_lastopen(0)")->caption);
}

TEST_F(LastOpened, OpensTheFileOfARow) {
  test.OpenText("a", "a.html");
  test.OpenText("b", "b.html");
  CloseAllDocuments(test.program);
  test.program.commands.RunMenu("mn_lastopen(1)");
  ASSERT_NE(nullptr, test.program.ActiveDocument);
  EXPECT_EQ(test.Path("work\\a.html"), test.program.ActiveDocument->Caption());
}

}  // namespace
}  // namespace morlan
