#include "tags/channelitem.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class ChannelItem : public TagEditorTest {
 protected:
  ChannelItem() { test_.Write("program\\Listy\\CHHref.lst", ""); }
};

TEST_F(ChannelItem, AllAttributesAreWrittenEmptyOnesToo) {
  EXPECT_EQ(ItemAttributes({}), " HREF=\"\" LASTMOD=\"\" PRECACHE=\"\" LEVEL=\"\"");
}

TEST_F(ChannelItem, ATagThatIsWrittenAnewHasASecondBlankOnPurpose) {
  ExpectRoundTrip("<ITEM  HREF=\"a.html\" LASTMOD=\"1998-05-04T12:30+0100\" PRECACHE=\"YES\" LEVEL=\"2\">");
  EXPECT_EQ(Rewritten("<item level=\"1\" precache=\"no\" href=\"a.html\" id=x>"),
            "<ITEM  HREF=\"a.html\" LASTMOD=\"\" PRECACHE=\"NO\" LEVEL=\"1\">");
  EXPECT_EQ(Rewritten("<ITEM PRECACHE=\"DEFAULT\">"), "<ITEM  HREF=\"\" LASTMOD=\"\" PRECACHE=\"DEFAULT\" LEVEL=\"\">");
}

TEST_F(ChannelItem, AValueWithoutQuotesIsNotReadOnPurpose) {
  EXPECT_EQ(Rewritten("<ITEM HREF=a.html>"), "<ITEM  HREF=\"\" LASTMOD=\"\" PRECACHE=\"\" LEVEL=\"\">");
}

TEST_F(ChannelItem, CancelLeavesTheDocumentAlone) {
  ExpectCancelKeeps("<ITEM HREF=\"a.html\">");
  ExpectCancelInsertsNothing("Toolbar17", "itemdlg");
}

TEST_F(ChannelItem, ANewOneGoesRoundTheSelection) {
  EXPECT_EQ(Inserted("Toolbar17", "itemdlg", {{"HREF", "n.html"}, {"PreCache", "YES"}, {"Level", "3"}}),
            "<ITEM HREF=\"n.html\" LASTMOD=\"\" PRECACHE=\"YES\" LEVEL=\"3\">x\r\n</ITEM>");
  EXPECT_EQ(test_.Read("program\\Listy\\CHHref.lst"), "n.html\r\n");
}

TEST_F(ChannelItem, TheLastAddressIsOfferedForANewOne) {
  test_.Write("program\\Listy\\CHHref.lst", "a.html\r\nb.html\r\n");
  EXPECT_EQ(Inserted("Toolbar17", "itemdlg"), "<ITEM HREF=\"b.html\" LASTMOD=\"\" PRECACHE=\"\" LEVEL=\"\">x\r\n</ITEM>");
}

TEST_F(ChannelItem, TheFileComesFromItsButton) {
  EXPECT_EQ(ChosenFile("<ITEM HREF=\"\">", "hrefFile", "HREF", "work\\s\\a.html"), "s/a.html");
}

}  // namespace
}  // namespace morlan
