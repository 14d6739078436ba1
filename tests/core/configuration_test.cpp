#include "core/configuration.h"

#include <gtest/gtest.h>

#include "core/applysettings.h"
#include "core/documents.h"
#include "core/text.h"
#include "core/timers.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Configuration : testing::Test {
  TestProgram test;
  Program& program = test.program;

  std::string Stored(std::string_view item, std::string_view key) { return program.MainIni.GetSubItemValue(item, key); }
  void Store(std::string_view item, std::string_view key, std::string_view value) { program.MainIni.SetSubItemValue(item, key, value); }
  // Opens the dialog by its command, does something in it and leaves by Ok or by the other button.
  void Confirm(const std::function<void(configuration&)>& act = [](configuration&) {}) { Open(act, true); }
  void Cancel(const std::function<void(configuration&)>& act) { Open(act, false); }

 private:
  void Open(const std::function<void(configuration&)>& act, bool confirm) {
    test.windows.modals.push_back([=](Form& shown) {
      auto& form = static_cast<configuration&>(shown);
      act(form);
      (confirm ? form.Command2 : form.Command1).UserClicks();
      EXPECT_FALSE(form.IsVisible());
    });
    EXPECT_TRUE(program.commands.RunMenu("xmn_configuration"));
  }
};

// One field of the dialog: where it is kept, and a value with how the user gives it.
struct FieldRow {
  const char *item, *key, *control, *given, *stored;
};

constexpr FieldRow kFields[] = {
    {"Hint", "Show", "ShowHint", "false", "False"},
    {"Hint", "ShowList", "ShowBlock", "true", "False"},
    {"Hint", "SetupCarret", "SetupCarret", "false", "False"},
    {"Hint", "LIExtend", "ExtendLI", "false", "False"},
    {"LayOut", "WindowsManager", "SSCheck1(0)", "false", "False"},
    {"LayOut", "StatusBar", "SSCheck1(1)", "false", "False"},
    {"LayOut", "CommandLine", "SSCheck1(2)", "false", "False"},
    {"LayOut", "FileManager", "SSCheck1(3)", "false", "False"},
    {"LayOut", "Symbols", "SSCheck1(4)", "false", "False"},
    {"Document", "CreateBackup", "CreateBackup", "true", "True"},
    {"Spelling", "IgnoreNumbers", "Ignore(0)", "true", "True"},
    {"Spelling", "IgnoreUpperCase", "Ignore(1)", "true", "True"},
    {"AutoSave", "AutoSaveActivated", "AutoSaveActivated", "true", "True"},
    {"AutoSave", "AutoSaveTime", "AutoSaveTime", "15", "15"},
    {"Import", "Explorer", "ExplorerUse", "true", "True"},
    {"Import", "Netscape", "NetscapeUse", "true", "True"},
    {"Import", "NetscapePath", "WhereIsNetscape", "c:\\zak.htm", "c:\\zak.htm"},
    {"Colorize", "UseColorize", "UseColorize", "false", "False"},
    {"Internet", "Proxy", "Proxy", "proxy:8080", "proxy:8080"},
};

class ConfigurationField : public Configuration, public testing::WithParamInterface<FieldRow> {};

TEST_P(ConfigurationField, IsStoredAndShownAgain) {
  const FieldRow& row = GetParam();
  Confirm([&](configuration& form) {
    EXPECT_NE(form.Find(row.control)->ValueText(), row.given);
    EXPECT_TRUE(form.Find(row.control)->UserSetsText(row.given));
  });
  EXPECT_EQ(Stored(row.item, row.key), row.stored);
  Cancel([&](configuration& form) { EXPECT_EQ(form.Find(row.control)->ValueText(), row.given); });
}

INSTANTIATE_TEST_SUITE_P(All, ConfigurationField, testing::ValuesIn(kFields),
                         [](const auto& info) { return std::string(info.param.item) + info.param.key; });

struct ColourRow {
  const char *item, *key, *control;
};

class ConfigurationColour : public Configuration, public testing::WithParamInterface<ColourRow> {};

