#include "tags/channellogo.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class ChannelLogo : public TagEditorTest {
 protected:
  ChannelLogo() { test_.Write("program\\Listy\\CHLogo.lst", "stare.gif\r\n"); }
};

TEST_F(ChannelLogo, BothAttributesAreAlwaysWritten) {
  EXPECT_EQ(LogoAttributes({.href = "a.gif", .style = "ICON"}), "HREF=\"a.gif\" STYLE=\"ICON\"");
  EXPECT_EQ(LogoAttributes({}), "HREF=\"\" STYLE=\"\"");
}

TEST_F(ChannelLogo, IsReadAndWritten) {
  ExpectRoundTrip("<LOGO HREF=\"a b.gif\" STYLE=\"IMAGE\"/>");
  EXPECT_EQ(Rewritten("<logo style=\"image\" href=\"a.gif\">"), "<LOGO HREF=\"a.gif\" STYLE=\"IMAGE\"/>");
  EXPECT_EQ(Rewritten("<LOGO HREF=\"a.gif\" STYLE=\"IMAGE-WIDE\"/>"), "<LOGO HREF=\"a.gif\" STYLE=\"IMAGE-WIDE\"/>");
}

TEST_F(ChannelLogo, CancelLeavesTheDocumentAlone) {
  ExpectCancelKeeps("<LOGO HREF=\"a.gif\" STYLE=\"IMAGE\"/>");
  ExpectCancelInsertsNothing("Toolbar17", "logo");
}

TEST_F(ChannelLogo, ANewOneTakesThePlaceOfTheSelection) {
  for (const std::string_view toolbar : {"Toolbar15", "Toolbar17"})
    EXPECT_EQ(Inserted(toolbar, "logo", {{"Items", "nowe.gif"}, {"Typ", "ICON"}}), "<LOGO HREF=\"nowe.gif\" STYLE=\"ICON\"/>");
  EXPECT_EQ(test_.Read("program\\Listy\\CHLogo.lst"), "stare.gif\r\nnowe.gif\r\n");
}

TEST_F(ChannelLogo, TheFileComesFromItsButton) {
  EXPECT_EQ(ChosenFile("<LOGO HREF=\"\">", "itemsFile", "Items", "work\\rys\\z.gif"), "rys/z.gif");
}

}  // namespace
}  // namespace morlan
