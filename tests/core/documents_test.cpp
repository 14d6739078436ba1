#include "core/documents.h"

#include <gtest/gtest.h>

#include "core/filepanel.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Documents : testing::Test {
  TestProgram test;
  Program& program = test.program;
  std::vector<std::string> Captions() const {
    std::vector<std::string> captions;
    for (const auto& document : test.program.documents) captions.push_back(ToUtf8(document->Caption()));
    return captions;
  }
  TEditor& Open(std::string_view name, std::string_view bytes) {
    test.Write(Concat({"work\\", name}), bytes);
    OpenDocument(program, test.Path(Concat({"work\\", name})));
    return *program.ActiveDocument;
  }
};

TEST_F(Documents, NumberUntitledNames) {
  EXPECT_EQ("BezTytułu1.html"_pl, UniqueHtmlName(program));
  NewEmptyDocument(program);
  NewEmptyDocument(program);
  EXPECT_EQ((std::vector<std::string>{"BezTytułu.html", "BezTytułu1.html", "BezTytułu2.html"}), Captions());
  EXPECT_EQ("BezTytułu.cdf"_pl, UniqueCdfName(program));
}

TEST_F(Documents, ReuseAFreeUntitledName) {
  NewEmptyDocument(program);
  CloseDocument(program, *program.documents[0]);
  EXPECT_EQ("BezTytułu.html"_pl, UniqueHtmlName(program));
}

TEST_F(Documents, LookAtTheBareNameForUntitledOnes) {
  program.ActiveDocument->SetCaption("c:\\www\\BezTytułu.html"_pl);
  EXPECT_EQ("BezTytułu1.html"_pl, UniqueHtmlName(program));
}

TEST_F(Documents, TakeTheStoredSettings) {
  program.MainIni.SetSubItemValue("EditorFont", "FontName", "Courier");
  program.MainIni.SetSubItemValue("EditorFont", "FontSize", "16");
  program.MainIni.SetSubItemValue("Hint", "SetupCarret", "False");
  program.MainIni.SetSubItemValue("Hint", "LIExtend", "False");
  NewDocumentOfName(program, test.Path("work\\b.html"));
  Open("a.html", "<html>");
  for (const std::string_view name : {"work\\a.html", "work\\b.html"}) {
    const TEditor* document = FindDocument(program, test.Path(name));
    ASSERT_TRUE(document) << name;
    EXPECT_EQ(document->EditedText.Font().name, "Courier");
    EXPECT_EQ(document->EditedText.Font().size, 16);
    EXPECT_FALSE(document->EditedText.SetupCarret);
    EXPECT_FALSE(document->EditedText.ExtendLI);
  }
}

TEST_F(Documents, OpenWithTheirState) {
  TEditor& document = Open("a.html", "<html>\r\n<body>\r\n");
  EXPECT_EQ(test.Path("work\\a.html"), document.Caption());
  EXPECT_EQ("html", document.FileType.Caption());
  EXPECT_EQ("False", document.NeedToBeSaved.Caption());
  EXPECT_EQ("Win1250", document.CharSet.Caption());
  EXPECT_FALSE(document.EditedText.Modified);
  EXPECT_EQ(0u, document.EditedText.SelStart());
  EXPECT_FALSE(program.DocumentLoading);
  EXPECT_EQ(&document.EditedText, program.ActiveEditor);
  EXPECT_EQ("Gotowy", test.frame().statusBar.PanelText("status"));
  EXPECT_EQ(test.Path("work"), CurrentPanelDirectory(program));
}

TEST_F(Documents, TellTheFrontEndInOrder) {
  test.record.clear();
  test.Write("work\\a.txt", "a");
  OpenDocument(program, test.Path("work\\a.txt"));
  const std::string caption = Quoted(test.Path("work\\a.txt"));
  EXPECT_EQ((Record{"closed \"BezTytułu.html\"", "opened " + caption, "activated " + caption}), test.record);
}

TEST_F(Documents, OfOnePathAreOpenedOnce) {
  TEditor& first = Open("a.html", "a");
  Open("b.html", "b");
  OpenDocument(program, test.Path("work\\a.html"));
  EXPECT_EQ(2u, program.documents.size());
  EXPECT_EQ(&first, program.ActiveDocument);
  EXPECT_EQ(first.Caption(), test.frame().WindowsManager.All()[static_cast<std::size_t>(test.frame().WindowsManager.Selected())].key);
}

TEST_F(Documents, OfAnotherLetterCaseGetAWindowOfTheirOwn) {
  Open("a.html", "a");
  OpenDocument(program, test.Path("work\\A.html"));
  EXPECT_EQ(2u, program.documents.size());
}