TEST_P(ConfigurationColour, IsAskedForStoredAndShownAgain) {
  const ColourRow& row = GetParam();
  test.windows.colours.push_back(RgbColour(0x12, 0xAB, 0xEF));
  Confirm([&](configuration& form) { form.Find(row.control)->UserClicks(); });
  EXPECT_EQ(Stored(row.item, row.key), "12ABEF");
  Cancel([&](configuration& form) { EXPECT_EQ(form.FindAs<ColourBox>(row.control)->Value(), RgbColour(0x12, 0xAB, 0xEF)); });
}

TEST_P(ConfigurationColour, StaysWhenTheQuestionIsCancelled) {
  const ColourRow& row = GetParam();
  Store(row.item, row.key, "102030");
  test.windows.colours.push_back(std::nullopt);
  Confirm([&](configuration& form) { form.Find(row.control)->UserClicks(); });
  EXPECT_EQ(Stored(row.item, row.key), "102030");
}

INSTANTIATE_TEST_SUITE_P(All, ConfigurationColour,
                         testing::Values(ColourRow{"Colorize", "GlobalColor", "GlobalColor"},
                                         ColourRow{"Colorize", "TagsColor", "TagsColor"}, ColourRow{"Colorize", "LinksColor", "LinksColor"},
                                         ColourRow{"Colorize", "CommentsColor", "CommentsColor"},
                                         ColourRow{"EditorFont", "FontColor", "FontColor"}),
                         [](const auto& info) { return std::string(info.param.key); });

TEST_F(Configuration, WritesItsItemsInOneOrder) {
  test.Write("windows\\Morlan7.ini", "[Setup]\r\nInstallation=ok\r\n");
  Confirm();
  EXPECT_EQ(test.Read("windows\\Morlan7.ini"),
            "[Setup]\r\nInstallation=ok\r\n"
            "\r\n[Hint]\r\nShow=True\r\nShowList=True\r\nSetupCarret=True\r\nLIExtend=True\r\n"
            "\r\n[LayOut]\r\nWindowsManager=False\r\nStatusBar=False\r\nCommandLine=False\r\nFileManager=False\r\nSymbols=False\r\n"
            "\r\n[Document]\r\nCharSet=\r\nCreateBackup=False\r\n"
            "\r\n[Spelling]\r\nIgnoreNumbers=False\r\nIgnoreUpperCase=False\r\n"
            "\r\n[AutoSave]\r\nAutoSaveActivated=False\r\nAutoSaveTime=0\r\n"
            "\r\n[EditorFont]\r\nFontName=\r\nFontSize=10\r\nFontBold=False\r\nFontItalic=False\r\nFontUnderline=False\r\n"
            "FontStrikeThrough=False\r\nFontColor=\r\n"
            "\r\n[Import]\r\nExplorer=False\r\nNetscape=False\r\nNetscapePath=\r\n"
            "\r\n[Colorize]\r\nUseColorize=False\r\nGlobalColor=000000\r\nTagsColor=000000\r\nLinksColor=000000\r\nCommentsColor=000000\r\n"
            "\r\n[Internet]\r\nProxy=\r\n"
            "\r\n[Browser]\r\nCountItem=0\r\n"
            "Current=Domyślna\r\n"_pl);
}

TEST_F(Configuration, WritesNothingWhenItIsCancelled) {
  const std::string before = test.Read("windows\\Morlan7.ini");
  Cancel([](configuration& form) {
    form.Proxy.UserSets("x");
    form.UseColorize.UserSets(false);
  });
  EXPECT_EQ(test.Read("windows\\Morlan7.ini"), before);
  EXPECT_TRUE(program.tagState.UseColorize);
}

TEST_F(Configuration, ReadsTheStoreAnewAtEachOpening) {
  Cancel([](configuration& form) { form.Proxy.UserSets("x"); });
  Store("Internet", "Proxy", "y");
  Cancel([](configuration& form) { EXPECT_EQ(form.Proxy.Text(), "y"); });
}

