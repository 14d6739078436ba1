#include "tags/contextmenu.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class ContextMenu : public testing::Test {
 protected:
  ContextMenu() {
    for (const char* name : {"a.mid", "a.jpg", "b.GIF", "c.html", "d.shtml", "e.map", "f.txt", "g.b.html"})
      test_.Write(Concat({"work\\", name}), "x");
  }
  TagOffer Offer(std::string_view tag, std::string_view name) { return OfferFor(test_.program, tag, name, test_.Path("work")); }
  // The captions of what is offered, with a "|" between them.
  std::string Captions(std::string_view tag, std::string_view name) {
    std::string captions;
    for (const OfferedAction& action : Offer(tag, name).actions) captions += Concat({captions.empty() ? "" : "|", action.caption});
    return captions;
  }
  TEditor& RightClick(std::string_view text, std::size_t caret, std::size_t length = 0) {
    TEditor& document = test_.OpenText(text);
    document.EditedText.Select(caret, length);
    test_.frontEnd.poppedUp = nullptr;
    document.EditedText_OnMouseDown(MouseButton::Right);
    return document;
  }
  // The names of the tag's entries that the pop-up shows.
  static std::string Shown(const TEditor& document) {
    std::string shown;
    for (const std::string_view name : {"xmn_tagname", "xmn_item", "xmn_item2", "xmn_item3"})
      if (document.xmnm_editpopup.Find(name)->visible) shown += Concat({shown.empty() ? "" : " ", name});
    return shown;
  }
  static const std::string& Caption(const TEditor& document, std::string_view name) { return document.xmnm_editpopup.Find(name)->caption; }
  TestProgram test_;
};

struct OfferCase {
  std::string_view tag, name, captions;
};

TEST_F(ContextMenu, OffersWhatFitsTheFileOfATag) {
  const OfferCase kCases[] = {
      {"<embed src=\"a.mid\"", "embed", "Odtwórz plik a.mid"_pl},
      {"<embed src=\"a.jpg\"", "embed", ""},
      {"<img src=\"a.jpg\"", "img", "Podgląd pliku a.jpg|Utwórz mapę dla a.jpg"_pl},
      {"<img src=\"b.GIF\"", "img", "Podgląd pliku b.GIF|Utwórz mapę dla b.GIF"_pl},
      {"<img src=\"brak.jpg\"", "img", ""},
      {"<a href=\"c.html\"", "a", "Otwórz plik c.html"_pl},
      {"<a href=\"d.shtml\"", "a", "Otwórz plik d.shtml"_pl},
      {"<a href=\"e.map\"", "a", "Otwórz plik e.map"_pl},
      {"<a href=\"f.txt\"", "a", ""},
      {"<a href=\"../"
       "work/c.html\"",
       "a", "Otwórz plik c.html"_pl},
      {"<a href=\"http://a/c.html\"", "a", ""},
      {"<a href=\"#dół\""_pl, "a", "Skocz do etykiety DÓŁ"_pl},
      {"<a name=\"x\"", "a", ""},
      {"<body background=\"a.jpg\"", "body", "Podgląd pliku a.jpg"_pl},
      {"<td src=\"c.html\"", "td", "Podgląd pliku c.html"_pl},
      {"<frame src=\"c.html\"", "frame", "Otwórz wskazany plik"_pl},
      {"<iframe src=\"c.html\"", "iframe", "Otwórz wskazany plik"_pl},
  };
  for (const OfferCase& row : kCases) {
    EXPECT_EQ(ToUtf8(Captions(row.tag, row.name)), ToUtf8(row.captions)) << ToUtf8(row.tag);
    EXPECT_TRUE(Offer(row.tag, row.name).isKnown);
  }
}

// The extension is everything behind the first ".".
TEST_F(ContextMenu, AFileWithTwoDotsIsOfNoTypeOnPurpose) { EXPECT_EQ(Captions("<a href=\"g.b.html\"", "a"), ""); }

