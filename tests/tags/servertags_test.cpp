// The two ways of each server-side tag: the toolbar's button that inserts one, and the context menu's entry that rewrites one.
#include "tags/servertags.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class ServerTags : public TagEditorTest {
 protected:
  ServerTags() { test_.files.CreateDirectory(test_.Path("program\\Listy")); }
};

// In the order: what is filled in, the new tag round "x", the tag that stands there, that tag written anew.
struct TagCase {
  std::string_view toolbar, key;
  std::vector<std::pair<std::string_view, std::string_view>> fields;
  std::string_view inserted, old, rewritten;
};

const TagCase kTags[] = {
    {"Toolbar12",
     "query",
     {{"text_(0)", "s"}, {"text_(1)", "n"}},
     "<CFQUERY DATASOURCE=\"s\" NAME=\"n\">\r\n\r\nx</CFQUERY>",
     "<cfquery name=\"n\" datasource=\"s\" debug>",
     "<CFQUERY DATASOURCE=\"s\" NAME=\"n\">\r\n\r\n"},
    {"Toolbar12",
     "mail",
     {{"MailTo", "a"}, {"cc_", "b"}, {"MailFrom", "c"}, {"MailQuery", "d"}, {"Subject", "e"}},
     "<CFMAIL TO=\"a\" CC=\"b\" FROM=\"c\" QUERY=\"d\" SUBJECT=\"e\">\r\n\r\nx</CFMAIL>",
     "<cfmail subject=\"e\" to=a from=c>",
     "<CFMAIL TO=\"a\" FROM=\"c\" SUBJECT=\"e\">\r\n\r\n"},
    {"Toolbar12",
     "table",
     {{"Query", "q"}, {"spacing", "1"}, {"headerlines", "2"}, {"maxrows", "3"}, {"colheaders_", "true"}, {"htmltable_", "true"}},
     "<CFTABLE QUERY=\"q\" COLSPACING=\"1\" HEADERLINES=\"2\" MAXROWS=\"3\" COLHEADERS HTMLTABLE>\r\nx</CFTABLE>",
     "<cftable query=q htmltable border>",
     "<CFTABLE QUERY=\"q\" HTMLTABLE>"},
    {"Toolbar12",
     "col",
     {{"header", "h"}, {"text_", "t"}, {"align", "RIGHT"}, {"width_", "5"}},
     "<CFCOL HEADER=\"h\" TEXT=\"t\" ALIGN=\"RIGHT\" WIDTH=\"5\">x",
     "<cfcol text=\"t u\" header=h>",
     "<CFCOL HEADER=\"h\" TEXT=\"t u\">\r\n\r\n"},
    {"Toolbar12",
     "file",
     {{"action", "Write"}, {"output_", "o"}, {"file_", "f"}},
     "<CFFILE ACTION=\"Write\" OUTPUT=\"o\" FILE=\"f\">x",
     "<cffile action=\"delete\" file=\"f\" mode=644>",
     "<CFFILE ACTION=\"Delete\" FILE=\"f\">"},
    {"Toolbar14",
     "applet",
     {{"code", "a.class"}, {"width_", "1"}, {"height_", "2"}},
     "<APPLET CODE=\"a.class\" WIDTH=\"1\" HEIGHT=\"2\">\r\nx</APPLET>",
     "<applet height=2 code=a.class alt=x>",
     "<APPLET CODE=\"a.class\" HEIGHT=\"2\">"},
    {"Toolbar14",
     "script",
     {{"Language", "JavaScript"}, {"Source", "a.js"}, {"RunAt", "server"}},
     "<SCRIPT LANGUAGE=\"JavaScript\" SOURCE=\"a.js\" RUNAT=\"server\">\r\n <!--\r\n//-->\r\nx</SCRIPT>",
     "<script language=VBScript defer>",
     "<SCRIPT LANGUAGE=\"VBScript\">"},
};

TEST_F(ServerTags, NewTagsComeFromTheToolbars) {
  for (const TagCase& row : kTags) EXPECT_EQ(Inserted(row.toolbar, row.key, row.fields), row.inserted);
}

TEST_F(ServerTags, ATagIsWrittenAnewFromItsDialog) {
  for (const TagCase& row : kTags) EXPECT_EQ(Rewritten(row.old), row.rewritten);
}

TEST_F(ServerTags, OneUndoBringsTheOldTagBack) {
  for (const TagCase& row : kTags) {
    Rewritten(row.old);
    Undo();
    EXPECT_EQ(test_.Text(), Concat({"ab", row.old, "yz"}));
  }
}

TEST_F(ServerTags, CancelLeavesTheDocumentAlone) {
  for (const TagCase& row : kTags) {
    EXPECT_EQ(Inserted(row.toolbar, row.key, row.fields, End::Cancel), "x");
    EXPECT_EQ(Rewritten(row.old, Values{}, End::Cancel), row.old);
    EXPECT_FALSE(test_.program.ActiveDocument->IsModified());
  }
}