TEST_F(Documents, ThatAreMissingGetAMessageWithoutTheirName) {
  for (const std::string& path : {test.Path("work\\brak.html"), test.Path("work"), std::string()}) {
    OpenDocument(program, path);
    EXPECT_EQ(Record{R"(message "Plik  nie istnieje !" "Morlan7" stop ok)"}, test.Asked()) << path;
  }
  EXPECT_EQ(1u, program.documents.size());
  EXPECT_FALSE(program.DocumentLoading);
}

TEST_F(Documents, KeepEveryByteOfAPlainText) {
  const std::string bytes = std::string("zero\0lf\ncrlf\r\ncr\r", 16) + "\x80\x81\xFF";
  Open("a.txt", bytes);
  EXPECT_EQ(bytes, test.Text());
}

TEST_F(Documents, OpenEmptyFiles) {
  TEditor& document = Open("pusty.html", "");
  EXPECT_EQ(0u, document.EditedText.Length());
  EXPECT_FALSE(document.EditedText.UseColorise);
  EXPECT_EQ(1u, program.documents.size());
}

struct TypeCase {
  const char *name, *type;
};
class FileTypes : public Documents, public testing::WithParamInterface<TypeCase> {};

TEST_P(FileTypes, FollowTheExtension) { EXPECT_EQ(GetParam().type, Open(GetParam().name, "a").FileType.Caption()); }

INSTANTIATE_TEST_SUITE_P(All, FileTypes,
                         testing::Values(TypeCase{"a.html", "html"}, TypeCase{"X.HST", "szablon"}, TypeCase{"a.Mac", "makro"},
                                         TypeCase{"a.cdf", "cdf"}, TypeCase{"a.txt", "html"}, TypeCase{"bez", "html"},
                                         TypeCase{"moj.szablon.hst", "html"}));

TEST_F(Documents, ThatLookLikePagesGetTheGeneratorAndColours) {
  TEditor& document = Open("a.html", "<HTML>\r\n<HEAD></HEAD>");
  EXPECT_TRUE(document.EditedText.UseColorise);
  EXPECT_NE(0u, FindNoCase(test.Text(), "Morlan7 wersja 1.5 Final (C)1997/1998"));
  EXPECT_FALSE(document.EditedText.Modified);
  EXPECT_FALSE(document.IsModified());
}

TEST_F(Documents, WithoutAnHtmlTagStayPlain) {
  TEditor& document = Open("a.txt", "<b>tekst</b>");
  EXPECT_FALSE(document.EditedText.UseColorise);
  EXPECT_EQ("<b>tekst</b>", test.Text());
}

TEST_F(Documents, AreNoPagesWhenTheTagStandsAtCharacter201) {
  EXPECT_FALSE(Open("a.html", std::string(200, ' ') + "<HTML>").EditedText.UseColorise);
  EXPECT_TRUE(Open("b.html", std::string(194, ' ') + "<HTML>").EditedText.UseColorise);
  EXPECT_FALSE(Open("c.html", std::string(195, ' ') + "<HTML>").EditedText.UseColorise);
}

TEST_F(Documents, ReplaceTheEmptyUntitledOneOfTheStart) {
  Open("a.html", "a");
  EXPECT_EQ(std::vector<std::string>{ToUtf8(test.Path("work\\a.html"))}, Captions());
}

TEST_F(Documents, LeaveAnUntitledOneWithOneLetter) {
  program.ActiveEditor->SetSelText("x");
  Open("a.html", "a");
  EXPECT_EQ(2u, program.documents.size());
}

TEST_F(Documents, LeaveOtherUntitledOnes) {
  NewEmptyDocument(program);
  Open("a.html", "a");
  EXPECT_EQ((std::vector<std::string>{"BezTytułu1.html", ToUtf8(test.Path("work\\a.html"))}), Captions());
}

TEST_F(Documents, OpenUnderAnotherTitle) {
  test.Write("work\\wzor.hst", "<html>wzór"_pl);
  EXPECT_TRUE(OpenDocumentAs(program, test.Path("work\\wzor.hst"), "c:\\www\\BezTytułu.html"_pl));
  EXPECT_EQ("c:\\www\\BezTytułu.html"_pl, program.ActiveDocument->Caption());
  EXPECT_EQ("html", program.ActiveDocument->FileType.Caption());
  EXPECT_EQ(test.Path("work\\wzor.hst"), program.MainIni.GetSubItemValue("LastOpened", "Item0"));
  EXPECT_FALSE(program.DocumentLoading);
  EXPECT_EQ("Gotowy", test.frame().statusBar.PanelText("status"));
}