TEST_F(ContextMenu, KnowsTheTagsThatAreOnlyEdited) {
  for (const std::string_view name : {"frameset",     "hr",          "basefont",   "font",    "table",           "tr",        "th",
                                      "form",         "cfquery",     "cfmail",     "cffile",  "cftable",         "cfcol",     "applet",
                                      "script",       "channel",     "logo",       "author",  "publisher",       "copyright", "keywords",
                                      "categoryname", "introurl",    "minstorage", "lastmod", "publicationdate", "item",      "enddate",
                                      "startdate",    "description", "category"}) {
    EXPECT_TRUE(Offer("<x", name).isKnown) << name;
    EXPECT_TRUE(Offer("<x src=\"c.html\"", name).actions.empty()) << name;
  }
  for (const std::string_view name : {"p", "/a", "b", "title", ""}) EXPECT_FALSE(Offer("<x", name).isKnown) << name;
}

TEST_F(ContextMenu, TheEditEntryOfATagWithoutAnEditorCannotBePicked) {
  for (const std::string_view tag : {"<DESCRIPTION VALUE=\"a\"/>", "<CATEGORY VALUE=\"a\"/>"}) {
    const TEditor& document = RightClick(tag, 3);
    EXPECT_EQ(Shown(document), "xmn_tagname xmn_item") << tag;
    EXPECT_FALSE(document.xmnm_editpopup.Find("xmn_item")->enabled) << tag;
  }
  EXPECT_TRUE(RightClick("<hr>", 2).xmnm_editpopup.Find("xmn_item")->enabled);
}

// Every tag of the dispatch that the menu knows too; TITLE and ABSTRACT are not among them.
const std::pair<std::string_view, std::string_view> kEditors[] = {
    {"EMBED", "EditEmbed"},
    {"IMG", "EditImage"},
    {"A", "EditAnchor"},
    {"HR", "EditLine"},
    {"BASEFONT", "EditBaseFont"},
    {"FONT", "EditFont"},
    {"TABLE", "EditTable"},
    {"TR", "EditRow"},
    {"TH", "EditCell"},
    {"TD", "EditCell"},
    {"FRAMESET", "EditFrameSet"},
    {"FRAME", "EditFrame"},
    {"IFRAME", "EditIFrame"},
    {"FORM", "EditForm"},
    {"CFQUERY", "EditCfQuery"},
    {"CFMAIL", "EditCfMail"},
    {"CFFILE", "EditCfFile"},
    {"CFTABLE", "EditCfTable"},
    {"CFCOL", "EditCfCol"},
    {"APPLET", "EditApplet"},
    {"CHANNEL", "EditChannel"},
    {"LOGO", "EditLogo"},
    {"AUTHOR", "EditAuthor"},
    {"PUBLISHER", "EditPublisher"},
    {"COPYRIGHT", "EditCopyright"},
    {"KEYWORDS", "EditKeywords"},
    {"CATEGORYNAME", "EditCategoryName"},
    {"INTROURL", "EditIntroUrl"},
    {"MINSTORAGE", "EditMinStorage"},
    {"LASTMOD", "EditLastMod"},
    {"PUBLICATIONDATE", "EditPublicationDate"},
    {"ITEM", "EditItem"},
    {"STARTDATE", "EditStartDate"},
    {"ENDDATE", "EditEndDate"},
    {"BODY", "EditBody"},
    {"SCRIPT", "EditScript"},
};

TEST_F(ContextMenu, TheEditEntryCallsTheEditorOfEveryTag) {
  std::string called;
  for (auto& [name, edit] : test_.program.tagState.tagEditors) edit = [&called, name = name] { called = name; };
  for (const auto& [tag, editor] : kEditors) {
    called.clear();
    const TEditor& document = RightClick(Concat({"<", LowerCase(tag), " x>"}), 2);
    EXPECT_EQ(Shown(document), "xmn_tagname xmn_item") << tag;
    EXPECT_EQ(Caption(document, "xmn_tagname"), Concat({"<", tag, ">"}));
    EXPECT_TRUE(test_.program.commands.RunMenu("xmn_item"));
    EXPECT_EQ(called, editor) << tag;
  }
}

TEST_F(ContextMenu, NamesTheTagAndRemembersItsPlace) {
  const TEditor& document = RightClick("a <form method=get> b", 6);
  EXPECT_EQ(Shown(document), "xmn_tagname xmn_item");
  EXPECT_EQ(Caption(document, "xmn_tagname"), "<FORM>");
  EXPECT_EQ(test_.program.tagState.CurrentTagText, "<form method=get");
  EXPECT_EQ(test_.program.tagState.CurrentTagStart, 3u);
  EXPECT_EQ(test_.frontEnd.poppedUp, &document.xmnm_editpopup);
  EXPECT_EQ(test_.frame().statusBar.PanelText("status"), "Gotowy");
}

