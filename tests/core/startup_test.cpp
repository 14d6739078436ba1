#include <gtest/gtest.h>

#include "core/filepanel.h"
#include "core/status.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct StartingProgram : testing::Test {
  TestProgram test{TestProgram::Start::No};
  void Store(std::string_view item, std::string_view subItem, std::string_view value) {
    INIFile store(test.files);
    store.Init(test.Path("windows\\Morlan7.ini"));
    store.SetSubItemValue(item, subItem, value);
  }
  std::string Stored(std::string_view item, std::string_view subItem) {
    INIFile store(test.files);
    store.Init(test.Path("windows\\Morlan7.ini"));
    return store.GetSubItemValue(item, subItem);
  }
};

TEST_F(StartingProgram, SetsTheGlobals) {
  StartUp(test.program);
  EXPECT_EQ(test.Path("program\\"), test.program.ProgramPath);
  EXPECT_EQ(test.Path("temp\\"), test.program.TempDir);
  EXPECT_EQ(test.Path("temp\\Morlan7.tmp"), test.program.TempFile);
  EXPECT_EQ(test.Path("temp\\Morlan7.html"), test.program.PreviewFile);
  EXPECT_EQ(test.Path("temp\\Morlan7N.tmp"), test.program.TempFileN);
  EXPECT_EQ(test.Path("temp\\Morlan7E.tmp"), test.program.TempFileE);
  EXPECT_EQ("[Ten wydruk został zrobiony przez program Morlan7 1.5 Final (C)1997/1998]"_pl, test.program.PrintHeader[0]);
  EXPECT_EQ("Data wydruku :98-03-07", test.program.PrintHeader[1]);
  EXPECT_EQ("", test.program.PrintHeader[2]);
  EXPECT_EQ("c:\\usr\\bin\\Morlan7.hlp", test.program.HelpFile);
  EXPECT_EQ(test.Path("program\\PROJEKTY\\"), test.program.ProjectIni.FileName());
  EXPECT_EQ("Morlan7 - Edytor HTML - Wersja 1.5 Final (C)1997/1998", test.frame().Caption());
  EXPECT_EQ("Gotowy", test.frame().statusBar.PanelText("status"));
}

TEST_F(StartingProgram, StandsForTheInstallerWhereTheProgramPathIsMissing) {
  StartUp(test.program);
  EXPECT_EQ(test.Path("program\\"), Stored("ProgramAccess", "ProgramPath"));
}

TEST_F(StartingProgram, AddsABackslashToTheStoredProgramPath) {
  test.files.CreateDirectory(test.Path("work\\inny"));
  Store("ProgramAccess", "ProgramPath", test.Path("work\\inny"));
  StartUp(test.program);
  EXPECT_EQ(test.Path("work\\inny\\"), test.program.ProgramPath);
  EXPECT_TRUE(test.files.DirectoryExists(test.Path("work\\inny\\SZABLONY")));
}

TEST_F(StartingProgram, DeletesTheTemporaryFiles) {
  for (const char* name : {"temp\\Morlan7.tmp", "temp\\Morlan7.html", "temp\\Morlan7N.tmp", "temp\\Morlan7E.tmp"}) test.Write(name, "x");
  test.Write("temp\\inny.tmp", "x");
  StartUp(test.program);
  for (const char* name : {"temp\\Morlan7.tmp", "temp\\Morlan7.html", "temp\\Morlan7N.tmp", "temp\\Morlan7E.tmp"})
    EXPECT_FALSE(test.Exists(name)) << name;
  EXPECT_TRUE(test.Exists("temp\\inny.tmp"));
}

TEST_F(StartingProgram, MakesItsDirectories) {
  StartUp(test.program);
  for (const char* name : {"PROJEKTY", "UPLOAD", "STYLE", "MAKRO", "SZABLONY", "Shell", "FTPs"})
    EXPECT_TRUE(test.files.DirectoryExists(test.Path(std::string("program\\") + name))) << name;
  for (const char* name : {"Listy", "Biblioteka", "OBJEKTY", "SLOWNIKI", "Elementy"})
    EXPECT_FALSE(test.files.DirectoryExists(test.Path(std::string("program\\") + name))) << name;
}

