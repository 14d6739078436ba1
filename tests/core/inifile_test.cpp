#include "core/inifile.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/memoryfiles.h"

namespace morlan {
namespace {

constexpr std::string_view kHeader = "[Orvil Dantrel's - MORLAN - INI File (C)1997]\r\n";
constexpr std::string_view kStore = "c:\\sklep.ini";

class INIFileTest : public testing::Test {
 protected:
  INIFileTest() : ini(files) { ini.Init(kStore); }

  void Put(std::string_view text) { ASSERT_TRUE(files.Write(kStore, text)); }
  std::string Text() { return files.Read(kStore).value_or("(no file)"); }

  MemoryFiles files;
  INIFile ini;
};

// --- fast look-up

TEST_F(INIFileTest, FastLookUpTakesTheRestOfTheLineUntrimmed) {
  Put("[Document]\r\nPath= c:\\a b \r\nNext=1\r\n");
  EXPECT_EQ(ini.GetSubItemValue("Document", "Path"), " c:\\a b ");
}

TEST_F(INIFileTest, FastLookUpOfAMissingFileAnswersWithTheErrorValueAndLeavesAnEmptyFile) {
  ini.SetError("???");
  EXPECT_EQ(ini.GetSubItemValue("A", "B"), "???");
  EXPECT_EQ(files.Size(kStore), 0u);
}

TEST_F(INIFileTest, InitTouchesNoFileAndClearsTheErrorValue) {
  ini.SetError("???");
  ini.Init("c:\\inny.ini");
  EXPECT_FALSE(files.Size("c:\\inny.ini"));
  EXPECT_EQ(ini.FileName(), "c:\\inny.ini");
  EXPECT_EQ(ini.GetSubItemValue("A", "B"), "");
}

TEST_F(INIFileTest, NamesAreFoundInAnyLetterCaseAndTheValueKeepsItsOwn) {
  Put("[Łąka]\r\nŚciana=WarTość\r\n"_pl);
  EXPECT_EQ(ini.GetSubItemValue("łĄKA"_pl, "śCIANA"_pl), "WarTość"_pl);
}

TEST_F(INIFileTest, FastLookUpMatchesTheTailOfALongerName) {
  Put("[A]\r\nProgramPath=x\r\nPath=y\r\n");
  EXPECT_EQ(ini.GetSubItemValue("A", "Path"), "x");
}

TEST_F(INIFileTest, FastLookUpMatchesInsideAValue) {
  Put("[A]\r\nFirst=Path=z\r\nPath=y\r\n");
  EXPECT_EQ(ini.GetSubItemValue("A", "Path"), "z");
}

TEST_F(INIFileTest, FastLookUpDoesNotSkipBlanksInFrontOfTheEqualsSign) {
  Put("[A]\r\nName =value\r\n");
  EXPECT_EQ(ini.GetSubItemValue("A", "Name"), "");
  EXPECT_EQ(ini.GetSubItemValue("A", "Name "), "value");
}

TEST_F(INIFileTest, TheItemIsMatchedAnywhereInTheFile) {
  Put("Note=see [A] below\r\nB=1\r\n");
  EXPECT_EQ(ini.GetSubItemValue("A", "B"), "1");
}

TEST_F(INIFileTest, TheFastLookUpStopsAtTheNextItem) {
  Put("[A]\r\nX=1\r\n[B]\r\nY=2\r\n");
  EXPECT_EQ(ini.GetSubItemValue("A", "Y"), "");
  EXPECT_EQ(ini.GetSubItemValue("B", "Y"), "2");
}

TEST_F(INIFileTest, TheHeaderLineCountsAsAnItem) {
  Put(Concat({kHeader, "X=1\r\n"}));
  EXPECT_EQ(ini.GetSubItemValue("Orvil Dantrel's - MORLAN - INI File (C)1997", "X"), "1");
}

TEST_F(INIFileTest, ABracketInAValueHidesTheSubItemsBehindIt) {
  Put("[A]\r\nX=a[1]\r\nY=2\r\n");
  EXPECT_EQ(ini.GetSubItemValue("A", "X"), "a[1]");
  EXPECT_EQ(ini.GetSubItemValue("A", "Y"), "");
}

TEST_F(INIFileTest, AKeyAtTheSectionEndItselfIsStillFound) {
  Put("[A]\r\n[B=5\r\n");
  EXPECT_EQ(ini.GetSubItemValue("A", "[B"), "5");
}

TEST_F(INIFileTest, AValueWithAnEqualsSignComesBackWhole) {
  Put("[A]\r\nX=a=b=c\r\n");
  EXPECT_EQ(ini.GetSubItemValue("A", "X"), "a=b=c");
}

TEST_F(INIFileTest, AnUnterminatedLastValueLosesItsLastCharacter) {
  Put("[A]\r\nX=abc");
  EXPECT_EQ(ini.GetSubItemValue("A", "X"), "ab");
  Put("[A]\r\nX=a");
  EXPECT_EQ(ini.GetSubItemValue("A", "X"), "");
}

TEST_F(INIFileTest, AKeyThatIsTheVeryEndOfTheFileGivesTheEmptyStringAndNotTheErrorValue) {
  Put("[A]\r\nX=");
  ini.SetError("???");
  EXPECT_EQ(ini.GetSubItemValue("A", "X"), "");
}

TEST_F(INIFileTest, AMissingItemOrSubItemGivesTheErrorValue) {
  Put("[A]\r\nX=1\r\n");
  ini.SetError("brak");
  EXPECT_EQ(ini.GetSubItemValue("B", "X"), "brak");
  EXPECT_EQ(ini.GetSubItemValue("A", "Y"), "brak");
}

TEST_F(INIFileTest, NothingIsCachedBetweenLookUps) {
  Put("[A]\r\nX=1\r\n");
  INIFile other(files);
  other.Init(kStore);
  EXPECT_EQ(ini.GetSubItemValue("A", "X"), "1");
  other.SetSubItemValue("A", "X", "2");
  EXPECT_EQ(ini.GetSubItemValue("A", "X"), "2");
}

// --- fast rewrite

TEST_F(INIFileTest, SettingInAMissingFileStartsWithAnEmptyLineAndHasNoHeader) {
  ini.SetSubItemValue("Item", "Sub", "v");
  EXPECT_EQ(Text(), "\r\n[Item]\r\nSub=v\r\n");
}

TEST_F(INIFileTest, SettingInAnEmptyFileStartsWithAnEmptyLine) {
  Put("");
  ini.SetSubItemValue("Item", "Sub", "v");
  EXPECT_EQ(Text(), "\r\n[Item]\r\nSub=v\r\n");
}

TEST_F(INIFileTest, ANewItemIsPartedByAnEmptyLine) {
  Put("[A]\r\nX=1\r\n");
  ini.SetSubItemValue("B", "Y", "2");
  EXPECT_EQ(Text(), "[A]\r\nX=1\r\n\r\n[B]\r\nY=2\r\n");
}

TEST_F(INIFileTest, ANewSubItemGoesLastInItsItem) {
  Put("[A]\r\nX=1\r\n[B]\r\nY=2\r\n");
  ini.SetSubItemValue("a", "Z", "3");
  EXPECT_EQ(Text(), "[A]\r\nX=1\r\nZ=3\r\n[B]\r\nY=2\r\n");
  ini.SetSubItemValue("B", "W", "4");
  EXPECT_EQ(Text(), "[A]\r\nX=1\r\nZ=3\r\n[B]\r\nY=2\r\nW=4\r\n");
}

TEST_F(INIFileTest, TheCallersSpellingReplacesTheFiles) {
  Put("[A]\r\nname=1\r\n");
  ini.SetSubItemValue("A", "NAME", "22");
  EXPECT_EQ(Text(), "[A]\r\nNAME=22\r\n");
}

TEST_F(INIFileTest, AShorterTextLeavesTheOldLastBytesBehind) {
  Put("[A]\r\nB=1000\r\n");
  ini.SetSubItemValue("A", "B", "1");
  EXPECT_EQ(Text(), "[A]\r\nB=1\r\n0\r\n");
  ini.SetSubItemValue("A", "C", "2");  // the fragment is part of the text from now on
  EXPECT_EQ(Text(), "[A]\r\nB=1\r\n0\r\nC=2\r\n");
}

TEST_F(INIFileTest, SettingMatchesTheTailOfALongerName) {
  Put("[A]\r\nProgramPath=x\r\nPath=z\r\n");
  ini.SetSubItemValue("A", "Path", "y");
  EXPECT_EQ(Text(), "[A]\r\nProgramPath=y\r\nPath=z\r\n");
}

TEST_F(INIFileTest, ASubItemAddedToAnUnterminatedFileJoinsTheLastLine) {
  Put("[A]\r\nX=1");
  ini.SetSubItemValue("A", "Y", "2");
  EXPECT_EQ(Text(), "[A]\r\nX=1Y=2\r\n");
}

TEST_F(INIFileTest, SettingOnTheUnterminatedLastLineRepeatsTheOldText) {
  Put("[A]\r\nX=1");
  ini.SetSubItemValue("A", "X", "2");
  EXPECT_EQ(Text(), "[A]\r\nX=2[A]\r\nX=1");
}

TEST_F(INIFileTest, ABracketInAValueMovesNewSubItemsIntoItsLine) {
  Put("[A]\r\nX=a[1]\r\nY=2\r\n");
  ini.SetSubItemValue("A", "Z", "3");
  EXPECT_EQ(Text(), "[A]\r\nX=aZ=3\r\n[1]\r\nY=2\r\n");
}

TEST_F(INIFileTest, ASubItemBehindTheSectionEndIsAddedAnew) {
  Put("[A]\r\n[B]\r\nX=1\r\n");
  ini.SetSubItemValue("A", "X", "2");
  EXPECT_EQ(Text(), "[A]\r\nX=2\r\n[B]\r\nX=1\r\n");
}

TEST_F(INIFileTest, SettingWhatCannotBeWrittenChangesNothing) {
  Put("[A]\r\nX=1\r\n");
  files.failWrites = true;
  ini.SetSubItemValue("A", "X", "2");
  EXPECT_EQ(Text(), "[A]\r\nX=1\r\n");
}

// --- line look-up

TEST_F(INIFileTest, LineLookUpRemovesBlanksFromTheFilesName) {
  Put("[A]\r\n N a me = v \r\n");
  EXPECT_EQ(ini.GetSubItemValueSlow("a", "name"), " v ");
}

TEST_F(INIFileTest, LineLookUpComparesWholeNames) {
  Put("[A]\r\nProgramPath=x\r\nPath=y\r\n");
  EXPECT_EQ(ini.GetSubItemValueSlow("A", "Path"), "y");
}

TEST_F(INIFileTest, LineLookUpGoesOnIntoTheFollowingItems) {
  Put("X=0\r\n[A]\r\n[B]\r\nX=1\r\n");
  EXPECT_EQ(ini.GetSubItemValueSlow("A", "X"), "1");
}

TEST_F(INIFileTest, LineLookUpKeepsTheLastCharacterOfAnUnterminatedLine) {
  Put("[A]\r\nX=abc");
  EXPECT_EQ(ini.GetSubItemValueSlow("A", "X"), "abc");
}

TEST_F(INIFileTest, ALoneLfEndsNoLine) {
  Put("[A]\r\nX=a\nY=b\r\n");
  EXPECT_EQ(ini.GetSubItemValueSlow("A", "X"), "a\nY=b");
  EXPECT_EQ(ini.GetSubItemValueSlow("A", "Y"), "");
}

TEST_F(INIFileTest, LineLookUpOfAMissingFileMakesAStoreWithItsHeader) {
  ini.SetError("!");
  EXPECT_EQ(ini.GetSubItemValueSlow("A", "X"), "!");
  EXPECT_EQ(Text(), kHeader);
}

// --- items and sub-items by lines

TEST_F(INIFileTest, CreateFileDropsFormerContent) {
  Put("[A]\r\nX=1\r\n");
  ini.CreateFile();
  EXPECT_EQ(Text(), kHeader);
}

TEST_F(INIFileTest, CreateItemAddsAtTheEndOnce) {
  Put("[A]\r\n");
  ini.CreateItem("B");
  ini.CreateItem("b");
  EXPECT_EQ(Text(), "[A]\r\n[B]\r\n");
}

TEST_F(INIFileTest, CreateItemComparesWholeLines) {
  Put("[ Name ]\r\n");
  ini.CreateItem("Name");
  EXPECT_EQ(Text(), "[ Name ]\r\n[Name]\r\n");
}

TEST_F(INIFileTest, CreateItemDoesNotEndAnUnterminatedLastLine) {
  Put("[A]\r\nX=1");
  ini.CreateItem("B");
  EXPECT_EQ(Text(), "[A]\r\nX=1[B]\r\n");
}

TEST_F(INIFileTest, CreateItemInAMissingFileComesBehindTheHeader) {
  ini.CreateItem("A");
  EXPECT_EQ(Text(), Concat({kHeader, "[A]\r\n"}));
}

struct CreateSubItemRow {
  std::string_view before, item, subItem, after;
};

class CreateSubItemTest : public testing::TestWithParam<CreateSubItemRow> {};

TEST_P(CreateSubItemTest, RewritesTheStore) {
  const CreateSubItemRow& row = GetParam();
  MemoryFiles files;
  ASSERT_TRUE(files.Write(kStore, row.before));
  INIFile ini(files);
  ini.Init(kStore);
  ini.CreateSubItem(row.item, row.subItem);
  EXPECT_EQ(files.Read(kStore), row.after);
  EXPECT_FALSE(files.Size("inifile.tmp"));
}

INSTANTIATE_TEST_SUITE_P(AddsInFrontOfTheNextItem, CreateSubItemTest,
                         testing::Values(CreateSubItemRow{"[A]\r\nX=1\r\n[B]\r\n", "a", "Y", "[A]\r\nX=1\r\nY=\r\n[B]\r\n"},
                                         CreateSubItemRow{"[A]\r\nX=1\r\n", "A", "Y", "[A]\r\nX=1\r\nY=\r\n"},
                                         CreateSubItemRow{"[A]\r\n", "A", "Y", "[A]\r\nY=\r\n"},
                                         CreateSubItemRow{"[A]\r\n[B]\r\nY=1\r\n", "A", "Y", "[A]\r\nY=\r\n[B]\r\nY=1\r\n"}));
INSTANTIATE_TEST_SUITE_P(TheFrontOfALongerNameCountsAsPresent, CreateSubItemTest,
                         testing::Values(CreateSubItemRow{"[A]\r\nPathName=1", "A", "path", "[A]\r\nPathName=1"},
                                         CreateSubItemRow{"[A]\r\nPath=1\r\n", "A", "Path", "[A]\r\nPath=1\r\n"}));
INSTANTIATE_TEST_SUITE_P(ALaterItemIsNoPresence, CreateSubItemTest,
                         testing::Values(CreateSubItemRow{"Y=0\r\n[A]\r\n", "A", "Y", "Y=0\r\n[A]\r\nY=\r\n"}));
INSTANTIATE_TEST_SUITE_P(AMissingItemAddsNothingButEndsTheLastLine, CreateSubItemTest,
                         testing::Values(CreateSubItemRow{"[A]\r\nX=1", "B", "Y", "[A]\r\nX=1\r\n"}));
INSTANTIATE_TEST_SUITE_P(TheLineThatEndsAnItemIsTestedItself, CreateSubItemTest,
                         testing::Values(CreateSubItemRow{"[A]\r\n[A]\r\n", "A", "Y", "[A]\r\nY=\r\n[A]\r\nY=\r\n"},
                                         CreateSubItemRow{"[A]\r\n[A]\r\nY=1\r\n", "A", "Y", "[A]\r\n[A]\r\nY=1\r\n"}));

TEST_F(INIFileTest, SetSubItemValue2KeepsTheSpellingAndTheBlanksOfTheName) {
  Put("[A]\r\nName = x\r\nOther=1\r\nName=second\r\n");
  ini.SetSubItemValue2("A", "name", "y");
  EXPECT_EQ(Text(), "[A]\r\nName =y\r\nOther=1\r\nName=second\r\n");
  EXPECT_FALSE(files.Size("inifile.tmp"));
}

TEST_F(INIFileTest, SetSubItemValue2OnANameWithALeadingBlankAddsAnEmptyOneAndRewritesTheOld) {
  Put("[A]\r\n Name = x\r\n");
  ini.SetSubItemValue2("A", "Name", "y");
  EXPECT_EQ(Text(), "[A]\r\n Name =y\r\nName=\r\n");
}

TEST_F(INIFileTest, SetSubItemValue2MakesItemAndSubItem) {
  ini.SetSubItemValue2("A", "X", "1");
  EXPECT_EQ(Text(), Concat({kHeader, "[A]\r\nX=1\r\n"}));
}

TEST_F(INIFileTest, RemoveSubItemDropsTheFirstMatchOnlyEvenInALaterItem) {
  Put("[A]\r\n[B]\r\nX = 1\r\nX=2\r\n");
  ini.RemoveSubItem("A", "x");
  EXPECT_EQ(Text(), "[A]\r\n[B]\r\nX=2\r\n");
}

TEST_F(INIFileTest, RemoveSubItemMakesAMissingItem) {
  Put("[A]\r\nX=1\r\n");
  ini.RemoveSubItem("B", "X");
  EXPECT_EQ(Text(), "[A]\r\nX=1\r\n[B]\r\n");
}

TEST_F(INIFileTest, AFullDiskLeavesTheStoreWhole) {
  Put("[A]\r\nX=1\r\n");
  files.failWrites = true;
  ini.SetSubItemValue2("A", "X", "2");
  ini.RemoveSubItem("A", "X");
  ini.CreateSubItem("A", "Y");
  EXPECT_EQ(Text(), "[A]\r\nX=1\r\n");
}

TEST_F(INIFileTest, TheTemporaryFileLiesInTheCurrentDirectory) {
  files.CreateDirectory("c:\\gdzie");
  files.ChangeDirectory("c:\\gdzie");
  ini.OpenTmp();
  EXPECT_EQ(files.Size("c:\\gdzie\\inifile.tmp"), 0u);
  ini.KillTmp();
  EXPECT_FALSE(files.Size("c:\\gdzie\\inifile.tmp"));
}

TEST_F(INIFileTest, ARelativeStoreFollowsTheCurrentDirectory) {
  ini.Init("a.ini");
  files.CreateDirectory("c:\\tam");
  files.ChangeDirectory("c:\\tam");
  ini.SetSubItemValue("A", "X", "1");
  EXPECT_EQ(files.Read("c:\\tam\\a.ini"), "\r\n[A]\r\nX=1\r\n");
}

TEST_F(INIFileTest, OpenAndCloseKeepTheFile) {
  Put("[A]\r\n");
  ini.OpenFile();
  ini.CloseFile();
  ini.AppendFile();
  ini.CloseFile();
  EXPECT_EQ(Text(), "[A]\r\n");
}

TEST_F(INIFileTest, KillSpacesRemovesBlanksWhereverTheyStand) {
  EXPECT_EQ(INIFile::KillSpaces(" a b  c\t "), "abc\t");
  EXPECT_EQ(INIFile::KillSpaces(""), "");
}

}  // namespace
}  // namespace morlan