TEST_F(ContextMenu, CallsTheEditorOfTheTag) {
  int calls = 0;
  test_.program.tagState.tagEditors["EditLine"] = [&calls] { ++calls; };
  EXPECT_EQ(Shown(RightClick("a <hr> b", 4)), "xmn_tagname xmn_item");
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_item"));
  EXPECT_EQ(calls, 1);
}

TEST_F(ContextMenu, ShowsNoTagEntriesWhereThereIsNothingForTheTag) {
  EXPECT_EQ(Shown(RightClick("<b>x</b> y <i>", 10)), "");
  EXPECT_EQ(test_.program.tagState.CurrentTagStart, 5u);
}

TEST_F(ContextMenu, ShowsThePlainMenuOutsideAnyTag) {
  EXPECT_EQ(Shown(RightClick("abc", 1)), "");
  EXPECT_EQ(Shown(RightClick("<hr> abc", 7)), "");
  EXPECT_NE(test_.frontEnd.poppedUp, nullptr);
  EXPECT_EQ(test_.frame().statusBar.PanelText("status"), "Gotowy");
}

TEST_F(ContextMenu, TouchesNoTagWithASelection) {
  const TEditor& document = RightClick("<hr>", 1, 2);
  EXPECT_EQ(Shown(document), "");
  EXPECT_EQ(test_.program.tagState.CurrentTagStart, 0u);
  EXPECT_EQ(test_.frontEnd.poppedUp, &document.xmnm_editpopup);
}

TEST_F(ContextMenu, TheLeftButtonShowsNoMenu) {
  TEditor& document = RightClick("<hr>", 1);
  test_.frontEnd.poppedUp = nullptr;
  document.EditedText_OnMouseDown(MouseButton::Left);
  EXPECT_EQ(Shown(document), "");
  EXPECT_EQ(test_.frontEnd.poppedUp, nullptr);
}

TEST_F(ContextMenu, IsSilentWhileAWholeDocumentIsColoured) {
  TEditor& document = test_.OpenText("<hr>");
  test_.frontEnd.poppedUp = nullptr;
  test_.program.tagState.ColorizeRunning = true;
  document.EditedText_OnMouseDown(MouseButton::Right);
  EXPECT_EQ(test_.frontEnd.poppedUp, nullptr);
}

TEST_F(ContextMenu, OpensTheFileOfALink) {
  const TEditor& document = RightClick("<a href=\"c.html\">x</a>", 3);
  EXPECT_EQ(Shown(document), "xmn_tagname xmn_item xmn_item2");
  EXPECT_EQ(Caption(document, "xmn_item2"), "Otwórz plik c.html"_pl);
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_item2"));
  EXPECT_EQ(test_.program.ActiveDocument->Caption(), test_.Path("work\\c.html"));
}

TEST_F(ContextMenu, JumpsToALabelAndLeavesItsNameInTheDialogResult) {
  const TEditor& document = RightClick("<body><a href=\"#dol\">x</a><a name=\"dol\">y</a>", 10);
  EXPECT_EQ(Caption(document, "xmn_item2"), "Skocz do etykiety DOL");
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_item2"));
  EXPECT_EQ(test_.program.DialogResult, "dol");
  EXPECT_TRUE(document.EditedText.SelText().starts_with("<a name=\"dol\""));
}

TEST_F(ContextMenu, OffersOnlyActionsThatExist) {
  EXPECT_EQ(Shown(RightClick("<img src=\"a.jpg\">", 3)), "xmn_tagname xmn_item");
  std::string mapped;
  test_.program.tagState.targetActions[TargetAction::MakeImageMap] = [&mapped](const std::string& path) { mapped = path; };
  const TEditor& document = RightClick("<img src=\"a.jpg\">", 3);
  EXPECT_EQ(Shown(document), "xmn_tagname xmn_item xmn_item2");
  EXPECT_EQ(Caption(document, "xmn_item2"), "Utwórz mapę dla a.jpg"_pl);
  test_.program.commands.RunMenu("xmn_item2");
  EXPECT_EQ(mapped, test_.Path("work\\a.jpg"));
}

}  // namespace
}  // namespace morlan