TEST_F(StartingProgram, CopiesTheConfigurationThatIsNotInstalled) {
  Store("Setup", "Installation", "");
  test.Write("program\\Morlan7.ini",
             "[Setup]\r\nInstallation=ok\r\n[ProgramAccess]\r\nProgramPath=d:\\gdzies\r\n[AutoSave]\r\nAutoSaveTime=7\r\n");
  StartUp(test.program);
  EXPECT_EQ("7", Stored("AutoSave", "AutoSaveTime"));
  EXPECT_EQ("ok", Stored("Setup", "Installation"));
  EXPECT_EQ(test.Path("program\\"), Stored("ProgramAccess", "ProgramPath"));
  EXPECT_EQ(Record{}, test.Asked());
}

TEST_F(StartingProgram, TellsOfAConfigurationThatCannotBeCopied) {
  Store("Setup", "Installation", "x");
  StartUp(test.program);
  EXPECT_EQ(Record{R"(message "Uaktualnienie pliku konfiguracyjnego nie możliwe !" "Morlan7" stop ok)"}, test.Asked());
}

TEST_F(StartingProgram, TakesOkInAnyCaseForInstalled) {
  Store("Setup", "Installation", "OK");
  StartUp(test.program);
  EXPECT_EQ(Record{}, test.Asked());
}

TEST_F(StartingProgram, FillsTheListsOfTheFrame) {
  for (const char* name : {"Listy", "STYLE", "MAKRO", "PROJEKTY"})
    EnsureDirectory(test.program, test.Path(std::string("program\\") + name));
  test.Write("program\\Listy\\Tags.lst", "<A>\r\n<B>..</B>\r\n");
  test.Write("program\\STYLE\\Zielony.STL", "");
  test.Write("program\\STYLE\\obcy.txt", "");
  test.Write("program\\MAKRO\\a.mac", "");
  test.Write("program\\MAKRO\\b.mac", "");
  test.Write("program\\PROJEKTY\\Moja.strona.pro", "");
  test.files.CreateDirectory(test.Path("program\\PROJEKTY\\katalog"));
  StartUp(test.program);
  EXPECT_EQ((std::vector<std::string>{"<A>", "<B>..</B>"}), test.frame().tags.Rows());
  EXPECT_EQ(1, test.frame().tags.ListIndex());
  EXPECT_EQ(std::vector<std::string>{"Zielony"}, test.frame().Combo1.Rows());
  EXPECT_EQ((std::vector<std::string>{"a", "b"}), test.frame().makro.Rows());
  EXPECT_EQ(0, test.frame().makro.ListIndex());
  EXPECT_EQ(std::vector<std::string>{"Moja.strona"}, test.frame().Lista2.Rows());
}

TEST_F(StartingProgram, OffersSixtyOneNationalLetters) {
  StartUp(test.program);
  EXPECT_EQ(61u, test.frame().Chars.ListCount());
  EXPECT_EQ("\xC1", test.frame().Chars.List(0));
  EXPECT_EQ("\xFF", test.frame().Chars.List(60));
  EXPECT_EQ(-1, test.frame().Chars.IndexOf("\xD7"));
  EXPECT_EQ(-1, test.frame().Chars.IndexOf("\xF7"));
}

TEST_F(StartingProgram, ReadsTheSymbolsOfTheUser) {
  Store("UserSymbols", "Symbol0", "ą"_pl);
  Store("UserSymbols", "Symbol5", "&");
  StartUp(test.program);
  EXPECT_EQ("ą"_pl, test.frame().Chars2[0]->Caption());
  EXPECT_EQ("", test.frame().Chars2[1]->Caption());
  EXPECT_EQ("&", test.frame().Chars2[5]->Caption());
  EXPECT_EQ("Chars2(5)", test.frame().Chars2[5]->Name());
}

TEST_F(StartingProgram, LeavesAutoSaveOffUntilItIsActivated) {
  Store("AutoSave", "AutoSaveTime", "10");
  StartUp(test.program);
  EXPECT_EQ(0, test.program.AutoSaveInterval);
  EXPECT_EQ("10", Stored("AutoSave", "AutoSaveTime"));
}