TEST_F(Configuration, ShowsTheDefaultsOfGarbledValues) {
  for (const auto& [item, key] : {std::pair{"Hint", "SetupCarret"},
                                  {"EditorFont", "FontSize"},
                                  {"Colorize", "TagsColor"},
                                  {"AutoSave", "AutoSaveTime"},
                                  {"LayOut", "Symbols"},
                                  {"Browser", "CountItem"}})
    Store(item, key, "%zz");
  Cancel([](configuration& form) {
    EXPECT_TRUE(form.SetupCarret.Value());
    EXPECT_EQ(form.Label1.Font().size, 10);
    EXPECT_EQ(form.TagsColor.Value(), 0u);
    EXPECT_EQ(form.AutoSaveTime.Text(), "0");
    EXPECT_FALSE(form.SymbolsVisible.Value());
    EXPECT_EQ(form.Browsers.ListCount(), 1u);
  });
}

TEST_F(Configuration, TellsItsSteps) {
  std::vector<std::string> steps;
  struct StatusView : ControlView {
    std::vector<std::string>& steps;
    explicit StatusView(std::vector<std::string>& told) : steps(told) {}
    void ControlChanged(Control& control, Aspect) override { steps.push_back(control.ValueText()); }
  } view(steps);
  test.frame().statusBar.AttachView(&view);
  Confirm([&](configuration&) { steps.emplace_back("dialog"); });
  test.frame().statusBar.AttachView(nullptr);
  EXPECT_EQ(steps,
            (std::vector<std::string>{"Zmiana konfiguracji...", "Gotowy", "dialog", std::string("Zapisuję konfigurację"_pl), "Gotowy"}));
}

TEST_F(Configuration, BothHintsAreOnWhileTheirSwitchIsNotStored) {
  Store("Hint", "ShowList", "False");
  Cancel([](configuration& form) {
    EXPECT_TRUE(form.ShowHint.Value());
    EXPECT_TRUE(form.ShowList.Value());
    EXPECT_FALSE(form.ShowBlock.Value());
  });
}

TEST_F(Configuration, HintsAreTakenAtOnceAndOldOnesGo) {
  TEditor& document = test.OpenText("a");
  document.FastHelpC.SetVisible(true);
  Confirm([](configuration& form) {
    form.ShowHint.UserSets(false);
    form.ShowBlock.UserSets();
  });
  EXPECT_FALSE(program.HintShow);
  EXPECT_FALSE(program.HintShowList);
  EXPECT_FALSE(document.FastHelpC.Visible());
}

struct TimeRow {
  const char *typed, *shown;
};

TEST_F(Configuration, ThePeriodOfSavingIsTheNumberInFront) {
  constexpr TimeRow kRows[] = {{"abc", "0"}, {"5,5x", "5"}, {"", "0"}, {" 12 min", "12"}, {"007", "7"}};
  Cancel([&](configuration& form) {
    for (const TimeRow& row : kRows) {
      form.AutoSaveTime.UserSets(row.typed);
      form.AutoSaveTime.UserLeaves();
      EXPECT_EQ(form.AutoSaveTime.Text(), row.shown) << row.typed;
    }
  });
}

TEST_F(Configuration, ThePeriodIsReadThoughTheFieldWasNotLeft) {
  Confirm([](configuration& form) { form.AutoSaveTime.UserSets("5,5x"); });
  EXPECT_EQ(Stored("AutoSave", "AutoSaveTime"), "5");
}

TEST_F(Configuration, ThePeriodStaysStoredWhileSavingIsOff) {
  Confirm([](configuration& form) { form.AutoSaveTime.UserSets("10"); });
  EXPECT_EQ(Stored("AutoSave", "AutoSaveTime"), "10");
  EXPECT_EQ(Stored("AutoSave", "AutoSaveActivated"), "False");
  EXPECT_EQ(program.AutoSaveInterval, 0);
}

TEST_F(Configuration, SavingStartsWithoutANewStart) {
  Store("AutoSave", "AutoSaveTime", "2");
  TEditor& document = test.OpenText("a");
  document.EditedText.SetSelText("b");
  Confirm([](configuration& form) { form.AutoSaveActivated.UserSets(true); });
  EXPECT_EQ(program.AutoSaveInterval, 2);
  TimeCounter_Timer(program);
  TimeCounter_Timer(program);
  EXPECT_FALSE(document.IsModified());
}

