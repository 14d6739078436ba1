#include "tags/taglist.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct EntryCase {
  std::string_view entry, open, close;
};

TEST(PairOfListEntry, PartsAtTwoDotsElseBehindAQuote) {
  constexpr EntryCase kCases[] = {
      {"b..c", "B", "C"},
      {"<b>..</b>", "<B>", "</B>"},
      {"<a href=\"\">", "<A HREF=\"", "\">"},
      {"<a href=\"..\">", "<A HREF=\"", "\">"},
      {"<br>", "<BR>", ""},
      {"łza"_pl, "ŁZA"_pl, ""},
      {"", "", ""},
      {"..", "", ""},
  };
  for (const EntryCase& row : kCases) {
    const ListedPair pair = PairOfListEntry(row.entry);
    EXPECT_EQ(pair.open, row.open) << row.entry;
    EXPECT_EQ(pair.close, row.close) << row.entry;
  }
}

class TagList : public testing::Test {
 protected:
  TagList() : test_(TestProgram::Start::No) {
    std::filesystem::create_directory(test_.folder.path / "program" / "Listy");
    test_.Write("program\\Listy\\Tags.lst", "<B>..</B>\r\n<BR>\r\n");
    test_.Write("program\\Listy\\User.lst", "<moj>\r\n");
    test_.Write("program\\Listy\\CF.lst", "<cf1>\r\n<cf2>\r\n");
    StartUp(test_.program);
  }
  void Press(std::string_view toolbar, std::string_view key) { EXPECT_TRUE(test_.frame().FindAs<ToolBar>(toolbar)->UserPresses(key)); }
  ComboBox& tags() { return test_.frame().tags; }
  TestProgram test_;
};

TEST_F(TagList, AButtonShowsItsListWithTheLastEntrySelected) {
  EXPECT_EQ(tags().Text(), "<BR>");
  Press("Toolbar10", "user");
  EXPECT_EQ(tags().Rows(), (std::vector<std::string>{"<moj>"}));
  EXPECT_EQ(test_.frame().currentTagList, "user");
  Press("Toolbar10", "tags1");
  EXPECT_EQ(tags().Text(), "<BR>");
}

TEST_F(TagList, AMissingListIsEmpty) {
  Press("Toolbar10", "asp");
  EXPECT_EQ(tags().ListCount(), 0u);
  EXPECT_EQ(tags().Text(), "");
}

TEST_F(TagList, PressingTheActiveButtonAgainDoesNothing) {
  tags().UserSelects(0);
  Press("Toolbar10", "tags1");
  EXPECT_EQ(tags().Text(), "<B>..</B>");
}

TEST_F(TagList, TheServerTagListIsReadAnewOnEachPressOnPurpose) {
  Press("Toolbar10", "cf");
  EXPECT_EQ(test_.frame().currentTagList, "cold");
  tags().UserSelects(0);
  Press("Toolbar10", "cf");
  EXPECT_EQ(tags().Text(), "<cf2>");
}

TEST_F(TagList, TheActiveButtonLooksPressed) {
  Press("Toolbar10", "cf");
  for (const ToolBar::Item& item : test_.frame().FindAs<ToolBar>("Toolbar10")->Items())
    EXPECT_EQ(item.pressed, item.key == "cf") << item.key;
}

TEST_F(TagList, InsertsWhatTheBoxHoldsRoundTheSelection) {
  test_.OpenText("abc").EditedText.Select(0, 3);
  tags().UserSelects(0);
  Press("Toolbar7", "tags1");
  EXPECT_EQ(test_.Text(), "<B>abc</B>");
}

TEST_F(TagList, ATypedEntryGrowsTheFileOfTheActiveList) {
  test_.OpenText("");
  Press("Toolbar10", "user");
  tags().UserSets("<nowy>");
  Press("Toolbar7", "tags1");
  EXPECT_EQ(test_.Text(), "<NOWY>");
  EXPECT_EQ(test_.Read("program\\Listy\\User.lst"), "<moj>\r\n<nowy>\r\n");
  EXPECT_EQ(test_.Read("program\\Listy\\Tags.lst"), "<B>..</B>\r\n<BR>\r\n");
  tags().UserSets("<NOWY>");
  Press("Toolbar7", "tags1");
  EXPECT_EQ(tags().ListCount(), 2u);
}

TEST_F(TagList, TheMenuHasTheSameCommands) {
  test_.OpenText("");
  EXPECT_TRUE(test_.program.commands.RunMenu("mn_taglist_user"));
  EXPECT_TRUE(test_.program.commands.RunMenu("mn_taglist_insert"));
  EXPECT_EQ(test_.Text(), "<MOJ>");
}

}  // namespace
}  // namespace morlan
