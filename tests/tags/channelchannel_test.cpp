#include "tags/channelchannel.h"

#include "tests/support/tageditorfixture.h"

namespace morlan {
namespace {

class ChannelChannel : public TagEditorTest {};

TEST_F(ChannelChannel, EmptyAttributesAndALevelOfZeroAreLeftOut) {
  EXPECT_EQ(ChannelAttributes({}), "");
  EXPECT_EQ(ChannelAttributes({.base = "b", .href = "h", .level = "2"}), " BASE=\"b\" HREF=\"h\" Level=\"2\"");
  for (const std::string_view level : {"0", "abc", " "})
    EXPECT_EQ(ChannelAttributes({.base = "", .href = "", .level = std::string(level)}), "");
}

TEST_F(ChannelChannel, ATagThatIsWrittenAnewHasASecondBlankOnPurpose) {
  ExpectRoundTrip("<CHANNEL  BASE=\"http://a.pl/\" HREF=\"a.html\" Level=\"2\">");
  EXPECT_EQ(Rewritten("<channel level=1 base=http://a.pl/ self=x>"), "<CHANNEL  BASE=\"http://a.pl/\" Level=\"1\">");
  EXPECT_EQ(Rewritten("<CHANNEL LEVEL=\"0\">"), "<CHANNEL >");
}

TEST_F(ChannelChannel, AnAddressOfALabelLosesItsSignOnPurpose) {
  EXPECT_EQ(Rewritten("<CHANNEL HREF=\"#gora\">"), "<CHANNEL  HREF=\"gora\">");
}

TEST_F(ChannelChannel, CancelLeavesTheDocumentAlone) {
  ExpectCancelKeeps("<CHANNEL LEVEL=\"0\">");
  ExpectCancelInsertsNothing("Toolbar15", "channeldlg");
}

TEST_F(ChannelChannel, ANewOneGoesRoundTheSelection) {
  EXPECT_EQ(Inserted("Toolbar15", "channeldlg"), "<CHANNEL>x\r\n</CHANNEL>");
  EXPECT_EQ(Inserted("Toolbar15", "channeldlg", {{"Base", "b"}, {"HREF", "h"}, {"Level", "1"}}),
            "<CHANNEL BASE=\"b\" HREF=\"h\" Level=\"1\">x\r\n</CHANNEL>");
}

TEST_F(ChannelChannel, TheFileComesFromItsButton) { EXPECT_EQ(ChosenFile("<CHANNEL>", "hrefFile", "HREF", "work\\s\\a.html"), "s/a.html"); }

}  // namespace
}  // namespace morlan