TEST_F(StartingProgram, TakesTheAutoSavePeriod) {
  Store("AutoSave", "AutoSaveTime", "10");
  Store("AutoSave", "AutoSaveActivated", "True");
  StartUp(test.program);
  EXPECT_EQ(10, test.program.AutoSaveInterval);
}

TEST_F(StartingProgram, ShowsBothHintsWhenNothingIsStored) {
  Store("Hint", "ShowList", "False");
  StartUp(test.program);
  EXPECT_TRUE(test.program.HintShow);
  EXPECT_TRUE(test.program.HintShowList);
}

TEST_F(StartingProgram, ReadsTheStoredHints) {
  Store("Hint", "ShowList", "False");
  Store("Hint", "Show", "True");
  StartUp(test.program);
  EXPECT_TRUE(test.program.HintShow);
  EXPECT_FALSE(test.program.HintShowList);
}

TEST_F(StartingProgram, HidesThePanelsThatAreNotStoredAsShown) {
  Store("LayOut", "StatusBar", "False");
  Store("LayOut", "Symbols", "");
  StartUp(test.program);
  EXPECT_TRUE(test.frame().WindowsPanel.Visible() && test.frame().commandline.Visible() && test.frame().Menadzerplikow.Visible());
  EXPECT_FALSE(test.frame().statusBar.Visible());
  EXPECT_FALSE(test.frame().UnderChars.Visible());
  const Menu& menu = test.program.ActiveDocument->menu;
  EXPECT_TRUE(menu.IsChecked("xmn_tools_visible"));
  EXPECT_FALSE(menu.IsChecked("xmn_status_visible"));
}

TEST_F(StartingProgram, ShowsButtonsThatHaveACommandAndTheirTabs) {
  StartUp(test.program);
  const ToolBar& general = *test.frame().toolbars[0];
  for (const ToolBar::Item& item : general.Items())
    EXPECT_EQ(test.program.commands.HasToolbar("Toolbar0", item.key), item.visible) << item.key;
  EXPECT_GE(test.frame().objectsmenu.IndexOfKey("Toolbar1"), 0);
  for (const Tabs::Tab& tab : test.frame().objectsmenu.All()) {
    const auto* toolbar = dynamic_cast<ToolBar*>(test.frame().Find(tab.key));
    ASSERT_NE(nullptr, toolbar) << tab.key;
    EXPECT_TRUE(toolbar->HasVisibleItems()) << tab.key;
  }
}

TEST_F(StartingProgram, StartsInHtmlMode) {
  StartUp(test.program);
  EXPECT_TRUE(test.frame().objectsmenu.Visible());
  EXPECT_FALSE(test.frame().CDFObject.Visible());
  EXPECT_EQ("HTML", test.frame().statusBar.PanelText("mode"));
}

TEST_F(StartingProgram, OpensAnEmptyDocumentWithoutAFileName) {
  StartUp(test.program);
  ASSERT_EQ(1u, test.program.documents.size());
  EXPECT_EQ("BezTytułu.html"_pl, test.program.ActiveDocument->Caption());
  EXPECT_EQ("", test.program.ActiveDocument->FileType.Caption());
  EXPECT_EQ("edytor", test.program.ActiveDocument->Tag);
}

TEST_F(StartingProgram, OpensTheFileOfTheCommandLine) {
  test.Write("work\\moja strona.html", "<html>a");
  test.environment.commandLine = test.Path("work\\moja strona.html");
  StartUp(test.program);
  ASSERT_EQ(1u, test.program.documents.size());
  EXPECT_EQ(test.Path("work\\moja strona.html"), test.program.ActiveDocument->Caption());
  EXPECT_EQ(test.Path("work"), CurrentPanelDirectory(test.program));
  EXPECT_EQ(test.Path("work\\"), test.frame().path.Caption());
  EXPECT_EQ(0, test.frame().Filelist.IndexOf("moja strona.html"));
}

