#include "tags/pairrows.h"

#include <gtest/gtest.h>

#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct ButtonCase {
  std::string_view toolbar, key, text;  // the text with "abc" selected, "|" where the caret ends
};

constexpr ButtonCase kButtons[] = {
    {"Toolbar1", "bold", "<B>|abc</B>"},
    {"Toolbar1", "italic", "<I>|abc</I>"},
    {"Toolbar1", "underline", "<U>|abc</U>"},
    {"Toolbar1", "right", "<P ALIGN=\"RIGHT\">|abc</P>"},
    {"Toolbar1", "center", "<CENTER>|abc</CENTER>"},
    {"Toolbar1", "justify", "<P STYLE=\"text-align:justify;\">|abc</P>"},
    {"Toolbar1", "strike", "<STRIKE>|abc</STRIKE>"},
    {"Toolbar1", "paragraph", "<P>|abc</P>"},
    {"Toolbar1", "nbr", "&nbsp;|abc"},
    {"Toolbar2", "big", "<FONT SIZE=+1>|abc</FONT>"},
    {"Toolbar2", "small", "<FONT SIZE=-1>|abc</FONT>"},
    {"Toolbar2", "sub", "<SUB>|abc</SUB>"},
    {"Toolbar2", "sup", "<SUP>|abc</SUP>"},
    {"Toolbar2", "pre", "<PRE>|abc</PRE>"},
    {"Toolbar2", "s", "<STRONG>|abc</STRONG>"},
    {"Toolbar2", "em", "<EM>|abc</EM>"},
    {"Toolbar2", "h1", "<H1>|abc</H1>"},
    {"Toolbar2", "h2", "<H2>|abc</H2>"},
    {"Toolbar2", "h3", "<H3>|abc</H3>"},
    {"Toolbar2", "h4", "<H4>|abc</H4>"},
    {"Toolbar2", "h5", "<H5>|abc</H5>"},
    {"Toolbar2", "h6", "<H6>|abc</H6>"},
    {"Toolbar2", "tt", "<TT>|abc</TT>"},
    {"Toolbar3", "caption", "<CAPTION>|abc</CAPTION>"},
    {"Toolbar3", "metatbl", "<TABLE>|abc</TABLE>"},
    {"Toolbar3", "metatr", "<TR>|abc</TR>"},
    {"Toolbar3", "metath", "<TH>|abc</TH>"},
    {"Toolbar3", "metatd", "<TD>|abc</TD>"},
    {"Toolbar4", "set", "<FRAMESET>|abc</FRAMESET>"},
    {"Toolbar4", "fra", "<FRAME>|abc"},
    {"Toolbar4", "no", "<NOFRAMES>|abc</NOFRAMES>"},
    {"Toolbar4", "if", "<IFRAME>|abc</IFRAME>"},
    {"Toolbar4", "base", "<BASE TARGET=\"|abc\">"},
    {"Toolbar6", "ul", "<UL>\r\n|abc\r\n</UL>"},
    {"Toolbar6", "ol", "<OL>|abc</OL>"},
    {"Toolbar6", "li", "<LI>|abc"},
    {"Toolbar6", "dt", "<DT>|abc"},
    {"Toolbar6", "dd", "<DD>|abc"},
    {"Toolbar6", "def", "<DL>\r\n <DT>  <DD>\r\n</DL>|abc"},
    {"Toolbar6", "menu", "<MENU>|abc\r\n</MENU>"},
    {"Toolbar11", "%", "<% |abc %>"},
    {"Toolbar11", "%=", "<%=|abc %>"},
    {"Toolbar11", "if", "<% if |abc %>"},
    {"Toolbar11", "else", "<% else |abc %>"},
    {"Toolbar11", "endif", "<% endif |abc %>"},
    {"Toolbar12", "if", "<CFIF>|abc</CFIF>"},
    {"Toolbar12", "eif", "<CFELSEIF>|abc</CFELSEIF>"},
    {"Toolbar12", "set", "<CFSET |abc>"},
    {"Toolbar12", "out", "<CFOUTPUT>|abc</CFOUTPUT>"},
    {"Toolbar12", "comment", "<!--- |abc--->"},
    {"Toolbar13", "map", "<MAP NAME=\"\">\r\n <AREA SHAPE=\"\" COORDS=\"\" HREF=\"\">\r\n|abc</MAP>"},
    {"Toolbar13", "object", "<OBJECT>|abc</OBJECT>"},
    {"Toolbar14", "noscript", "<NOSCRIPT>|abc</NOSCRIPT>"},
    {"Toolbar14", "write", "document.write(\"|abc\")"},
};

class Buttons : public testing::Test {
 protected:
  std::string Press(std::string_view toolbar, std::string_view key, std::size_t selected) {
    MlnEditor& editor = test_.OpenText("abc").EditedText;
    editor.Select(0, selected);
    EXPECT_TRUE(test_.frame().FindAs<ToolBar>(toolbar)->UserPresses(key)) << toolbar << " " << key;
    return test_.Text().insert(editor.SelStart(), "|");
  }
  TestProgram test_;
};