TEST_F(ServerTags, AnEmptyDialogIsACancel) {
  EXPECT_EQ(Inserted("Toolbar12", "query"), "x");
  EXPECT_EQ(Rewritten("<CFQUERY DEBUG>"), "<CFQUERY DEBUG>");
  EXPECT_EQ(Rewritten("<SCRIPT SRC=\"a.js\">"), "<SCRIPT SRC=\"a.js\">");
}

TEST_F(ServerTags, ATagWrittenTwiceStaysTheSameButForItsLineEnds) {
  EXPECT_EQ(Rewritten("<CFQUERY DATASOURCE=\"s\" NAME=\"n\">"), "<CFQUERY DATASOURCE=\"s\" NAME=\"n\">\r\n\r\n");
  for (const std::string_view tag :
       {"<CFTABLE QUERY=\"q\" COLHEADERS>", "<CFFILE ACTION=\"Upload\" DESTINATION=\"d\" FILEFIELD=\"p\" NAMECONFLICT=\"MakeUnique\">",
        "<APPLET CODE=\"a b.class\" TITLE=\"t u\" ALIGN=\"MIDDLE\">", "<SCRIPT LANGUAGE=\"JScript\" SOURCE=\"a b.js\" RUNAT=\"server\">"})
    EXPECT_EQ(Rewritten(tag), tag);
}

TEST_F(ServerTags, AVariableOfTheServerIsWrittenForBothLanguages) {
  EXPECT_EQ(Inserted("Toolbar11", "servervar", {{"ServerVar", "SERVER_NAME"}}), "<% Request.ServerVariables(\"SERVER_NAME\") %>x");
  EXPECT_EQ(Inserted("Toolbar12", "servervar", {{"ServerVar", "MOJA"}}), "#cgi.MOJA#x");
  EXPECT_EQ(test_.Read("program\\Listy\\ServerVar.lst"), "SERVER_NAME\r\nMOJA\r\n");
  EXPECT_EQ(Inserted("Toolbar11", "servervar", {{"ServerVar", "A"}}, End::Cancel), "x");
  EXPECT_EQ(Inserted("Toolbar12", "servervar", {{"ServerVar", ""}}), "x");
}

TEST_F(ServerTags, AnIncludedFileLacksItsExclamationMarkOnPurpose) {
  EXPECT_EQ(Inserted("Toolbar11", "include", {{"Href", "a.inc"}}), "<--#include file=\"a.inc\"-->x");
}

TEST_F(ServerTags, AnIncludedTemplateEndsLikeACommentOnPurpose) {
  EXPECT_EQ(Inserted("Toolbar12", "include", {{"Href", "a.cfm"}}), "<CFINCLUDE TEMPLATE=\"a.cfm\"-->x");
  EXPECT_EQ(test_.Read("program\\Listy\\Include.lst"), "a.cfm\r\n");
  EXPECT_EQ(Inserted("Toolbar12", "include", Values{}, End::Cancel), "x");
}

TEST_F(ServerTags, EveryDialogOpensByItsNameWhileADocumentIsOpen) {
  test_.OpenText("");
  for (const char* name : {"CFQUERY", "CFMAIL", "CFFILE", "CFTable", "CFCOL", "Aplet", "Script", "ServerVariables", "IncludeFile"}) {
    std::string opened;
    test_.windows.modals.push_back([&opened](Form& form) { opened = form.Name(); });
    EXPECT_TRUE(test_.program.forms.ShowByName(name));
    EXPECT_EQ(opened, name);
  }
}

TEST_F(ServerTags, DialogsAreCaptioned) {
  const std::pair<std::string_view, std::string_view> kCaptions[] = {
      {"CFQUERY", "CFQUERY"},       {"CFMAIL", "CFMAIL"}, {"CFFILE", "CFFILE"}, {"CFTable", "CFTable"},
      {"CFCOL", "CF Table Column"}, {"Aplet", "Aplet"},   {"Script", "Script"}, {"IncludeFile", "Dołącz plik"_pl},
  };
  test_.OpenText("");
  for (const auto& [name, caption] : kCaptions) {
    test_.windows.modals.push_back([&](Form& form) { EXPECT_EQ(form.Caption(), caption); });
    test_.program.forms.ShowByName(name);
  }
}

TEST_F(ServerTags, QuotesLineEndsAndLongTextsGoInAsTheyAre) {
  const std::string text = "a\"b\r\n" + std::string(100000, 'c');
  EXPECT_EQ(Inserted("Toolbar12", "col", {{"header", text}}), Concat({"<CFCOL HEADER=\"", text, "\">x"}));
}

TEST_F(ServerTags, ATagThatIsAlmostEndlessIsRead) {
  const std::string tag = "<CFMAIL TO=\"" + std::string(1000000, '#') + "\" SUBJECT=\"s\">";
  const std::string text = Rewritten(tag);
  EXPECT_TRUE(text.starts_with("<CFMAIL TO=\"##"));
  EXPECT_TRUE(text.ends_with(" SUBJECT=\"s\">\r\n\r\n"));
}

}  // namespace
}  // namespace morlan
