#include "text/charsetsource.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace morlan {
namespace {

const std::string kLetterRow = "litery | ę Ę ó Ó ą Ą ś Ś ł Ł ż Ż ź Ź ć Ć ń Ń\n";
const std::string kCodes = "EA CA F3 D3 B1 A1 B6 A6 B3 A3 BF AF BC AC E6 C6 F1 --";

std::string FaultsOf(const std::string& rows) {
  std::string faults;
  for (const std::string& fault : CompileCharSets({{"a.txt", kLetterRow + rows}}).faults) faults += fault + "\n";
  return faults;
}

TEST(CharSetSource, ARowIsARecord) {
  const CompiledCharSets compiled =
      CompileCharSets({{"a.txt", "# uwaga\r\n\n" + kLetterRow + "  iso  | " + kCodes + " 01  |  Środkowa Europa \r\n"}});
  EXPECT_TRUE(compiled.faults.empty());
  ASSERT_EQ(compiled.file.CharSetCount(), 1u);
  const CharSetRecord record = *compiled.file.CharSetByIndex(1);
  EXPECT_EQ(record.name, "iso");
  EXPECT_EQ(record.info, "Środkowa Europa"_pl);
  EXPECT_EQ(record.codes,
            (CharSetCodes{0xEA, 0xCA, 0xF3, 0xD3, 0xB1, 0xA1, 0xB6, 0xA6, 0xB3, 0xA3, 0xBF, 0xAF, 0xBC, 0xAC, 0xE6, 0xC6, 0xF1, 0, 1, 0}));
}

TEST(CharSetSource, SeveralTextsAreOneSource) {
  const CompiledCharSets compiled = CompileCharSets({{"a", kLetterRow + "a | " + kCodes + " | \n"}, {"b", "b | " + kCodes + " |"}});
  EXPECT_TRUE(compiled.faults.empty());
  EXPECT_EQ(compiled.file.CharSetNames(), (std::vector<std::string>{"a", "b"}));
}

TEST(CharSetSource, TellsFaultsByTheirLine) {
  EXPECT_EQ(FaultsOf("a | " + kCodes + "\n"), "a.txt:2: a set has a name, codes and a description\n");
  EXPECT_EQ(FaultsOf(" | " + kCodes + " | x\n"), "a.txt:2: the name is empty or too long\n");
  EXPECT_EQ(FaultsOf(std::string(41, 'n') + " | " + kCodes + " | x\n"), "a.txt:2: the name is empty or too long\n");
  EXPECT_EQ(FaultsOf("a | " + kCodes + " | " + std::string(101, 'i')), "a.txt:2: the description is too long\n");
  EXPECT_EQ(FaultsOf("a | EA CA | x"), "a.txt:2: the number of codes is wrong\n");
  EXPECT_EQ(FaultsOf("a | " + kCodes + " 01 02 03 | x"), "a.txt:2: the number of codes is wrong\n");
  EXPECT_EQ(FaultsOf("a | XY" + kCodes.substr(2) + " | x"), "a.txt:2: \"XY\" is no code\n");
  EXPECT_EQ(FaultsOf("a | E" + kCodes.substr(2) + " | x"), "a.txt:2: \"E\" is no code\n");
  EXPECT_EQ(FaultsOf("a | " + kCodes + " | x\n\na | " + kCodes + " | y"), "a.txt:4: \"a\" stands twice\n");
  EXPECT_EQ(FaultsOf("a | " + kCodes + " | \xE2\x86\x92"), "a.txt:2: a character that Windows-1250 lacks\n");
}

TEST(CharSetSource, TheRowOfLettersStandsFirstAndInOrder) {
  EXPECT_EQ(CompileCharSets({{"a", "x | " + kCodes + " | y"}}).faults, std::vector<std::string>{"a:1: the row of letters is missing"});
  const auto faults = CompileCharSets({{"a", "litery | Ę ę ó Ó ą Ą ś Ś ł Ł ż Ż ź Ź ć Ć ń Ń"}}).faults;
  EXPECT_EQ(faults, std::vector<std::string>{"a:1: the letters are not \"ę Ę ó Ó ą Ą ś Ś ł Ł ż Ż ź Ź ć Ć ń Ń\""});
}

TEST(CharSetSource, TheSourceOfAFileGivesTheFileAgain) {
  const CompiledCharSets compiled = CompileCharSets({{"a", kLetterRow + "dwa slowa | " + kCodes + " 01 | żółw\nb | " + kCodes + " |\n"}});
  const auto source = CharSetSourceOf(compiled.file);
  ASSERT_TRUE(source);
  EXPECT_EQ(CompileCharSets({{"a", *source}}).file.Bytes(), compiled.file.Bytes());
}

TEST(CharSetSource, ARecordThatCouldNotBeReadBackHasNoSource) {
  for (const char* name : {"", "a|b", "a\nb", "#a", "litery"}) {
    CharSetFile file;
    file.CharSetSave({name, "", {}});
    EXPECT_FALSE(CharSetSourceOf(file)) << name;
  }
}

}  // namespace
}  // namespace morlan
