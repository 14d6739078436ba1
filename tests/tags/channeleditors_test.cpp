#include "tags/channeleditors.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class ChannelEditors : public TagEditorTest {
 protected:
  void ExpectQuestion(const Form& form, std::string_view title, std::string_view info) {
    EXPECT_EQ(form.Caption(), title);
    EXPECT_EQ(form.Find("Info")->Caption(), info);
  }
};

struct TextCase {
  std::string_view tag, title, info, list;
};

const TextCase kTexts[] = {
    {"MINSTORAGE", "Ilość potrzebnego miejsca"_pl, "Ilość w KB"_pl, ""},
    {"INTROURL", "Strona wprowadzająca w temat kanału"_pl, "Adres URL:", "CHCopyR.lst"},
    {"CATEGORYNAME", "Kategoria", "Kategoria:", "CHCat.lst"},
    {"KEYWORDS", "Słowa kluczowe"_pl, "Słowa kluczowe (rozdzielaj je przecinkiem)"_pl, "CHKey.lst"},
    {"AUTHOR", "Autor", "Autor:", "CHAuthor.lst"},
    {"PUBLISHER", "Wydawca", "Wydawca:", "CHPub.lst"},
    {"COPYRIGHT", "Prawa autorskie", "Prawa autorskie:", "CHCopyR.lst"},
    {"TITLE", "Edytuj tytuł kanału"_pl, "Tytuł kanału"_pl, "CHTitle.lst"},
    {"ABSTRACT", "Edytuj opis kanału"_pl, "Opis kanału"_pl, ""},
};

TEST_F(ChannelEditors, EveryTextIsEditedAndRemembered) {
  for (const TextCase& text : kTexts) {
    const std::string list = Concat({"program\\Listy\\", text.list});
    if (!text.list.empty()) test_.Write(list, "a\r\n");
    const std::string tag = Concat({"<", text.tag, " VALUE=\"ala ma\"/>"});
    const auto change = [&](Form& form) {
      ExpectQuestion(form, text.title, text.info);
      EXPECT_EQ(form.Find("Items")->ValueText(), "ala ma");
      EXPECT_TRUE(form.Find("Items")->UserSetsText("kot"));
    };
    EXPECT_EQ(Rewritten(tag, change), Concat({"<", text.tag, " VALUE=\"kot\"/>"}));
    if (!text.list.empty()) {
      EXPECT_EQ(test_.Read(list), "a\r\nkot\r\n") << text.tag;
    }
    ExpectRoundTrip(tag);
  }
}

struct DateCase {
  std::string_view tag, info;
};

const DateCase kDates[] = {
    {"LASTMOD", "Data ostatniej modyfikacji:"},
    {"STARTDATE", "Od kiedy obowiązuje uaktualnianie kanału:"_pl},
    {"ENDDATE", "Do kiedy obowiązuje uaktualnianie kanału:"_pl},
    {"PUBLICATIONDATE", "Data publikacji:"},
};

TEST_F(ChannelEditors, EveryDateIsEdited) {
  for (const DateCase& date : kDates) {
    const std::string tag = Concat({"<", date.tag, " VALUE=\"1998.5.4T12:30-0500\"/>"});
    const auto change = [&](Form& form) {
      ExpectQuestion(form, "Edycja daty", date.info);
      EXPECT_TRUE(form.Find("Month_")->UserSetsText("11"));
    };
    EXPECT_EQ(Rewritten(tag, change), Concat({"<", date.tag, " VALUE=\"1998.11.4T12:30-0500\"/>"}));
    ExpectRoundTrip(tag);
  }
}

TEST_F(ChannelEditors, CancelLeavesTheDocumentAlone) {
  for (const std::string_view tag : {"<AUTHOR VALUE=\"a\"/>", "<TITLE VALUE=\"a\"/>", "<LASTMOD VALUE=\"1998.5.4T12:30-0500\"/>"})
    ExpectCancelKeeps(tag);
  ExpectCancelInsertsNothing("Toolbar15", "anchor");
  ExpectCancelInsertsNothing("Toolbar17", "publicationdate");
  ExpectCancelInsertsNothing("Toolbar18", "startdate");
  ExpectCancelInsertsNothing("Toolbar19", "categorydesc");
}