TEST_F(Buttons, InsertTheirPairs) {
  for (const ButtonCase& row : kButtons) EXPECT_EQ(Press(row.toolbar, row.key, 3), row.text) << row.toolbar << " " << row.key;
}

TEST_F(Buttons, TheServerElseIsMisspeltOnPurpose) { EXPECT_EQ(Press("Toolbar12", "else", 3), "<CFLESE>|abc</CFELSE>"); }

TEST_F(Buttons, AParagraphWithoutASelectionIsNotClosed) { EXPECT_EQ(Press("Toolbar1", "paragraph", 0), "<P>|abc"); }

// The dialogs that these open do not exist.
TEST_F(Buttons, WithoutACommandAreNotShown) {
  constexpr std::pair<std::string_view, std::string_view> kHidden[] = {
      {"Toolbar3", "tabelewizard"}, {"Toolbar4", "wizard"}, {"Toolbar6", "wizard"}, {"Toolbar14", "wizard"}};
  for (const auto& [toolbar, key] : kHidden)
    EXPECT_FALSE(test_.frame().FindAs<ToolBar>(toolbar)->UserPresses(key)) << toolbar << " " << key;
}

TEST_F(Buttons, EveryPairIsReachableFromAMenu) {
  const Menu& menu = test_.OpenText("").menu;
  for (const PairRow& row : PairRows()) {
    ASSERT_NE(menu.Find(row.menu), nullptr) << row.menu;
    EXPECT_TRUE(menu.Find(row.menu)->visible) << row.menu;
  }
}

struct MenuCase {
  std::string_view menu, text;
};

TEST_F(Buttons, TheQuickMenuHasPairsOfItsOwn) {
  constexpr MenuCase kEntries[] = {
      {"mn_edit_bold", "<B>|abc</B>"},
      {"mn_edit_italic", "<I>|abc</I>"},
      {"mn_edit_underline", "<U>|abc</U>"},
      {"mn_edit_strike", "<STRIKE>|abc</STRIKE>"},
      {"mn_edit_center", "<CENTER>|abc</CENTER>"},
      {"mn_edit_pre", "<PRE>|abc</PRE>"},
      {"mn_edit_big", "<BIG>|abc</BIG>"},
      {"mn_edit_small", "<SMALL>|abc</SMALL>"},
      {"mn_edit_right", "<P ALIGN=RIGHT>|abc</P>"},
      {"mn_edit_left", "<P ALIGN=LEFT>|abc</P>"},
      {"mn_justify", "<P STYLE=\"text-align:justify;\">|abc</P>"},
      {"mn_header1", "<H1>|abc</H1>"},
      {"mn_header6", "<H6>|abc</H6>"},
      {"mn_index_down", "<SUB>|abc</SUB>"},
      {"mn_index_up", "<SUP>|abc</SUP>"},
      {"mn_changetoaddress", "<A HREF=\"abc\">|abc</A>"},
  };
  for (const MenuCase& row : kEntries) {
    MlnEditor& editor = test_.OpenText("abc").EditedText;
    editor.Select(0, 3);
    EXPECT_TRUE(test_.program.commands.RunMenu(row.menu)) << row.menu;
    EXPECT_EQ(test_.Text().insert(editor.SelStart(), "|"), row.text) << row.menu;
  }
}

TEST_F(Buttons, ColoursOfTheQuickMenuAreWrittenAsTheirWords) {
  constexpr MenuCase kColours[] = {
      {"mn_aqua", "Aqua"},       {"mn_black", "Black"},   {"mn_Blue", "Blue"},   {"mn_brown", "Brown"},
      {"mn_fuchsia", "Fuchsia"}, {"mn_gray", "Gray"},     {"mn_green", "Green"}, {"mn_lime", "Lime"},
      {"mn_maroon", "Maroon"},   {"mn_navy", "Navy"},     {"mn_olive", "Olive"}, {"mn_purple", "Purple"},
      {"mn_red", "Red"},         {"mn_silver", "Silver"}, {"mn_white", "White"}, {"mn_yellow", "Yellow"},
  };
  for (const MenuCase& row : kColours) {
    test_.OpenText("");
    EXPECT_TRUE(test_.program.commands.RunMenu(row.menu)) << row.menu;
    EXPECT_EQ(test_.Text(), "<FONT COLOR=\"" + std::string(row.text) + "\"></FONT>");
  }
}

TEST_F(Buttons, MagentaIsMisspeltOnPurpose) {
  test_.OpenText("");
  test_.program.commands.RunMenu("mn_magneta");
  EXPECT_EQ(test_.Text(), "<FONT COLOR=\"Magneta\"></FONT>");
}

}  // namespace
}  // namespace morlan