TEST_F(Configuration, TheFontIsAskedForAndShownInTheSample) {
  const FontChoice font{.name = "Courier", .size = 12.5, .bold = true, .italic = true, .underline = true, .strikeThrough = true};
  test.windows.fonts.push_back(font);
  Confirm([&](configuration& form) {
    EXPECT_EQ(form.Label1.Caption(), "Edytowany tekst");
    form.Command3.UserClicks();
    EXPECT_EQ(form.Label1.Font(), font);
  });
  EXPECT_EQ(Stored("EditorFont", "FontName"), "Courier");
  EXPECT_EQ(Stored("EditorFont", "FontSize"), "12.5");
  for (const char* key : {"FontBold", "FontItalic", "FontUnderline", "FontStrikeThrough"})
    EXPECT_EQ(Stored("EditorFont", key), "True") << key;
  Cancel([&](configuration& form) { EXPECT_EQ(form.Label1.Font(), font); });
}

TEST_F(Configuration, TheFontStaysWhenTheQuestionIsCancelled) {
  Store("EditorFont", "FontName", "Sans");
  test.windows.fonts.push_back(std::nullopt);
  Confirm([](configuration& form) { form.Command3.UserClicks(); });
  EXPECT_EQ(Stored("EditorFont", "FontName"), "Sans");
}

TEST_F(Configuration, TheSampleHasTheColourOfTheFontOrElseOfText) {
  Store("Colorize", "GlobalColor", "010203");
  Cancel([](configuration& form) { EXPECT_EQ(form.Label1.TextColour(), RgbColour(1, 2, 3)); });
  Store("EditorFont", "FontColor", "A0B0C0");
  Cancel([](configuration& form) { EXPECT_EQ(form.Label1.TextColour(), RgbColour(0xA0, 0xB0, 0xC0)); });
}

TEST_F(Configuration, AllDocumentsTakeTheFontAndWhatEnterTypes) {
  TEditor& first = test.OpenText("a", "a.html");
  TEditor& second = test.OpenText("b", "b.html");
  test.windows.fonts.push_back(FontChoice{.name = "Courier", .size = 20});
  Confirm([](configuration& form) {
    form.Command3.UserClicks();
    form.SetupCarret.UserSets(false);
    form.ExtendLI.UserSets(false);
  });
  for (TEditor* document : {&first, &second}) {
    EXPECT_EQ(document->EditedText.Font(), (FontChoice{.name = "Courier", .size = 20}));
    EXPECT_FALSE(document->EditedText.SetupCarret);
    EXPECT_FALSE(document->EditedText.ExtendLI);
    EXPECT_FALSE(document->IsModified());
  }
}

TEST_F(Configuration, AllDocumentsAreColouredAnew) {
  TEditor& first = test.OpenText("<b>", "a.html");
  TEditor& second = test.OpenText("<i>", "b.html");
  test.windows.colours.push_back(RgbColour(1, 2, 3));
  Confirm([](configuration& form) { form.TagsColor.UserClicks(); });
  for (TEditor* document : {&first, &second})
    EXPECT_EQ(document->EditedText.ColourOfStyle(document->EditedText.StyleAt(0)), RgbColour(1, 2, 3));
  EXPECT_FALSE(program.tagState.ColoursChanged);
}

TEST_F(Configuration, ColoursThatStayAreNotPaintedAgain) {
  int runs = 0;
  program.passes.recolourAll = [&] { runs += program.tagState.ColoursChanged; };
  Confirm();
  EXPECT_EQ(runs, 0);
  Confirm([](configuration& form) { form.UseColorize.UserSets(false); });
  EXPECT_EQ(runs, 1);
}

TEST_F(Configuration, ColouringSwitchedOffTakesTheColoursAwayAndOnBringsThemBack) {
  TEditor& document = test.OpenText("<b>");
  Confirm([](configuration& form) { form.UseColorize.UserSets(false); });
  EXPECT_EQ(document.EditedText.StyleAt(0), MlnEditor::kPlain);
  EXPECT_FALSE(document.EditedText.UseColorise);
  Confirm([](configuration& form) { form.UseColorize.UserSets(true); });
  EXPECT_EQ(document.EditedText.ColourOfStyle(document.EditedText.StyleAt(0)), RgbColour(0, 0, 0xFF));
}