TEST_F(ChannelEditors, AnEmptyTextIsACancel) {
  EXPECT_EQ(Rewritten("<AUTHOR VALUE=\"a\"/>", {{"Items", ""}}), "<AUTHOR VALUE=\"a\"/>");
  EXPECT_EQ(Inserted("Toolbar15", "author", {{"Items", ""}}), "x");
}

TEST_F(ChannelEditors, ADescriptionHasAnEditorThatTheMenuDoesNotReachOnPurpose) {
  test_.OpenText("<DESCRIPTION VALUE=\"a\"/>").EditedText.Select(3, 0);
  test_.program.ActiveDocument->EditedText_OnMouseDown(MouseButton::Right);
  EXPECT_FALSE(test_.program.ActiveDocument->xmnm_editpopup.Find("xmn_item")->enabled);
  test_.windows.modals.push_back([this](Form& form) {
    ExpectQuestion(form, "Kategoria", "Opis kategorii:");
    form.Find("Items")->UserSetsText("b");
    form.defaultButton->UserClicks();
  });
  test_.program.tagState.tagEditors.at("EditDescription")();
  EXPECT_EQ(test_.Text(), "<DESCRIPTION VALUE=\"b\"/>");
}

struct CommandCase {
  std::string_view toolbars, key, before, after, title, info, list;
};

const CommandCase kCommands[] = {
    {"15 17", "author", "<AUTHOR VALUE=\"", "\"/>", "Autor", "Autor:", "CHAuthor.lst"},
    {"15 17", "publisher", "<PUBLISHER VALUE=\"", "\"/>", "Wydawca", "Wydawca:", "CHPub.lst"},
    {"15 17", "copyright", "<COPYRIGHT VALUE=\"", "\"/>", "Prawa autorskie", "Prawa autorskie:", "CHCopyR.lst"},
    {"15 17", "keywords", "<KEYWORDS VALUE=\"", "\"/>", "Słowa kluczowe"_pl, "Słowa kluczowe (rozdzielaj je przecinkiem):"_pl, "CHKey.lst"},
    {"15", "intro", "<INTROURL VALUE=\"", "\"/>", "Strona wprowadzająca w temat kanału"_pl, "Adres URL:", "CHCopyR.lst"},
    {"15", "minstorage", "<MINSTORAGE VALUE=\"", "\"/>", "Ilość potrzebnego miejsca"_pl, "Ilość w KB"_pl, ""},
    {"15 17", "category", "<CATEGORY VALUE=\"", "\"/>", "Kategoria", "Kategoria:", "CHCat.lst"},
    {"15 17", "anchor", "<A HREF=\"", "\">x</A>", "Połączenie"_pl, "Adres URL:", "HREF.lst"},
    {"19", "categoryname", "<CATEGORYNAME VALUE=\"", "\"/>", "Kategoria", "Kategoria:", "CHCat.lst"},
    {"19", "categorydesc", "<DESCRIPTION VALUE=\"", "\"/>", "Kategoria", "Opis kategorii:", ""},
};

TEST_F(ChannelEditors, EveryTextIsInsertedAndRemembered) {
  for (const CommandCase& row : kCommands)
    for (std::size_t at = 0; at < row.toolbars.size(); at += 3) {
      const std::string toolbar = Concat({"Toolbar", row.toolbars.substr(at, 2)}), list = Concat({"program\\Listy\\", row.list});
      if (!row.list.empty()) test_.Write(list, "a\r\n");
      const auto fill = [&](Form& form) {
        ExpectQuestion(form, row.title, row.info);
        EXPECT_TRUE(form.Find("Items")->UserSetsText("kot"));
      };
      EXPECT_EQ(Inserted(toolbar, row.key, fill), Concat({row.before, "kot", row.after}));
      if (!row.list.empty()) {
        EXPECT_EQ(test_.Read(list), "a\r\nkot\r\n") << toolbar << " " << row.key;
      }
    }
}

TEST_F(ChannelEditors, DatesOfNowAreInserted) {
  for (const std::string_view toolbar : {"Toolbar15", "Toolbar17"}) {
    EXPECT_EQ(Inserted(toolbar, "lastmod"), "<LASTMOD VALUE=\"1998.3.7T12:30-0500\"/>");
    EXPECT_EQ(Inserted(toolbar, "publicationdate"), "<PUBLICATIONDATE VALUE=\"1998.3.7T12:30-0500\"/>");
  }
}

