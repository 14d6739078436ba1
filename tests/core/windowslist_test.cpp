#include "core/windowslist.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct WindowsList : testing::Test {
  TestProgram test;
  Tabs& tabs = test.frame().WindowsManager;
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const Tabs::Tab& tab : tabs.All()) texts.push_back(tab.text);
    return texts;
  }
};

TEST_F(WindowsList, HasATabForEachDocument) {
  test.OpenText("a", "a.html");
  test.OpenText("b", "b.html");
  EXPECT_EQ((std::vector<std::string>{"a.html", "b.html"}), Texts());
  EXPECT_EQ(test.Path("work\\b.html"), tabs.All()[1].key);
  EXPECT_EQ(test.Path("work\\b.html"), tabs.All()[1].tag);
  EXPECT_EQ(1, tabs.Selected());
}

TEST_F(WindowsList, MarksModifiedDocuments) {
  test.OpenText("", "a.html").EditedText.SetSelText("x");
  EXPECT_EQ(1, tabs.All()[0].image);
  UpdateWindowsManager(test.program);
  EXPECT_EQ(1, tabs.All()[0].image);
}

TEST_F(WindowsList, IsRebuiltFromTheDocuments) {
  test.OpenText("a", "a.html");
  tabs.Clear();
  tabs.Add({.key = "obcy", .text = "obcy", .tag = ""});
  test.program.WindowsListDirty = false;
  UpdateWindowsManager(test.program);
  EXPECT_EQ(std::vector<std::string>{"a.html"}, Texts());
  EXPECT_EQ(0, tabs.Selected());
  EXPECT_TRUE(test.program.WindowsListDirty);
}

TEST_F(WindowsList, ShowsOneTabForTwoDocumentsOfOneName) {
  test.OpenText("a", "a.html");
  test.OpenText("b", "b.html").SetCaption(test.Path("work\\a.html"));
  UpdateWindowsManager(test.program);
  EXPECT_EQ(std::vector<std::string>{"a.html"}, Texts());
}

TEST_F(WindowsList, UnloadsADocumentWithoutAName) {
  test.OpenText("a", "a.html");
  test.OpenText("b", "b.html").SetCaption("");
  UpdateWindowsManager(test.program);
  EXPECT_EQ(1u, test.program.documents.size());
  EXPECT_EQ(std::vector<std::string>{"a.html"}, Texts());
}

TEST_F(WindowsList, BringsTheChosenDocumentForward) {
  TEditor& a = test.OpenText("a", "a.html");
  test.OpenText("b", "b.html");
  EXPECT_TRUE(tabs.UserSelects(0));
  EXPECT_EQ(&a, test.program.ActiveDocument);
}

TEST_F(WindowsList, ClosesADocumentByItsMark) {
  test.OpenText("a", "a.html");
  test.OpenText("b", "b.html");
  tabs.OnCloseTab(0);
  EXPECT_EQ(std::vector<std::string>{"b.html"}, Texts());
  tabs.OnCloseTab(7);
  EXPECT_EQ(1u, test.program.documents.size());
}

}  // namespace
}  // namespace morlan
