#include "text/charsetfile.h"

#include <gtest/gtest.h>

#include <string>

namespace morlan {
namespace {

// A record as it lies in the file, put together by hand.
std::string Record(std::string name, std::string info, std::string codes) {
  name.resize(40, ' ');
  info.resize(100, ' ');
  codes.resize(20, '\0');
  return std::string(2, '\0') + name + info + codes + std::string(22, ' ');
}

CharSetRecord Simple(std::string_view name, unsigned char code) {
  CharSetRecord record{std::string(name), "Opis", {}};
  record.codes.fill(code);
  return record;
}

TEST(CharSetFile, ReadsTheFieldsOfARecord) {
  const CharSetFile file(Record("iso-8859-2", "Latin 2", "\xEA\xCA\xF3"));
  ASSERT_EQ(file.CharSetCount(), 1u);
  const CharSetRecord record = *file.CharSetByIndex(1);
  EXPECT_EQ(record.name, "iso-8859-2");
  EXPECT_EQ(record.info, "Latin 2");
  EXPECT_EQ(record.codes[0], 0xEA);
  EXPECT_EQ(record.codes[2], 0xF3);
  EXPECT_EQ(record.codes[3], 0);
  EXPECT_EQ(record.codes[19], 0);
}

TEST(CharSetFile, WritesARecordOf184Bytes) {
  CharSetFile file;
  ASSERT_TRUE(file.CharSetSave({"nowy", "m\xF3j", {{0xEA, 0xCA}}}));
  EXPECT_EQ(file.Bytes(), Record("nowy", "m\xF3j", "\xEA\xCA"));
}

TEST(CharSetFile, RecordsAreNumberedFromOne) {
  const CharSetFile file(Record("a", "", "") + Record("b", "", ""));
  EXPECT_FALSE(file.CharSetByIndex(0));
  EXPECT_EQ(file.CharSetByIndex(2)->name, "b");
  EXPECT_FALSE(file.CharSetByIndex(3));
}

TEST(CharSetFile, NamesAreComparedWithoutTheBlanksRoundThem) {
  const CharSetFile file(Record("  dwa slowa ", "", ""));
  EXPECT_TRUE(file.CharSetByName("dwa slowa"));
  EXPECT_FALSE(file.CharSetByName("Dwa slowa"));
  EXPECT_FALSE(file.CharSetByName("dwa"));
}

TEST(CharSetFile, OfEqualNamesTheFirstIsFound) {
  const CharSetFile file(Record("a", "1", "") + Record("a", "2", ""));
  EXPECT_EQ(file.CharSetByName("a")->info, "1");
}

TEST(CharSetFile, SavingOverwritesTheRecordOfThatName) {
  const std::string other = Record("inny", "", "");
  std::string marked = Record("nowy", "", "");
  marked[0] = 7, marked[183] = 'z';
  CharSetFile file(other + marked + other);
  ASSERT_TRUE(file.CharSetSave(Simple("nowy", 0xB1)));
  EXPECT_EQ(file.CharSetCount(), 3u);
  EXPECT_EQ(*file.CharSetByName("nowy"), Simple("nowy", 0xB1));
  EXPECT_EQ(file.Bytes()[184], 7) << "what is not read stays";
  EXPECT_EQ(file.Bytes()[2 * 184 - 1], 'z');
  EXPECT_EQ(file.Bytes().substr(2 * 184), other);
}

TEST(CharSetFile, SavingANewNameAppends) {
  CharSetFile file(Record("a", "", ""));
  ASSERT_TRUE(file.CharSetSave(Simple("b", 1)));
  EXPECT_EQ(file.CharSetNames(), (std::vector<std::string>{"a", "b"}));
}

TEST(CharSetFile, TextsAreCutToTheirFields) {
  CharSetFile file;
  ASSERT_TRUE(file.CharSetSave({std::string(50, 'n'), std::string(200, 'i'), {}}));
  ASSERT_TRUE(file.CharSetSave({std::string(50, 'n'), "", {}})) << "found again by its cut name";
  EXPECT_EQ(file.CharSetNames(), std::vector<std::string>{std::string(40, 'n')});
  EXPECT_EQ(file.Bytes().size(), 184u);
}

TEST(CharSetFile, ARecordThatIsCutShortDoesNotCount) {
  CharSetFile file(Record("a", "", "") + "reszta");
  EXPECT_EQ(file.CharSetCount(), 1u);
  ASSERT_TRUE(file.CharSetSave(Simple("b", 1)));
  EXPECT_EQ(file.CharSetByIndex(2)->name, "b") << "the new record takes the place of the rest";
  EXPECT_EQ(file.Bytes().size(), 2 * 184u);
}

TEST(CharSetFile, AnOversizedFileIsNone) {
  EXPECT_EQ(CharSetFile(std::string(kLargestCharSetFile + 1, ' ')).CharSetCount(), 0u);
  CharSetFile full(std::string(kLargestCharSetFile, ' '));
  EXPECT_GT(full.CharSetCount(), 0u);
  EXPECT_FALSE(full.CharSetSave(Simple("b", 1))) << "there is no room for one more";
}

TEST(CharSetFile, AnEmptyFileHasNothing) {
  EXPECT_EQ(CharSetFile().CharSetCount(), 0u);
  EXPECT_FALSE(CharSetFile().CharSetByName(""));
  EXPECT_TRUE(CharSetFile().CharSetNames().empty());
}

}  // namespace
}  // namespace morlan