TEST_F(ChannelEditors, TheButtonOfTheStartDateWritesTheEndDateOnPurpose) {
  const auto look = [this](Form& form) { ExpectQuestion(form, "Edycja daty", "Do kiedy obowiązuje uaktualnianie kanału:"_pl); };
  EXPECT_EQ(Inserted("Toolbar18", "startdate", look), "<ENDDATE VALUE=\"1998.3.7T12:30-0500\"/>");
}

struct PairCase {
  std::string_view toolbar, key, text;
};

TEST_F(ChannelEditors, PairsGoRoundTheSelection) {
  const PairCase cases[] = {
      {"Toolbar15", "channel", "<CHANNEL>\r\nx\r\n</CHANNEL>"},
      {"Toolbar15", "item", "<ITEM>\r\nx\r\n</ITEM>"},
      {"Toolbar15", "schedule", "<SCHEDULE>\r\nx\r\n</SCHEDULE>"},
      {"Toolbar15", "categorydef", "<CATEGORYDEF>\r\nx\r\n</CATEGORYDEF>"},
      {"Toolbar15", "title", "<TITLE>x</TITLE>"},
      {"Toolbar15", "abstract", "<ABSTRACT>x</ABSTRACT>"},
      {"Toolbar17", "item", "<ITEM>\r\nx\r\n</ITEM>"},
      {"Toolbar17", "title", "<TITLE>x</TITLE>"},
      {"Toolbar17", "abstract", "<ABSTRACT>x</ABSTRACT>"},
      {"Toolbar19", "category", "<CATEGORYDEF>\r\nx\r\n</CATEGORYDEF>"},
      {"Toolbar20", "config", "<CONFIG>x</CONFIG>"},
      {"Toolbar20", "dependencies", "<DEPENDENCY>x</DEPENDENCY>"},
      {"Toolbar20", "title", "<TITLE>x</TITLE>"},
      {"Toolbar20", "abstract", "<ABSTRACT>x</ABSTRACT>"},
  };
  for (const PairCase& row : cases) {
    test_.OpenText("x").EditedText.Select(0, 1);
    EXPECT_TRUE(test_.program.commands.RunToolbar(row.toolbar, row.key));
    EXPECT_EQ(test_.Text(), row.text);
  }
}

TEST_F(ChannelEditors, APairIsRepeated) {
  test_.OpenText("");
  EXPECT_TRUE(test_.program.commands.RunToolbar("Toolbar17", "title"));
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_repeatlastinsertion"));
  EXPECT_EQ(test_.Text(), "<TITLE><TITLE></TITLE></TITLE>");
}

TEST_F(ChannelEditors, QuotesAndLineEndsGoIntoTheTagAsTheyAre) {
  EXPECT_EQ(Rewritten("<AUTHOR VALUE=\"a\"/>", {{"Items", "b\"\r\nc"}}), "<AUTHOR VALUE=\"b\"\r\nc\"/>");
}

TEST_F(ChannelEditors, AVeryLongValueIsKept) {
  const std::string value(100000, 'x');
  EXPECT_EQ(Rewritten("<KEYWORDS VALUE=\"a\"/>", {{"Items", value}}), Concat({"<KEYWORDS VALUE=\"", value, "\"/>"}));
}

TEST_F(ChannelEditors, ATitleAndAnAbstractHaveNoEntryInTheMenuOnPurpose) {
  for (const std::string_view tag : {"<TITLE VALUE=\"a\"/>", "<ABSTRACT VALUE=\"a\"/>"}) {
    test_.OpenText(tag).EditedText.Select(3, 0);
    test_.program.ActiveDocument->EditedText_OnMouseDown(MouseButton::Right);
    EXPECT_FALSE(test_.program.ActiveDocument->xmnm_editpopup.Find("xmn_item")->visible) << tag;
  }
}

TEST_F(ChannelEditors, OneUndoBringsTheSelectionBack) {
  Inserted("Toolbar17", "author", {{"Items", "kot"}});
  Undo();
  EXPECT_EQ(test_.Text(), "x");
}

}  // namespace
}  // namespace morlan