TEST_F(StartingProgram, FindsNoFileByANameInQuotes) {
  test.Write("work\\a.html", "<html>a");
  test.environment.commandLine = "\"" + test.Path("work\\a.html") + "\"";
  StartUp(test.program);
  EXPECT_EQ("BezTytułu.html"_pl, test.program.ActiveDocument->Caption());
  EXPECT_EQ(Record{}, test.Asked());
}

TEST_F(StartingProgram, GoesToTheDirectoryOfTheLastSession) {
  test.files.CreateDirectory(test.Path("work\\strony"));
  Store("ProgramAccess", "StartPath", test.Path("work\\strony"));
  StartUp(test.program);
  EXPECT_EQ(test.Path("work\\strony"), CurrentPanelDirectory(test.program));
}

TEST_F(StartingProgram, StaysInTheCurrentDirectoryWhereThatOfTheLastSessionIsGone) {
  Store("ProgramAccess", "StartPath", test.Path("work\\nie ma"));
  StartUp(test.program);
  EXPECT_EQ(test.Path("work"), CurrentPanelDirectory(test.program));
  EXPECT_TRUE(test.frame().panelListed);
}

TEST_F(StartingProgram, WritesTheShellAssociation) {
  StartUp(test.program);
  EXPECT_EQ("&Edytuj w Morlan7", test.registry.GetString("htmlfile\\shell\\Morlan7", ""));
  EXPECT_EQ("c:\\usr\\bin\\Morlan7.exe %1", test.registry.GetString("htmlfile\\shell\\Morlan7\\command", ""));
}

TEST_F(StartingProgram, FillsTheLastOpenedRows) {
  Store("LastOpened", "Item0", "c:\\a.html");
  StartUp(test.program);
  EXPECT_EQ("c:\\a.html", test.frame().menu.Find("mn_lastopen(0)")->caption);
  EXPECT_TRUE(test.frame().menu.Find("mn_lastopen(0)")->visible);
  EXPECT_FALSE(test.frame().menu.Find("mn_lastopen(1)")->visible);
}

struct BadStore {
  const char* what;
  std::string bytes;
};

class StartWithABadStore : public testing::TestWithParam<BadStore> {};

TEST_P(StartWithABadStore, OpensAnEmptyDocumentAllTheSame) {
  TestProgram test(TestProgram::Start::No);
  test.Write("windows\\Morlan7.ini", GetParam().bytes);
  StartUp(test.program);
  EXPECT_EQ(1u, test.program.documents.size());
  EXPECT_EQ('\\', test.program.ProgramPath.back());
}

INSTANTIATE_TEST_SUITE_P(
    All, StartWithABadStore,
    testing::Values(BadStore{"empty", ""}, BadStore{"no line ends", std::string(100000, '[')}, BadStore{"zeros", std::string(5000, '\0')},
                    BadStore{"cut short", "[Setup]\r\nInstallation=ok\r\n[ProgramAccess]\r\nProgramPath="},
                    BadStore{"numbers out of bounds",
                             "[Setup]\r\nInstallation=ok\r\n[AutoSave]\r\nAutoSaveActivated=True\r\nAutoSaveTime=99999999999999999999\r\n"
                             "[EditorFont]\r\nFontSize=-1e300\r\n[Colorize]\r\nGlobalColor=xyzxyzxyz\r\n"}),
    [](const auto& info) {
      std::string name = info.param.what;
      for (char& c : name) c = c == ' ' ? '_' : c;
      return name;
    });

TEST_F(StartingProgram, LivesWithoutAStoreAtAll) {
  test.files.Delete(test.Path("windows\\Morlan7.ini"));
  StartUp(test.program);
  EXPECT_EQ(test.Path("program\\"), test.program.ProgramPath);
  EXPECT_EQ(1u, test.program.documents.size());
}

TEST_F(StartingProgram, TakesTheUsersFolderWhereTheStoreCannotBeWritten) {
  test.files.Delete(test.Path("windows\\Morlan7.ini"));
  std::filesystem::remove(test.folder.path / "windows");
  StartUp(test.program);
  EXPECT_EQ(test.Path("program\\"), test.program.ProgramPath);
}

}  // namespace
}  // namespace morlan
