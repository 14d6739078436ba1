#include "text/charsets.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

CharSetRecord Set(std::string name, std::initializer_list<unsigned char> codes) {
  CharSetRecord record{std::move(name), "", {}};
  std::copy(codes.begin(), codes.end(), record.codes.begin());
  return record;
}

struct CharSets : testing::Test {
  CharSets() {
    file.CharSetSave(Set("Win1250", {0xEA, 0xCA}));
    file.CharSetSave(Set("inny", {0x91, 0x90}));
    file.CharSetSave(Set("pusty", {}));
  }
  TellStatus Heard() {
    return [this](std::string_view message) { heard.push_back(ToUtf8(message)); };
  }
  CharSetFile file;
  std::vector<std::string> heard;
};

TEST_F(CharSets, ConvertsBetweenTwoSetsOfTheFile) {
  EXPECT_EQ(ConvertCharSet(file, "\xEA\xCA x", "Win1250", "inny"), "\x91\x90 x");
  EXPECT_EQ(ConvertCharSet(file, "\x91\x90 x", "inny", "Win1250"), "\xEA\xCA x");
}

TEST_F(CharSets, TheTargetAsciiLeavesTheTextAsItStands) {
  EXPECT_EQ(ConvertCharSet(file, "\xEA", "Win1250", "ASCII", Heard()), "\xEA");
  EXPECT_TRUE(heard.empty()) << "without a word";
}

TEST_F(CharSets, ARecordWithoutCodesConvertsNothing) {
  EXPECT_EQ(ConvertCharSet(file, "\xEA", "Win1250", "pusty"), "\xEA");
  EXPECT_EQ(ConvertCharSet(file, "\xEA", "pusty", "Win1250"), "\xEA");
}

TEST_F(CharSets, AnUnknownNameConvertsNothing) {
  EXPECT_EQ(ConvertCharSet(file, "\xEA", "Win1250", "nie ma"), "\xEA");
  EXPECT_EQ(ConvertCharSet(file, "\xEA", "win1250", "inny"), "\xEA") << "names are compared as they stand";
}

TEST_F(CharSets, TellsThePercentOfTheTwentyPlaces) {
  ConvertCharSet(file, "", "inny", "Win1250", Heard());
  ASSERT_EQ(heard.size(), 22u);
  EXPECT_EQ(heard[0], "Konwersja pliku...");
  EXPECT_EQ(heard[1], "Konwersja pliku z inny do Win1250...5");
  EXPECT_EQ(heard[20], "Konwersja pliku z inny do Win1250...100");
  EXPECT_EQ(heard[21], "");
}

TEST_F(CharSets, TellsTheWorkOnUtf8) {
  EXPECT_EQ(ConvertUtf8("\xEA", Utf8Direction::ToUtf8, Heard()), "ę");
  ASSERT_EQ(heard.size(), 19u);
  EXPECT_EQ(heard[0], "Konwersja pliku z Windows-1250 do UniCode...5 %");
  EXPECT_EQ(heard[17], "Konwersja pliku z Windows-1250 do UniCode...100 %");
  EXPECT_EQ(heard[18], "");
  heard.clear();
  EXPECT_EQ(ConvertUtf8("ę", Utf8Direction::FromUtf8, Heard()), "\xEA");
  EXPECT_EQ(heard[17], "Konwersja pliku z UniCode do Windows-1250...100 %");
}

TEST_F(CharSets, TellsTheWorkOnSymbols) {
  EXPECT_EQ(ConvertToSymbols("\xEA", file.CharSetByIndex(1)->codes, Heard()), "&#234");
  EXPECT_EQ(ConvertFromSymbols("&#234", Heard()).text, "\xEA");
  EXPECT_EQ(heard, (std::vector<std::string>{"Konwertuje do symboli...", "", "Konwertuje z symboli", ""}));
}

TEST_F(CharSets, ABusyStatusEndsReady) {
  TestProgram test;
  const TellStatus status = StatusLine(test.program);
  status("Konwersja");
  EXPECT_EQ(test.frame().statusBar.PanelText("status"), "Konwersja");
  EXPECT_TRUE(test.windows.busyPointer);
  status("");
  EXPECT_EQ(test.frame().statusBar.PanelText("status"), "Gotowy");
  EXPECT_FALSE(test.windows.busyPointer);
}

TEST_F(CharSets, TheProgramsFileIsReadAndWritten) {
  TestProgram test;
  EXPECT_EQ(LoadCharSets(test.program).CharSetCount(), 0u) << "where it is missing";
  ASSERT_TRUE(SaveCharSet(test.program, Set("a", {1})));
  ASSERT_TRUE(SaveCharSet(test.program, Set("b", {2})));
  EXPECT_EQ(LoadCharSets(test.program).CharSetNames(), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(test.Read("program\\CharSets.Def").size(), 2 * kCharSetRecordSize);
}

TEST_F(CharSets, AFileThatIsTooLongIsNotWrittenOver) {
  TestProgram test;
  const std::string bytes(kLargestCharSetFile + 1, 'x');
  test.Write("program\\CharSets.Def", bytes);
  EXPECT_EQ(LoadCharSets(test.program).CharSetCount(), 0u);
  EXPECT_FALSE(SaveCharSet(test.program, Set("a", {1})));
  EXPECT_EQ(test.Read("program\\CharSets.Def"), bytes);
}

}  // namespace
}  // namespace morlan