TEST_F(Configuration, TheFontsColourIsThatOfTextWhileNothingIsColoured) {
  TEditor& document = test.OpenText("a");
  Store("EditorFont", "FontColor", "A0B0C0");
  Confirm();
  EXPECT_EQ(document.EditedText.TextColor(), 0u);
  Confirm([](configuration& form) { form.UseColorize.UserSets(false); });
  EXPECT_EQ(document.EditedText.TextColor(), RgbColour(0xA0, 0xB0, 0xC0));
}

struct PanelRowCase {
  const char *check, *menu;
  Control& (*control)(Morlan& frame);
};

TEST_F(Configuration, PanelsAndTheMarksOfTheirEntriesFollowAtOnce) {
  const PanelRowCase kRows[] = {
      {"SSCheck1(0)", "xmn_windowsmanager_visible", [](Morlan& frame) -> Control& { return frame.WindowsPanel; }},
      {"SSCheck1(1)", "xmn_status_visible", [](Morlan& frame) -> Control& { return frame.statusBar; }},
      {"SSCheck1(2)", "xmn_tools_visible", [](Morlan& frame) -> Control& { return frame.commandline; }},
      {"SSCheck1(3)", "xmn_filemanager_visible", [](Morlan& frame) -> Control& { return frame.Menadzerplikow; }},
      {"SSCheck1(4)", "xmn_symbols_visible", [](Morlan& frame) -> Control& { return frame.UnderChars; }},
  };
  for (const PanelRowCase& row : kRows) {
    for (const bool visible : {false, true}) {
      Confirm([&](configuration& form) { form.FindAs<CheckBox>(row.check)->UserSets(visible); });
      EXPECT_EQ(row.control(test.frame()).Visible(), visible) << row.menu;
      EXPECT_EQ(test.frame().menu.IsChecked(row.menu), visible) << row.menu;
      EXPECT_EQ(program.ActiveDocument->menu.IsChecked(row.menu), visible) << row.menu;
    }
    program.commands.RunMenu(row.menu);
    Cancel([&](configuration& form) { EXPECT_FALSE(form.FindAs<CheckBox>(row.check)->Value()) << row.menu; });
    program.commands.RunMenu(row.menu);
  }
}

TEST_F(Configuration, TheFormatsAreThoseThatTheProgramKnows) {
  program.passes.charsetNames = [] { return std::vector<std::string>{"Win1250", "iso-8859-2"}; };
  Store("Document", "CharSet", "ISO-8859-2");
  Confirm([](configuration& form) {
    EXPECT_EQ(form.saveformat.Rows(), (std::vector<std::string>{"Win1250", "iso-8859-2"}));
    EXPECT_EQ(form.saveformat.ListIndex(), 1);
    form.saveformat.UserSelects(0);
  });
  EXPECT_EQ(Stored("Document", "CharSet"), "Win1250");
}

TEST_F(Configuration, QuestionMarksSelectNoFormatAndStayStored) {
  Store("Document", "CharSet", "???");
  program.passes.charsetNames = [] { return std::vector<std::string>{"???", "Win1250"}; };
  Confirm([](configuration& form) { EXPECT_EQ(form.saveformat.ListIndex(), -1); });
  EXPECT_EQ(Stored("Document", "CharSet"), "???");
}

TEST_F(Configuration, TheStoredFormatIsTheOnlyOneWhileNoneIsKnown) {
  program.passes.charsetNames = nullptr;
  Store("Document", "CharSet", "windows-1250");
  Cancel([](configuration& form) {
    EXPECT_EQ(form.saveformat.Rows(), std::vector<std::string>{"windows-1250"});
    EXPECT_EQ(form.saveformat.ListIndex(), 0);
  });
}

