#include "core/document.h"

#include <gtest/gtest.h>

#include "core/keyboard.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Document : testing::Test {
  TestProgram test;
  void Type(TEditor& document, std::string_view text) {
    for (const char character : text) PressKey(document, {.character = static_cast<unsigned char>(character)});
  }
  int TabImage(const TEditor& document) {
    const Tabs& tabs = test.frame().WindowsManager;
    return tabs.All()[static_cast<std::size_t>(tabs.IndexOfKey(document.Caption()))].image;
  }
  void Store(std::string_view item, std::string_view subItem, std::string_view value) {
    test.program.MainIni.SetSubItemValue(item, subItem, value);
  }
};

TEST_F(Document, BearsTheMarkOfDocuments) { EXPECT_EQ(test.OpenText("a").Tag, "edytor"); }

TEST_F(Document, TheFirstChangeMarksItAndItsTab) {
  TEditor& document = test.OpenText("a");
  EXPECT_EQ(TabImage(document), 0);
  int yields = 0;
  test.windows.onYield = [&] { ++yields; };
  Type(document, "xy");
  EXPECT_EQ(document.NeedToBeSaved.Caption(), "True");
  EXPECT_EQ(TabImage(document), 1);
  EXPECT_EQ(yields, 1) << "only the first change yields";
}

TEST_F(Document, ATextOfLengthZeroNeverBecomesModified) {
  TEditor& document = test.OpenText("a");
  PressKey(document, KeyFromText("Delete"));
  EXPECT_EQ(test.Text(), "");
  EXPECT_FALSE(document.IsModified());
}

TEST_F(Document, ChangesDuringLoadingAreIgnored) {
  TEditor& document = test.OpenText("a");
  test.program.DocumentLoading = true;
  document.EditedText.SetSelText("x");
  test.program.DocumentLoading = false;
  EXPECT_FALSE(document.IsModified());
}

TEST_F(Document, TheSizeIsToldWithEachChange) {
  TEditor& document = test.OpenText("");
  document.ShowSize();
  Type(document, "abc");
  EXPECT_EQ(test.frame().statusBar.PanelText("docsize"), "3 B");
  document.EditedText.SetSelText(std::string(2045, 'x'));
  EXPECT_EQ(test.frame().statusBar.PanelText("docsize"), "2 KB");
  document.EditedText.Select(0, 1024);
  document.EditedText.SetSelText("");
  EXPECT_EQ(test.frame().statusBar.PanelText("docsize"), "1 KB");
}

TEST_F(Document, ProcessLineColoursOnlyWhatTheUserTyped) {
  TEditor& document = test.OpenText("");
  document.EditedText.SetSelText("<B>");
  EXPECT_EQ(document.EditedText.StyleAt(0), MlnEditor::kPlain);
  document.EditedText.Select(0, 0);
  Type(document, "<I>");
  EXPECT_NE(document.EditedText.StyleAt(0), MlnEditor::kPlain);
}

TEST_F(Document, LineInfoCountsFromOne) {
  TEditor& document = test.OpenText("ab\r\ncd");
  document.ShowLineInfo();
  EXPECT_EQ(test.frame().statusBar.PanelText("docline"), "1/1");
  document.EditedText.Select(6, 0);
  document.ShowLineInfo();
  EXPECT_EQ(test.frame().statusBar.PanelText("docline"), "2/3");
}

TEST_F(Document, LoadingTakesFontAndSwitchesFromTheSettings) {
  Store("EditorFont", "FontName", "Courier");
  Store("EditorFont", "FontSize", "12.5");
  Store("EditorFont", "FontBold", "True");
  Store("Hint", "SetupCarret", "False");
  TEditor& document = test.OpenText("a");
  document.Form_Load();
  EXPECT_EQ(document.EditedText.Font(), (FontChoice{.name = "Courier", .size = 12.5, .bold = true}));
  EXPECT_FALSE(document.EditedText.SetupCarret);
  EXPECT_TRUE(document.EditedText.ExtendLI) << "an empty key means true";
}

TEST_F(Document, AGarbledFontSizeIsTheUsualOne) {
  Store("EditorFont", "FontSize", "-7");
  TEditor& document = test.OpenText("a");
  document.Form_Load();
  EXPECT_EQ(document.EditedText.Font().size, 10);
}

