#include "tags/formeditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class FormEditor : public TagEditorTest {};

TEST_F(FormEditor, WritesItsAttributesInOrder) {
  EXPECT_EQ(FormText({.action = "/cgi-bin/a b", .method = "POST", .target = "_top", .enctype = "text/plain"}),
            "<FORM ACTION=\"/cgi-bin/a b\" METHOD=\"POST\" TARGET=\"_top\" ENCTYPE=\"text/plain\">");
  EXPECT_EQ(FormText({.method = "GET"}), "<FORM ACTION=\"\" METHOD=\"GET\">");
}

TEST_F(FormEditor, ReadsEachField) {
  constexpr std::string_view kTag = "<form enctype=text/plain target=_top method=Post action=\"a b\">";
  EXPECT_EQ(Shown(kTag, "action"), "a b");
  EXPECT_EQ(Shown(kTag, "method"), "POST");
  EXPECT_EQ(Shown(kTag, "target"), "_top");
  EXPECT_EQ(Shown(kTag, "enctype"), "text/plain");
}

TEST_F(FormEditor, AFormWithoutAMethodGets) {
  Rewritten("<FORM METHOD=POST>");
  EXPECT_EQ(Shown("<FORM ACTION=\"a\">", "method"), "GET");
  EXPECT_EQ(Shown("<FORM METHOD=PUT>", "method"), "GET");
}

TEST_F(FormEditor, ATagIsWrittenBackAsItWas) {
  ExpectRoundTrip("<FORM ACTION=\"a b\" METHOD=\"POST\" TARGET=\"_top\" ENCTYPE=\"text/plain\">");
  ExpectRoundTrip("<FORM ACTION=\"\" METHOD=\"GET\">");
}

TEST_F(FormEditor, RewritesWhatTheUserChanged) {
  EXPECT_EQ(Rewritten("<form name=f action=\"a\" method=get>", {{"action", "b"}, {"method", "POST"}, {"target", "okno"}, {"enctype", "c"}}),
            "<FORM ACTION=\"b\" METHOD=\"POST\" TARGET=\"okno\" ENCTYPE=\"c\">");
  Undo();
  EXPECT_EQ(test_.Text(), "ab<form name=f action=\"a\" method=get>yz");
}

TEST_F(FormEditor, InsertsAPair) {
  EXPECT_EQ(Inserted("Toolbar5", "formshape", {{"action", "a"}}), "<FORM ACTION=\"a\" METHOD=\"GET\">x</FORM>");
}

TEST_F(FormEditor, OffersWhatItsListsHold) {
  test_.Write("program\\Listy\\Scripts.lst", "/cgi-bin/\r\nmailto:\r\n");
  test_.Write("program\\Listy\\Enctype.lst", "text/plain\r\n");
  Rewritten("<FORM>", [](Form& form) {
    EXPECT_EQ(form.FindAs<ComboBox>("action")->Rows(), (std::vector<std::string>{"/cgi-bin/", "mailto:"}));
    EXPECT_EQ(form.FindAs<ComboBox>("enctype")->Rows(), (std::vector<std::string>{"text/plain"}));
    EXPECT_EQ(form.FindAs<ComboBox>("action")->Text(), "") << "an offer is no choice";
  });
}

TEST_F(FormEditor, RemembersWhatWasConfirmed) {
  test_.Write("program\\Listy\\Scripts.lst", "mailto:\r\n");
  Inserted("Toolbar5", "formshape", {{"action", "/cgi-bin/a"}, {"enctype", "text/plain"}});
  EXPECT_EQ(test_.Read("program\\Listy\\Scripts.lst"), "mailto:\r\n/cgi-bin/a\r\n");
  EXPECT_EQ(test_.Read("program\\Listy\\Enctype.lst"), "text/plain\r\n");
  Rewritten("<FORM ACTION=\"b\">", [](Form& form) {
    EXPECT_EQ(form.FindAs<ComboBox>("action")->Rows(), (std::vector<std::string>{"mailto:", "/cgi-bin/a"}));
  });
  EXPECT_EQ(test_.Read("program\\Listy\\Scripts.lst"), "mailto:\r\n/cgi-bin/a\r\nb\r\n");
}

TEST_F(FormEditor, CancelChangesNothing) {
  ExpectCancelKeeps("<form action=\"a\">");
  ExpectCancelInsertsNothing("Toolbar5", "formshape");
  EXPECT_EQ(Rewritten("<FORM>", {{"action", "nowe"}}, End::Cancel), "<FORM>");
  EXPECT_FALSE(test_.Exists("program\\Listy\\Scripts.lst"));
}

TEST_F(FormEditor, TellsOfItsWorkInTheStatusLine) { ExpectStatus("<FORM>", "Generowanie znacznika formularza..."); }

}  // namespace
}  // namespace morlan