TEST_F(Configuration, ANewFormatIsMadeWhereTheProgramCan) {
  if (!program.forms.CanShow("CreateCharSet")) Cancel([](configuration& form) { EXPECT_FALSE(form.Command8.Visible()); });
  std::vector<std::string> names = {"Win1250"};
  program.passes.charsetNames = [&] { return names; };
  program.forms.OnShow("CreateCharSet", [&] { names.emplace_back("Moja"); });
  Store("Document", "CharSet", "Win1250");
  Cancel([](configuration& form) {
    EXPECT_TRUE(form.Command8.Visible());
    form.Command8.UserClicks();
    EXPECT_EQ(form.saveformat.Rows(), (std::vector<std::string>{"Win1250", "Moja"}));
    EXPECT_EQ(form.saveformat.SelectedRow(), "Win1250");
  });
}

TEST_F(Configuration, AFileOfBookmarksIsAskedFor) {
  test.windows.files = {std::nullopt, "c:\\zakladki.htm"};
  Confirm([](configuration& form) {
    form.WhereIsNetscape.UserSets("a");
    form.WhereIsNetscapeFile.UserClicks();
    EXPECT_EQ(form.WhereIsNetscape.Text(), "a");
    form.WhereIsNetscapeFile.UserClicks();
  });
  EXPECT_EQ(Stored("Import", "NetscapePath"), "c:\\zakladki.htm");
}

struct ConfiguredBrowsers : Configuration {
  const std::string own{"Domyślna"_pl};
  ConfiguredBrowsers() {
    Store("Browser", "CountItem", "2");
    Store("Browser", "Item1", "c:\\lis");
    Store("Browser", "Item2", "c:\\chart");
    Store("Browser", "Current", "c:\\lis");
  }
};

TEST_F(ConfiguredBrowsers, AreAddedOnceAndSelected) {
  test.windows.files = {"c:\\Nowa", "C:\\CHART", "c:\\lis", std::nullopt, ""};
  Confirm([&](configuration& form) {
    for (int i = 0; i < 5; ++i) form.Command5.UserClicks();
    EXPECT_EQ(form.Browsers.Rows(), (std::vector<std::string>{"{c:\\lis}", "c:\\chart", own, "c:\\Nowa"}));
    EXPECT_EQ(form.Browsers.ListIndex(), 3);
  });
  const Record asked = test.Asked();
  ASSERT_EQ(asked.size(), 7u) << "five questions inside the dialog";
  EXPECT_NE(asked[1].find("\"Wskaz przeglądarkę\""), std::string::npos) << asked[1];
  EXPECT_NE(asked[1].find("\"Pliki wykonywalne (*.EXE)|*.exe|\""), std::string::npos) << asked[1];
  EXPECT_EQ(Stored("Browser", "CountItem"), "3");
  EXPECT_EQ(Stored("Browser", "Item3"), "c:\\Nowa");
}

TEST_F(ConfiguredBrowsers, AreRemovedFromTheList) {
  Confirm([&](configuration& form) {
    form.Command6.UserClicks();
    EXPECT_EQ(form.Browsers.ListCount(), 3u) << "nothing is selected";
    form.Browsers.UserSelects(1);
    form.Command6.UserClicks();
    EXPECT_EQ(form.Browsers.Rows(), (std::vector<std::string>{"{c:\\lis}", own}));
  });
  EXPECT_EQ(Stored("Browser", "CountItem"), "1");
  EXPECT_EQ(Stored("Browser", "Current"), "c:\\lis");
}

TEST_F(ConfiguredBrowsers, AreTakenIntoUseOneAtATime) {
  Confirm([&](configuration& form) {
    form.Command7.UserClicks();
    EXPECT_EQ(form.Browsers.List(0), "{c:\\lis}") << "nothing is selected";
    form.Browsers.UserSelects(1);
    form.Command7.UserClicks();
    form.Command7.UserClicks();
    EXPECT_EQ(form.Browsers.Rows(), (std::vector<std::string>{"c:\\lis", "{c:\\chart}", own}));
    form.Browsers.UserSelects(2);
    form.Browsers.UserDblClicks();
    EXPECT_EQ(form.Browsers.Rows(), (std::vector<std::string>{"c:\\lis", "c:\\chart", Concat({"{", own, "}"})}));
  });
  EXPECT_EQ(Stored("Browser", "Current"), own);
  EXPECT_EQ(Stored("Browser", "CountItem"), "2");
}

}  // namespace
}  // namespace morlan