TEST_F(Document, InitializingTakesTheColours) {
  TEditor& document = test.OpenText("a");
  test.program.tagState.GlobalColor = 7;
  test.program.tagState.TagsColor = 8;
  test.program.tagState.LinksColor = 9;
  test.program.tagState.CommentsColor = 10;
  test.program.tagState.UseColorize = false;
  test.program.DocumentLoading = true;
  document.Form_Initialize();
  EXPECT_NE(document.EditedText.TagColor, 8u) << "not while a document is loaded";
  test.program.DocumentLoading = false;
  document.Form_Initialize();
  EXPECT_EQ(document.EditedText.TextColor(), 7u);
  EXPECT_EQ(document.EditedText.TagColor, 8u);
  EXPECT_EQ(document.EditedText.ParameterColor, 9u);
  EXPECT_EQ(document.EditedText.CommentColor, 10u);
  EXPECT_FALSE(document.EditedText.UseColorise);
}

TEST_F(Document, ADroppedPictureBecomesATagAtTheCaret) {
  TEditor& document = test.OpenText("ab");
  document.EditedText.Select(1, 0);
  document.DropFile(test.Path("work\\img\\foto.gif"));
  EXPECT_EQ(test.Text(), "a<IMG SRC=\"img/foto.gif\">b");
  document.UNDO.DoUndo(document);
  EXPECT_EQ(test.Text(), "ab");
}

TEST_F(Document, ADroppedPageBecomesALink) {
  TEditor& document = test.OpenText("ab");
  document.DropFile(test.Path("inna.html"));
  EXPECT_EQ(test.Text(), "<A HREF=\"../inna.html\"></A>ab");
}

struct Hints : Document {
  Hints() {
    test.program.hints.fillHintList = [this](ListBox& list, std::string_view name) {
      ++filled;
      if (name == "IMG") list.AddItems({"SRC=", "ALT="});
    };
    test.program.hints.hintBlockText = [](std::string_view name) { return name == "IMG" ? std::string(" SRC= ALT=") : std::string(); };
  }
  int filled = 0;
};

TEST_F(Hints, TheListOfATagIsShownWhileItIsTyped) {
  TEditor& document = test.OpenText("");
  Type(document, "<IMG");
  EXPECT_FALSE(document.FastHelpC.Visible()) << "the last letter is not in the text yet when the name is read";
  Type(document, " ");
  EXPECT_TRUE(document.FastHelpC.Visible());
  EXPECT_EQ(document.FastHelpC.ListCount(), 2u);
  const int before = filled;
  Type(document, "y");
  EXPECT_EQ(filled, before) << "filled once a name";
  Type(document, ">z");
  EXPECT_FALSE(document.FastHelpC.Visible());
}

TEST_F(Hints, TheBlockShowsTheSameAsOneText) {
  test.program.HintShowList = false;
  TEditor& document = test.OpenText("<IMG>");
  document.EditedText.Select(4, 0);
  Type(document, "  ");
  EXPECT_TRUE(document.FastHelpL.Visible());
  EXPECT_EQ(document.FastHelpL.Caption(), " SRC= ALT=");
  EXPECT_FALSE(document.FastHelpC.Visible());
}

TEST_F(Hints, SwitchedOffNothingIsShown) {
  test.program.HintShow = false;
  TEditor& document = test.OpenText("");
  Type(document, "<IMG  ");
  EXPECT_FALSE(document.FastHelpC.Visible());
  EXPECT_EQ(filled, 0);
}

TEST_F(Hints, AChosenRowGoesIntoTheText) {
  TEditor& document = test.OpenText("");
  Type(document, "<IMG  ");
  document.FastHelpC.UserSelects(0);
  KeyPress enter{.code = key::kEnter};
  document.FastHelpC.OnKeyDown(enter);
  EXPECT_EQ(enter.code, 0);
  EXPECT_EQ(test.Text(), "<IMG  SRC=");
  EXPECT_FALSE(document.FastHelpC.Visible());
  document.UNDO.DoUndo(document);
  EXPECT_EQ(test.Text(), "<IMG  ");
}

TEST_F(Hints, EscapeInTheListOnlyHidesIt) {
  TEditor& document = test.OpenText("");
  Type(document, "<IMG  ");
  KeyPress escape{.code = key::kEscape};
  document.FastHelpC.OnKeyDown(escape);
  EXPECT_EQ(test.Text(), "<IMG  ");
  EXPECT_FALSE(document.FastHelpC.Visible());
}

}  // namespace
}  // namespace morlan
