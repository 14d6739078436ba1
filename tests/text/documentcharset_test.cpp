#include "text/documentcharset.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "core/documents.h"
#include "core/newdoc.h"
#include "core/text.h"
#include "tests/support/testprogram.h"
#include "text/charsetcommands.h"

namespace morlan {
namespace {

std::string ShippedBytes() {
  std::ifstream file(MORLAN7_TREE "/CharSets.Def", std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

std::string Page(std::string_view charset, std::string_view body) {
  return Concat({"<HTML><HEAD><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;CHARSET=", charset, "\"></HEAD>", body, "</HTML>"});
}

struct DocumentCharset : testing::Test {
  DocumentCharset() { test.Write("program\\CharSets.Def", ShippedBytes()); }

  // The body of a page of that set, as it is edited.
  std::string Loaded(std::string_view charset, std::string_view body) {
    const std::string empty = Page(charset, "");
    const std::size_t front = empty.size() - std::string_view("</HTML>").size();
    decoded = DecodeText(file, Page(charset, body));
    return decoded.text.substr(front, decoded.text.size() - empty.size());
  }
  std::string Saved(std::string_view charset, std::string_view body, Symbols symbols = Symbols::No) {
    const std::string empty = Page(charset, ""), bytes = EncodeText(file, Page(charset, body), symbols);
    return bytes.substr(empty.size() - std::string_view("</HTML>").size(), bytes.size() - empty.size());
  }
  std::string Marked(const TEditor& document) const {
    std::string marked;
    for (const char* name : {"xmn_win1250", "xmn_iso88592", "xmn_ascii", "mn_unicode", "xmn_plcharinne", "xmn_symbols"})
      if (document.menu.IsChecked(name)) marked += name;
    return marked;
  }
  std::string MarkedFor(std::string_view charset) {
    TEditor& document = test.OpenText(Page(charset, ""));
    MarkCharSet(test.program, document);
    return Marked(document);
  }
  TEditor& Open(std::string_view bytes) {
    test.Write("work\\a.html", bytes);
    OpenDocument(test.program, test.Path("work\\a.html"));
    return *test.program.ActiveDocument;
  }
  std::string Status() { return test.frame().statusBar.PanelText("status"); }

  TestProgram test;
  CharSetFile file{ShippedBytes()};
  DecodedText decoded;
};

TEST_F(DocumentCharset, TicksTheEntryOfTheNamedSet) {
  EXPECT_EQ(MarkedFor("windows-1250"), "xmn_win1250");
  EXPECT_EQ(MarkedFor("WINDOWS1250"), "xmn_win1250") << "alike enough";
  EXPECT_EQ(MarkedFor("ISO-8859-2"), "xmn_iso88592");
  EXPECT_EQ(MarkedFor("ascii"), "xmn_ascii");
  EXPECT_EQ(MarkedFor("utf-8"), "mn_unicode");
  EXPECT_EQ(MarkedFor("cp852"), "xmn_plcharinne");
  EXPECT_EQ(MarkedFor("iso8859-2"), "xmn_plcharinne") << "alike, but not the same name";
}

TEST_F(DocumentCharset, AnUnknownSetTicksNothing) {
  EXPECT_EQ(MarkedFor("koi8-r"), "");
  EXPECT_EQ(MarkedFor(""), "");
}

TEST_F(DocumentCharset, APageWithoutMetaTicksNothing) {
  TEditor& document = test.OpenText("<html>");
  MarkCharSet(test.program, document);
  EXPECT_EQ(Marked(document), "");
}

TEST_F(DocumentCharset, LoadsLettersOfItsSet) {
  EXPECT_EQ(Loaded("iso-8859-2", "\xB1\xB6\xBC \xA1"), "\xB9\x9C\x9F \xA5");
  EXPECT_EQ(decoded.charset, "iso-8859-2");
  EXPECT_TRUE(decoded.comesBack);
  EXPECT_EQ(Loaded("utf-8", "ąśź"), "\xB9\x9C\x9F");
  EXPECT_EQ(decoded.charset, "Win1250");
  EXPECT_EQ(Loaded("windows-1250", "\xB9\xB1"), "\xB9\xB1");
  EXPECT_EQ(decoded.charset, "windows-1250") << "a record of its own";
}

TEST_F(DocumentCharset, SavesLettersInItsSet) {
  EXPECT_EQ(Saved("iso-8859-2", "\xB9\x9C\x9F \xA5"), "\xB1\xB6\xBC \xA1");
  EXPECT_EQ(Saved("utf-8", "\xB9\x9C\x9F"), "ąśź");
  EXPECT_EQ(Saved("win1250", "\xB9"), "\xB9");
  EXPECT_EQ(Saved("ascii", "\xB9"), "\xB9") << "accents stay";
}

TEST_F(DocumentCharset, APageWithoutMetaIsNotConverted) {
  const DecodedText read = DecodeText(file, "\xB1 &#177");
  EXPECT_EQ(read.text, "\xB1 &#177");
  EXPECT_EQ(read.menu, "");
  EXPECT_EQ(EncodeText(file, "\xB9", Symbols::No), "\xB9");
  EXPECT_EQ(EncodeText(file, "\xB9", Symbols::Yes), "&#185") << "symbols are asked for by the menu alone";
}

TEST_F(DocumentCharset, AnUnknownSetIsNotConverted) {
  EXPECT_EQ(Loaded("koi8-r", "\xB1 &#177"), "\xB1 &#177");
  EXPECT_EQ(decoded.charset, "Win1250");
  EXPECT_EQ(Saved("koi8-r", "\xB9", Symbols::Yes), "\xB9");
}

TEST_F(DocumentCharset, FindsTheTagInAnySpelling) {
  EXPECT_EQ(
      CharSetOfText(file, "<meta http-equiv='x'><meta content=\"text/html; charset=iso-8859-2\" http-equiv=content-type>").record.name,
      "iso-8859-2");
}

TEST_F(DocumentCharset, ThoughTheTickOfAnActivationNeedsCapitals) {
  TEditor& document = test.OpenText("<meta http-equiv=\"Content-Type\" content=\"text/html; charset=iso-8859-2\">");
  MarkCharSet(test.program, document);
  EXPECT_EQ(Marked(document), "");
}

TEST_F(DocumentCharset, SymbolsHaveTheCodesOfTheDocumentsSet) {
  EXPECT_EQ(Loaded("iso-8859-2", "&#177&#234;"), "\xB9\xEA;");
  EXPECT_TRUE(decoded.symbols);
  EXPECT_EQ(Saved("iso-8859-2", "\xB9", Symbols::Yes), "&#177");
  EXPECT_EQ(Saved("windows-1250", "\xB9", Symbols::Yes), "&#185");
  EXPECT_EQ(Saved("ascii", "\xB9", Symbols::Yes), "&#185") << "the letters that the set lacks are those of the edited text";
  EXPECT_EQ(Loaded("ascii", "&#185"), "\xB9");
}

TEST_F(DocumentCharset, Utf8HasNoSymbols) {
  EXPECT_EQ(Loaded("utf-8", "&#177"), "&#177");
  EXPECT_FALSE(decoded.symbols);
  EXPECT_EQ(Saved("utf-8", "\xF3", Symbols::Yes), "ó");
}

TEST_F(DocumentCharset, TellsWhetherTheBytesWouldComeBack) {
  Loaded("utf-8", "zażółć gęślą „jaźń” é");
  EXPECT_TRUE(decoded.comesBack) << "other sequences stay";
  Loaded("utf-8", "\xC3\xB9");  // ù, whose second byte is the code of ą
  EXPECT_FALSE(decoded.comesBack);
  Loaded("iso-8859-2", "\xB1\xB9");  // ą and a letter that has the code of the edited ą
  EXPECT_FALSE(decoded.comesBack);
  Loaded("iso-8859-2", "&#160;");  // a symbol of no letter
  EXPECT_FALSE(decoded.comesBack);
  Loaded("cp852", "\xA5");  // ą, which is mixed up with its capital
  EXPECT_FALSE(decoded.comesBack);
}

TEST_F(DocumentCharset, OpeningTicksTheNewDocumentsMenuAndRemembersTheSet) {
  TEditor& before = test.OpenText(Page("utf-8", ""), "przed.html");
  MarkCharSet(test.program, before);
  TEditor& document = Open(Page("iso-8859-2", "&#177"));
  EXPECT_EQ(Marked(document), "xmn_iso88592xmn_symbols");
  EXPECT_EQ(Marked(before), "mn_unicode") << "the other document's menu is left alone";
  EXPECT_EQ(document.CharSet.Caption(), "iso-8859-2");
  EXPECT_EQ(test.program.CurrentCharset, "iso-8859-2");
}

TEST_F(DocumentCharset, WithoutSymbolsTheirTickStaysOff) { EXPECT_EQ(Marked(Open(Page("iso-8859-2", "\xB1"))), "xmn_iso88592"); }

TEST_F(DocumentCharset, APageComesBackByteForByteWhenItIsSaved) {
  const std::string generator = "<META HTTP-EQUIV=\"Generator\" CONTENT=\"Morlan7 wersja 1.5 Final (C)1997/1998\">";
  for (const std::string_view charset : {"iso-8859-2", "windows-1250", "utf-8"}) {
    const std::string body = EncodeText(file, Page(charset, "za\xBF\xF3\xB3\xE6 g\xEA\x9Cl\xB9 ja\x9F\xF1"), Symbols::No);
    const std::string page = Replaced(body, "<HEAD>", "<HEAD>" + generator);
    TEditor& document = Open(page);
    EXPECT_EQ(Status(), "Gotowy");
    document.EditedText.SetSelText("x");
    SaveDocument(test.program);
    EXPECT_EQ(test.Read("work\\a.html"), "x" + page) << charset;
    CloseActiveDocument(test.program);
  }
}

TEST_F(DocumentCharset, WarnsOfAPageThatWouldComeBackChanged) {
  Open(Page("utf-8", "\xC3\xB9"));
  EXPECT_EQ(Status(), "Plik zawiera znaki spoza zestawu; zapis może je zmienić"_pl);
  CloseActiveDocument(test.program);
  Open(Page("utf-8", "ą"));
  EXPECT_EQ(Status(), "Gotowy") << "the next page is judged for itself";
}

TEST_F(DocumentCharset, TextOfANamedSetIsConvertedForMacros) {
  EXPECT_EQ(test.program.passes.fromCharset("\xB1", "iso-8859-2"), "\xB9");
  EXPECT_EQ(test.program.passes.fromCharset("\xB1", "nie ma"), "\xB1");
}

TEST_F(DocumentCharset, TheSettingsKnowTheNames) {
  const auto names = test.program.passes.charsetNames();
  ASSERT_GT(names.size(), 5u);
  EXPECT_EQ(names.front(), "Win1250");
}

TEST_F(DocumentCharset, WithoutAFileOfSetsNothingIsConverted) {
  test.files.Delete(test.Path("program\\CharSets.Def"));
  EXPECT_EQ(Open(Page("cp852", "\xA5")).EditedText.Text().find("\xA5") != std::string::npos, true);
  EXPECT_EQ(Marked(*test.program.ActiveDocument), "");
}

// --- the menu

TEST_F(DocumentCharset, ChoosingASetWritesItIntoThePage) {
  struct Row {
    std::string_view menu, name;
  };
  const Row rows[] = {{"xmn_iso88592", "iso-8859-2"}, {"mn_unicode", "utf-8"}, {"xmn_ascii", "ascii"}, {"xmn_win1250", "windows-1250"}};
  TEditor& document = test.OpenText(Page("cp852", "\xB9"));
  for (const Row& row : rows) {
    ASSERT_TRUE(test.program.commands.RunMenu(row.menu));
    EXPECT_EQ(test.Text(), Page(row.name, "\xB9")) << row.menu;
    EXPECT_EQ(Marked(document), row.menu);
    EXPECT_EQ(document.CharSet.Caption(), row.name);
  }
  EXPECT_TRUE(document.IsModified());
}

TEST_F(DocumentCharset, ThePageIsThenSavedInThatSet) {
  TEditor& document = Open(Page("windows-1250", "\xB9"));
  test.program.commands.RunMenu("mn_unicode");
  SaveDocument(test.program);
  EXPECT_NE(test.Read("work\\a.html").find("ą"), std::string::npos);
  EXPECT_NE(document.EditedText.Text().find("\xB9"), std::string::npos) << "the edited text stays as it is";
}

TEST_F(DocumentCharset, ChoosingTheSetThatThePageHasChangesNothing) {
  TEditor& document = test.OpenText(Page("ISO-8859-2", ""));
  test.program.commands.RunMenu("xmn_iso88592");
  EXPECT_EQ(test.Text(), Page("ISO-8859-2", ""));
  EXPECT_FALSE(document.IsModified());
  EXPECT_EQ(Marked(document), "xmn_iso88592");
}

TEST_F(DocumentCharset, AnotherSetIsChosenInADialog) {
  TEditor& document = test.OpenText(Page("iso-8859-2", ""));
  test.windows.modals.push_back([](Form& form) {
    form.Find("saveformat")->UserSetsText("mazovia");
    form.defaultButton->UserClicks();
  });
  test.program.commands.RunMenu("xmn_plcharinne");
  EXPECT_EQ(test.Text(), Page("mazovia", ""));
  EXPECT_EQ(Marked(document), "xmn_plcharinne");
  test.windows.modals.push_back([](Form& form) { form.cancelButton->UserClicks(); });
  test.program.commands.RunMenu("xmn_plcharinne");
  EXPECT_EQ(test.Text(), Page("mazovia", ""));
}

TEST_F(DocumentCharset, ANewPageHasTheSetOfTheSettings) {
  test.Write("program\\SZABLONY\\a.hst", Page("windows-1250", "\xB9"));
  test.program.MainIni.SetSubItemValue("Document", "CharSet", "iso-8859-2");
  test.windows.modals.push_back([](Form& form) {
    form.Find("DocList")->UserSetsText("a");
    form.Find("Command1")->UserClicks();
  });
  NewDocument(test.program);
  EXPECT_EQ(Marked(*test.program.ActiveDocument), "xmn_iso88592");
  EXPECT_NE(test.program.passes.encode(test.Text()).find('\xB1'), std::string::npos);
}

TEST_F(DocumentCharset, SymbolsAreSwitchedAndThePageWantsToBeSaved) {
  TEditor& document = Open(Page("iso-8859-2", "\xB1"));
  test.program.commands.RunMenu("xmn_symbols");
  EXPECT_EQ(Marked(document), "xmn_iso88592xmn_symbols");
  EXPECT_TRUE(document.IsModified());
  SaveDocument(test.program);
  EXPECT_NE(test.Read("work\\a.html").find("&#177"), std::string::npos);
  test.program.commands.RunMenu("xmn_symbols");
  EXPECT_EQ(Marked(document), "xmn_iso88592");
}

TEST_F(DocumentCharset, WithoutADocumentTheMenuDoesNothing) {
  CloseAllDocuments(test.program);
  for (const char* menu : {"xmn_win1250", "xmn_iso88592", "xmn_ascii", "mn_unicode", "xmn_plcharinne", "xmn_symbols"})
    EXPECT_TRUE(test.program.commands.RunMenu(menu)) << menu;
}

}  // namespace
}  // namespace morlan
