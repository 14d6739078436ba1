#include "core/filepanel.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct FilePanel : testing::Test {
  TestProgram test;
  FilePanel() {
    test.files.CreateDirectory(test.Path("work\\strony"));
    test.files.CreateDirectory(test.Path("work\\.ukryty"));
    for (const char* name : {"b.HTML", "a.html", "notatki.txt", "logo.PNG", "gra.mid", ".tajny.html", "t.tbl"})
      test.Write(std::string("work\\") + name, "x");
    RefreshFilePanel(test.program);
  }
  std::vector<std::string> Files(int type) {
    EXPECT_TRUE(test.frame().filetypes.UserSelects(type));
    return test.frame().Filelist.Rows();
  }
};

TEST_F(FilePanel, OffersTheFileTypes) {
  EXPECT_EQ((std::vector<std::string>{"Pliki HTML (*.html)", "Pliki tekstowe (*.txt)", "Pliki graficzne (*.gif,*.jpg,*.png)",
                                      "Pliki multimedialne (*.mid)", "Pliki programu (*.tbl,*.lis)", "Wszystkie pliki (*.*)"}),
            test.frame().filetypes.Rows());
  EXPECT_EQ(0, test.frame().filetypes.ListIndex());
}

TEST_F(FilePanel, ListsWhatFitsTheChosenType) {
  EXPECT_EQ((std::vector<std::string>{"a.html", "b.HTML"}), Files(0));
  EXPECT_EQ(std::vector<std::string>{"notatki.txt"}, Files(1));
  EXPECT_EQ(std::vector<std::string>{"logo.PNG"}, Files(2));
  EXPECT_EQ(std::vector<std::string>{"gra.mid"}, Files(3));
  EXPECT_EQ(std::vector<std::string>{"t.tbl"}, Files(4));
  EXPECT_EQ(6u, Files(5).size());
}

TEST_F(FilePanel, ListsTheWayUpAndTheDirectories) {
  EXPECT_EQ((std::vector<std::string>{"..", "strony"}), test.frame().Dirlist.Rows());
  EXPECT_EQ("c:", test.frame().Drivelist.Text());
}

TEST_F(FilePanel, EntersADirectoryByDoubleClickAndComesBack) {
  test.frame().Dirlist.UserSelects(1);
  test.frame().Dirlist.UserDblClicks();
  EXPECT_EQ(test.Path("work\\strony"), CurrentPanelDirectory(test.program));
  EXPECT_EQ(test.Path("work\\strony\\"), test.frame().path.Caption());
  EXPECT_TRUE(test.frame().Filelist.Rows().empty());
  test.frame().Dirlist.UserSelects(0);
  test.frame().Dirlist.UserDblClicks();
  EXPECT_EQ(test.Path("work"), CurrentPanelDirectory(test.program));
}

TEST_F(FilePanel, OpensAFileByDoubleClick) {
  test.frame().Filelist.UserSelects(0);
  test.frame().Filelist.UserDblClicks();
  EXPECT_EQ(test.Path("work\\a.html"), test.program.ActiveDocument->Caption());
}

TEST_F(FilePanel, DoesNothingByDoubleClickWithoutASelection) {
  test.frame().Filelist.UserDblClicks();
  test.frame().Dirlist.UserDblClicks();
  EXPECT_EQ(1u, test.program.documents.size());
  EXPECT_EQ(test.Path("work"), CurrentPanelDirectory(test.program));
}

TEST_F(FilePanel, StaysWhereItIsForAMissingDirectory) {
  MoveFilePanel(test.program, test.Path("work\\nie ma"));
  MoveFilePanel(test.program, test.Path("work\\a.html"));
  MoveFilePanel(test.program, "");
  EXPECT_EQ(test.Path("work"), CurrentPanelDirectory(test.program));
}

TEST_F(FilePanel, GoesToTheRootOfTheDriveWithoutAWayUp) {
  test.frame().Drivelist.UserSelects(0);
  EXPECT_EQ("c:\\", CurrentPanelDirectory(test.program));
  EXPECT_EQ("c:\\", test.frame().path.Caption());
  EXPECT_EQ(-1, test.frame().Dirlist.IndexOf(".."));
  const int tmp = test.frame().Dirlist.IndexOf("tmp");
  ASSERT_GE(tmp, 0);
  test.frame().Dirlist.UserSelects(tmp);
  test.frame().Dirlist.UserDblClicks();
  EXPECT_EQ("c:\\tmp", CurrentPanelDirectory(test.program));
  test.frame().Dirlist.UserSelects(0);
  test.frame().Dirlist.UserDblClicks();
  EXPECT_EQ("c:\\", CurrentPanelDirectory(test.program));
}

TEST_F(FilePanel, ReadsNothingWhileItIsHidden) {
  test.program.commands.RunMenu("xmn_filemanager_visible");
  MoveFilePanel(test.program, test.Path("work\\strony"));
  EXPECT_EQ(2u, test.frame().Dirlist.ListCount());
  test.program.commands.RunMenu("xmn_filemanager_visible");
  EXPECT_EQ(std::vector<std::string>{".."}, test.frame().Dirlist.Rows());
}

struct PatternCase {
  const char *name, *pattern;
  bool matches;
};
class Patterns : public testing::TestWithParam<PatternCase> {};

TEST_P(Patterns, MatchWholeNames) { EXPECT_EQ(GetParam().matches, MatchesPattern(GetParam().name, GetParam().pattern)); }

INSTANTIATE_TEST_SUITE_P(All, Patterns,
                         testing::Values(PatternCase{"a.html", "*.html", true}, PatternCase{"A.HTML", "*.html", true},
                                         PatternCase{"a.html.bak", "*.html", false}, PatternCase{"html", "*.html", false},
                                         PatternCase{"bez", "*.*", true}, PatternCase{"ab", "a?", true}, PatternCase{"a", "a?", false},
                                         PatternCase{"aXbXc", "a*b*c", true}, PatternCase{"aXcX", "a*c", false}, PatternCase{"", "*", true},
                                         PatternCase{"a", "", false}));

}  // namespace
}  // namespace morlan
