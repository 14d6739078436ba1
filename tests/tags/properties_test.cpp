// The property sheet on a document: rows, reading, writing, and what the file of tags says to it.
#include "tags/properties.h"

#include "core/documents.h"
#include "tests/tags/sheetfixture.h"

namespace morlan {
namespace {

using PropertySheet = SheetTest;

TEST_F(PropertySheet, TheRowsFollowTheFileAndShowDefaults) {
  EXPECT_EQ(Shown("<input>"), "type[2]= name[1]= size[1]=20 checked[4]= bgcolor[0]= target[3]= src[7]=");
}

TEST_F(PropertySheet, ValuesOfTheTagReplaceDefaults) {
  EXPECT_EQ(Shown("<INPUT TYPE=checkbox NAME=\"a b\" size=7 checked BGCOLOR=Red target=_top src=\"a.gif\">"),
            "type[2]=checkbox name[1]=a b size[1]=7 checked[4]=TRUE bgcolor[0]=Red target[3]=_top src[7]=a.gif");
}

TEST_F(PropertySheet, TheTitleNamesTheTagAsItStands) {
  Rewritten("<Input>", [](Properties& sheet) {
    EXPECT_EQ(sheet.Caption(), "Właściwości <Input>"_pl);
    EXPECT_EQ(sheet.Info.Caption(), "Pole formularza");
  });
}

TEST_F(PropertySheet, EachKindHasItsOwnField) {
  Rewritten("<input>", [](Properties& sheet) {
    const auto rows = [&](std::string_view name) { return sheet.FindAs<ComboBox>(name)->Rows(); };
    EXPECT_EQ(rows("Value_(0)"), (std::vector<std::string>{"text", "checkbox"}));
    EXPECT_NE(sheet.FindAs<TextBox>("Value_(1)"), nullptr);
    EXPECT_EQ(rows("Value_(3)"), (std::vector<std::string>{"TRUE", "FALSE"}));
    EXPECT_EQ(rows("Value_(4)"),
              (std::vector<std::string>{"Black", "White", "Gray", "Red", "Green", "Olive", "Teal", "Lime", "Fuchsia", "Navy", "Maroon",
                                        "Blue", "Purple", "Brown", "Cyan", "Magneta", "Yellow", "Aqua", "Silver"}));
    EXPECT_EQ(rows("Value_(5)"), (std::vector<std::string>{"_blank", "_top"}));
    EXPECT_NE(sheet.Find("Dialog_(6)"), nullptr);
    EXPECT_EQ(sheet.Find("Dialog_(1)"), nullptr);
    EXPECT_EQ(sheet.Find("Event_(0)")->Caption(), "onclick");
    EXPECT_NE(sheet.FindAs<TextBox>("EvValue_(0)"), nullptr);
    EXPECT_TRUE(sheet.UseClass.Visible());
  });
}

TEST_F(PropertySheet, TheTagIsWrittenFromTheSheet) {
  EXPECT_EQ(Rewritten("<input type=text name=\"a\" size=\"7\" checked onclick=\"f()\">"),
            "<input type=\"text\" name=\"a\" size=\"7\" checked onclick=\"f()\">");
  EXPECT_EQ(Rewritten("<input>",
                      [](Properties& sheet) {
                        Set(sheet, "Value_(0)", "inny");
                        Set(sheet, "Value_(2)", "");
                        Set(sheet, "Value_(3)", "TRUE");
                        Set(sheet, "Value_(4)", "Navy");
                        Set(sheet, "EvValue_(0)", "g()");
                      }),
            "<input type=\"inny\" checked bgcolor=\"Navy\" onclick=\"g()\">");
}

TEST_F(PropertySheet, AWrittenTagIsReadBackTheSame) {
  constexpr std::string_view kTag =
      "<INPUT type=\"text\" name=\"a b\" size=\"7\" checked bgcolor=\"Red\" target=\"_top\" src=\"a.gif\" onclick=\"f('x y')\">";
  EXPECT_EQ(Rewritten(kTag), kTag);
}

TEST_F(PropertySheet, AnAttributeThatTheFileDoesNotNameIsLostOnPurpose) {
  EXPECT_EQ(Rewritten("<input size=1 maxlength=5>"), "<input size=\"1\">");
}

TEST_F(PropertySheet, ASwitchThatIsTurnedOffDisappears) {
  EXPECT_EQ(Rewritten("<input size=1 checked>", [](Properties& sheet) { Set(sheet, "Value_(3)", "FALSE"); }), "<input size=\"1\">");
}

TEST_F(PropertySheet, TheSignOfAColourIsLostOnPurpose) {
  EXPECT_EQ(Rewritten("<input size=1 bgcolor=\"#FF0000\">"), "<input size=\"1\" bgcolor=\"FF0000\">");
}

TEST_F(PropertySheet, OneUndoBringsTheOldTagBack) {
  Rewritten("<input size=3>");
  TEditor& document = *test_.program.ActiveDocument;
  EXPECT_TRUE(document.IsModified());
  ASSERT_EQ(document.UNDO.Count(), 1u);
  document.UNDO.DoUndo(document);
  EXPECT_EQ(test_.Text(), "ab<input size=3>yz");
}

TEST_F(PropertySheet, CancelLeavesTheDocumentAlone) {
  EXPECT_EQ(Rewritten(
                "<input size=3>", [](Properties& sheet) { Set(sheet, "Value_(2)", "9"); }, false),
            "<input size=3>");
  EXPECT_FALSE(test_.program.ActiveDocument->IsModified());
}

TEST_F(PropertySheet, ATagThatIsNotThereAnyMoreIsNotWritten) {
  test_.OpenText("<p>drugi", "drugi.html");
  TEditor& first = test_.OpenText("ab<input size=1>yz", "pierwszy.html");
  first.EditedText.Select(3, 0);
  test_.windows.modals.push_back([&](Form& form) {
    CloseActiveDocument(test_.program);
    static_cast<Properties&>(form).Command2.UserClicks();
  });
  OpenPropertySheet(test_.program, first);
  EXPECT_EQ(test_.Text(), "<p>drugi");
}

TEST_F(PropertySheet, AFileOfTheSameLengthIsSeenWhenTheSheetOpens) {
  Rewritten("<input>");
  std::string bytes = SheetsOf(test_.program).File().Bytes();
  bytes.replace(bytes.find("Pole formularza"), 4, "Park");
  test_.Write("program\\Morlan7.tpf", bytes);
  Rewritten("<input>", [](Properties& sheet) { EXPECT_EQ(sheet.Info.Caption(), "Park formularza"); });
}

TEST_F(PropertySheet, DialogResultIsNotUsed) {
  test_.program.DialogResult = "x";
  Rewritten("<input size=3>");
  EXPECT_EQ(test_.program.DialogResult, "x");
}

TEST_F(PropertySheet, ACaretInTheTextBehindATagMeansThatTag) {
  test_.OpenText("<input size=1>abc<b>").EditedText.Select(16, 0);
  test_.windows.modals.push_back([](Form& form) { static_cast<Properties&>(form).Command2.UserClicks(); });
  EXPECT_TRUE(OpenPropertySheet(test_.program, *test_.program.ActiveDocument));
  EXPECT_EQ(test_.Text(), "<input size=\"1\">abc<b>");
}

TEST_F(PropertySheet, ATagThatTheFileDoesNotHoldHasNone) {
  for (const std::string_view text : {"<b>", "</input>", "abc", "<input", "<>"}) {
    test_.OpenText(text).EditedText.Select(1, 0);
    EXPECT_FALSE(OpenPropertySheet(test_.program, *test_.program.ActiveDocument)) << text;
  }
}

TEST_F(PropertySheet, ATagWithDamagedParametersHasNone) {
  std::string bytes = test_.Read("program\\Morlan7.tpf");
  bytes[88 + 40] = '\x59';  // the first parameter follows itself
  bytes[88 + 41] = bytes[88 + 42] = bytes[88 + 43] = '\0';
  test_.Write("program\\Morlan7.tpf", bytes + " ");
  test_.OpenText("<input>").EditedText.Select(1, 0);
  EXPECT_FALSE(OpenPropertySheet(test_.program, *test_.program.ActiveDocument));
}

TEST_F(PropertySheet, F4OpensItAndElseTheQuickMenu) {
  int quickMenus = 0;
  test_.program.hooks.showQuickMenu = [&](TEditor&) { ++quickMenus; };
  constexpr int kF4 = key::kF1 + 3;
  KeyPress press{kF4, 0, 0};
  test_.OpenText("<b>").EditedText.Select(1, 0);
  test_.program.ActiveDocument->EditedText_OnKeyDown(press);
  EXPECT_EQ(quickMenus, 1);
  test_.OpenText("<input>", "b.html").EditedText.Select(1, 0);
  test_.windows.modals.push_back([](Form& form) { static_cast<Properties&>(form).Command1.UserClicks(); });
  press = {kF4, 0, 0};
  test_.program.ActiveDocument->EditedText_OnKeyDown(press);
  EXPECT_EQ(quickMenus, 1);
  EXPECT_TRUE(test_.windows.modals.empty());
}

TEST_F(PropertySheet, TheContextMenuOffersItWhereItIsThere) {
  const auto entry = [&](std::string_view text) {
    test_.OpenText(text).EditedText.Select(1, 0);
    test_.program.ActiveDocument->EditedText_OnMouseDown(MouseButton::Right);
    return *test_.program.ActiveDocument->xmnm_editpopup.Find("xmn_properties");
  };
  EXPECT_TRUE(entry("<input>").visible && entry("<input>").enabled);
  EXPECT_TRUE(entry("<b>").visible);
  EXPECT_FALSE(entry("<b>").enabled);
  EXPECT_FALSE(entry("abc").visible);
}

TEST_F(PropertySheet, TheMenuEntryOpensIt) {
  test_.OpenText("<input>").EditedText.Select(1, 0);
  test_.windows.modals.push_back([](Form& form) { EXPECT_EQ(form.Caption(), "Właściwości <input>"_pl); });
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_properties"));
  EXPECT_TRUE(test_.windows.modals.empty());
}

TEST_F(PropertySheet, AFileButtonPutsTheWayToTheFileIntoItsField) {
  test_.windows.files.push_back(test_.Path("work\\obrazy\\a.gif"));
  EXPECT_EQ(Rewritten("<input size=1>", [](Properties& sheet) { sheet.Find("Dialog_(6)")->UserClicks(); }),
            "<input size=\"1\" src=\"obrazy/a.gif\">");
}

TEST_F(PropertySheet, AColourButtonWritesSixDigits) {
  SheetsOf(test_.program).Change([](PropertyFile& file) {
    return file.ReplaceParam(file.FindTag("input"), "src", {.name = "kolor", .kind = ParamKind::Dialog, .dialogType = ParamDialog::Colour});
  });
  test_.windows.colours.push_back(RgbColour(0x12, 0xAB, 0x34));
  EXPECT_EQ(Rewritten("<input size=1>", [](Properties& sheet) { sheet.Find("Dialog_(6)")->UserClicks(); }),
            "<input size=\"1\" kolor=\"#12AB34\">");
}

TEST_F(PropertySheet, AFaceIsChosenFromTheFontsOfTheSystem) {
  const StatusListener status(test_.frame().statusBar);
  Rewritten("<basefont>", [](Properties& sheet) {
    EXPECT_EQ(sheet.FindAs<ComboBox>("Value_(0)")->Rows(), (std::vector<std::string>{"Courier", "Sans"}));
    EXPECT_FALSE(sheet.UseClass.Visible());
    EXPECT_EQ(sheet.attributes.size(), 1u) << "rows of another tag are gone";
  });
  EXPECT_TRUE(status.Heard("Wczytuję listę czcionek"));
}

TEST_F(PropertySheet, ClassesComeFromThePageAndItsLinkedSheets) {
  test_.Write("work\\a.css", "input.zewn {x}");
  test_.OpenText("<link rel=stylesheet href=\"a.css\"><link rel=stylesheet href=\"brak.css\"><style>INPUT.lok {x}</style><input>")
      .EditedText.Select(1, 0);
  test_.windows.modals.push_back([](Form& form) {
    auto& sheet = static_cast<Properties&>(form);
    EXPECT_EQ(sheet.ClassList.Rows(), (std::vector<std::string>{"zewn", "lok"}));
    EXPECT_FALSE(sheet.UseClass.Value());
  });
  test_.program.ActiveEditor->Select(test_.Text().size() - 1, 0);
  EXPECT_TRUE(OpenPropertySheet(test_.program, *test_.program.ActiveDocument));
}

TEST_F(PropertySheet, AClassOfTheTagIsShownAndWritten) {
  EXPECT_EQ(Rewritten("<input size=1 class=\"a b\">", [](Properties& sheet) { EXPECT_TRUE(sheet.UseClass.Value()); }),
            "<input size=\"1\" CLASS=\"a b\">");
  EXPECT_EQ(Rewritten("<input size=1 class=a>", [](Properties& sheet) { sheet.UseClass.UserSets(false); }), "<input size=\"1\">");
  EXPECT_EQ(Rewritten("<input size=1>", [](Properties& sheet) { Set(sheet, "ClassList", "c"); }), "<input size=\"1\" CLASS=\"c\">");
}

TEST_F(PropertySheet, WithoutASourceOfStylesTheTagKeepsItsOwn) {
  EXPECT_EQ(Rewritten("<input size=1 style=\"color: red\">", [](Properties& sheet) { EXPECT_FALSE(sheet.UseDef.Visible()); }),
            "<input size=\"1\" STYLE=\"color: red\">");
}

TEST_F(PropertySheet, AChosenStyleIsWrittenAsItsDeclarations) {
  StyleSource& styles = SheetsOf(test_.program).styles;
  styles.styleNames = [] { return std::vector<std::string>{"Wstep"}; };
  styles.StyleTextByName = [](std::string_view name) { return Concat({"font-family: ", name, ";"}); };
  EXPECT_EQ(Rewritten("<input size=1>",
                      [](Properties& sheet) {
                        EXPECT_TRUE(sheet.UseDef.Visible());
                        Set(sheet, "StyleList", "Wstep");
                      }),
            "<input size=\"1\" STYLE=\"font-family: Wstep;\">");
  EXPECT_EQ(Rewritten("<input size=1 style=\"x\">", [](Properties& sheet) { EXPECT_TRUE(sheet.UseDef.Value()); }),
            "<input size=\"1\" STYLE=\"x\">");
}

TEST_F(PropertySheet, TheListsAreLoadedUnderTheirStatusTexts) {
  test_.OpenText("<input>").EditedText.Select(1, 0);
  test_.windows.modals.push_back([](Form&) {});
  const StatusListener status(test_.frame().statusBar);
  OpenPropertySheet(test_.program, *test_.program.ActiveDocument);
  for (const std::string_view text :
       {"Wczytuję listę klas zewnętrzych", "Wczytuję listę klas lokanych", "Wczytuję listę zdefiniowanych styli"})
    EXPECT_TRUE(status.Heard(text)) << text;
}

TEST_F(PropertySheet, ALongValueIsNotCut) {
  const std::string value(100000, 'x');
  EXPECT_EQ(Rewritten("<input>",
                      [&](Properties& sheet) {
                        Set(sheet, "Value_(1)", value);
                        Set(sheet, "Value_(2)", "");
                      }),
            Concat({"<input name=\"", value, "\">"}));
}

TEST_F(PropertySheet, AMissingFileMeansNoSheets) {
  TestProgram other;
  EXPECT_FALSE(HasPropertySheet(other.program, "input"));
  EXPECT_TRUE(HasPropertySheet(test_.program, "INPUT"));
  EXPECT_TRUE(HasPropertySheet(test_.program, "pusty"));
  EXPECT_FALSE(HasPropertySheet(test_.program, ""));
}

}  // namespace
}  // namespace morlan
