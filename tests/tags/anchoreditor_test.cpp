#include "tags/anchoreditor.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class AnchorEditor : public TagEditorTest {};

TEST_F(AnchorEditor, WritesItsAttributesInOrder) {
  EXPECT_EQ(AnchorText({}), "<A>");
  EXPECT_EQ(AnchorText({.href = "a b.html", .etykieta = "n", .parm = "_top"}), "<A HREF=\"a b.html\" NAME=\"n\" TARGET=\"_top\">");
}

TEST_F(AnchorEditor, ReadsEachField) {
  constexpr std::string_view kTag = "<a target=_top name=n href=\"a b.html\">";
  EXPECT_EQ(Shown(kTag, "href"), "a b.html");
  EXPECT_EQ(Shown(kTag, "etykieta"), "n");
  EXPECT_EQ(Shown(kTag, "parm"), "_top");
}

TEST_F(AnchorEditor, ATagIsWrittenBackAsItWas) {
  ExpectRoundTrip("<A HREF=\"a b.html\" NAME=\"n\" TARGET=\"_top\">");
  ExpectRoundTrip("<A HREF=\"a.html#dol\">");
}

TEST_F(AnchorEditor, ALabelLosesItsSignOnPurpose) { EXPECT_EQ(Rewritten("<A HREF=\"#top\">"), "<A HREF=\"top\">"); }

TEST_F(AnchorEditor, QuotesAreNotEscaped) { EXPECT_EQ(Rewritten("<A HREF=\"a\">", {{"href", "x\"y"}}), "<A HREF=\"x\"y\">"); }

TEST_F(AnchorEditor, InsertsAPair) {
  EXPECT_EQ(Inserted("Toolbar1", "anchor", {{"href", "a.html"}, {"etykieta", "n"}, {"parm", "okno"}}),
            "<A HREF=\"a.html\" NAME=\"n\" TARGET=\"okno\">x</A>");
}

TEST_F(AnchorEditor, RemembersTheAddressesThatWereConfirmed) {
  test_.Write("program\\Listy\\HREF.lst", "http://a/\r\n");
  Inserted("Toolbar1", "anchor", {{"href", "b.html"}});
  Rewritten("<A HREF=\"c\">", {{"href", "d"}}, End::Cancel);
  EXPECT_EQ(test_.Read("program\\Listy\\HREF.lst"), "http://a/\r\nb.html\r\n");
  Rewritten("<A HREF=\"c\">", [](Form& form) {
    EXPECT_EQ(form.FindAs<ComboBox>("href")->Rows(), (std::vector<std::string>{"http://a/", "b.html"}));
    EXPECT_EQ(form.FindAs<ComboBox>("href")->Text(), "c");
  });
}

TEST_F(AnchorEditor, AsksForAPage) { EXPECT_EQ(ChosenFile("<A HREF=a>", "hrefFile", "href", "b.html"), "../b.html"); }

TEST_F(AnchorEditor, AnEmptyAddressCountsAsCancelled) {
  ExpectCancelKeeps("<a href=b>");
  EXPECT_EQ(test_.program.forms.Get<anchor>().href.Text(), "");
  EXPECT_EQ(Rewritten("<a name=x>"), "<a name=x>") << "also for a label";
  ExpectCancelInsertsNothing("Toolbar1", "anchor");
}

}  // namespace
}  // namespace morlan