TEST_F(Documents, ComeForwardInsteadOfBeingOpenedUnderAnotherTitle) {
  TEditor& original = Open("wzor.hst", "a");
  EXPECT_TRUE(OpenDocumentAs(program, test.Path("work\\wzor.hst"), "c:\\x.html"));
  EXPECT_EQ(&original, program.ActiveDocument);
  EXPECT_EQ(1u, program.documents.size());
}

TEST_F(Documents, RunTheTextThroughThePasses) {
  program.passes.decode = [](std::string text, std::string_view) { return "<html>" + text + "d"; };
  program.passes.updateBlocks = [](std::string text, std::string_view) { return text + "u"; };
  program.passes.setMetaInText = [](std::string text, std::string_view, std::string_view name, std::string_view content) {
    return Concat({text, "[", name, "=", content, "]"});
  };
  Open("a.html", "tekst");
  EXPECT_EQ("<html>tekstdu[Generator=Morlan7 wersja 1.5 Final (C)1997/1998]", test.Text());
}

TEST_F(Documents, UnderAnotherTitleAreTestedBeforeTheyAreDecoded) {
  program.passes.decode = [](std::string text, std::string_view) { return "<html>" + text; };
  test.Write("work\\a.hst", "tekst");
  OpenDocumentAs(program, test.Path("work\\a.hst"), "nowy.html");
  EXPECT_FALSE(program.ActiveEditor->UseColorise);
  EXPECT_EQ("<html>tekst", test.Text());
}

TEST_F(Documents, TellChannelsFromPages) {
  test.Write("work\\k", "x <!DocType Channel y");
  test.Write("work\\s", "<!DOCTYPE HTML>");
  EXPECT_EQ("channel", DocumentKindOf(program, test.Path("work\\k")));
  EXPECT_EQ("html", DocumentKindOf(program, test.Path("work\\s")));
  EXPECT_EQ("html", DocumentKindOf(program, test.Path("work\\brak")));
}

TEST_F(Documents, GoRoundWithNextAndPrevious) {
  TEditor& a = Open("a.html", "a");
  TEditor& b = Open("b.html", "b");
  TEditor& c = Open("c.html", "c");
  ActivateNextDocument(program, 1);
  EXPECT_EQ(&a, program.ActiveDocument);
  ActivateNextDocument(program, -1);
  EXPECT_EQ(&c, program.ActiveDocument);
  ActivateNextDocument(program, -1);
  EXPECT_EQ(&b, program.ActiveDocument);
}

TEST_F(Documents, EnableTheToolbarsWhenTheyOpen) {
  CloseActiveDocument(program);
  EXPECT_FALSE(test.frame().toolbars[1]->Enabled());
  EXPECT_TRUE(test.frame().toolbars[0]->Enabled());
  ActivateNextDocument(program, 1);
  Open("a.html", "a");
  EXPECT_TRUE(test.frame().toolbars[1]->Enabled());
  EXPECT_TRUE(test.frame().toolbars[20]->Enabled());
}

TEST_F(Documents, OpenFromTheDialog) {
  test.Write("work\\a.html", "a");
  test.windows.files.push_back(test.Path("work\\a.html"));
  program.commands.RunMenu("mn_open");
  EXPECT_EQ((Record{"filedialog open \"Otwórz dokument\" \"Pliki HTML (*.HTML,*.HTM,*SHTM)|*.html;*.htm;*.shtm|"
                    "Pliki kanałów inf. (*.CDF)|*.cdf|Wszystkie pliki (*.*)|*.*|\" \"\""}),
            test.Asked());
  EXPECT_EQ(test.Path("work\\a.html"), program.ActiveDocument->Caption());
  EXPECT_EQ(test.Path("work"), program.ActiveDocument->LastDir.Caption());
}

TEST_F(Documents, StayAsTheyAreWhenTheDialogIsCancelled) {
  test.windows.files.push_back(std::nullopt);
  program.commands.RunToolbar("Toolbar0", "open");
  EXPECT_EQ(std::vector<std::string>{"BezTytułu.html"}, Captions());
}

TEST_F(Documents, OpenTenMegabytesOfOneLine) {
  TEditor& document = Open("a.html", "<html>" + std::string(10'000'000, 'x'));
  EXPECT_GE(document.EditedText.Length(), 10'000'006u);
}

TEST_F(Documents, OpenAHundredThousandUnclosedTags) {
  std::string bytes = "<html>";
  for (int i = 0; i < 100'000; ++i) bytes += "<";
  EXPECT_GE(Open("a.html", bytes).EditedText.Length(), 100'006u);
}

}  // namespace
}  // namespace morlan
