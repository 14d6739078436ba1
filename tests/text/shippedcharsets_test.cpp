// The file of character sets that comes with the program, against an independent converter and a second table of those sets
// that the converter does not know.
#include <gtest/gtest.h>
#include <iconv.h>

#include <fstream>
#include <iterator>
#include <map>
#include <optional>

#include "core/text.h"
#include "text/charsetfile.h"
#include "text/documentcharset.h"
#include "text/lettertables.h"
#include "text/similarityscore.h"

namespace morlan {
namespace {

const CharSetFile& Shipped() {
  static const CharSetFile file = [] {
    std::ifstream stream(MORLAN7_TREE "/CharSets.Def", std::ios::binary);
    return CharSetFile(std::string(std::istreambuf_iterator<char>(stream), {}));
  }();
  return file;
}

CharSetCodes CodesOf(std::string_view name) {
  const auto record = Shipped().CharSetByName(name);
  EXPECT_TRUE(record) << name;
  return record.value_or(CharSetRecord()).codes;
}

// The letters in a set by the converter; nothing where it does not know the set.
std::optional<std::string> LettersBy(const char* converter) {
  const iconv_t handle = iconv_open(converter, "UTF-8");
  if (handle == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
  std::string utf8 = ToUtf8(kNationalLetters), letters(64, '\0');
  char *from = utf8.data(), *to = letters.data();
  std::size_t left = utf8.size(), room = letters.size();
  EXPECT_EQ(iconv(handle, &from, &left, &to, &room), 0u) << converter;
  iconv_close(handle);
  letters.resize(letters.size() - room);
  return letters;
}

std::string AsText(const CharSetCodes& codes) { return std::string(codes.begin(), codes.begin() + kNationalLetters.size()); }

TEST(ShippedCharSets, TheBaseSetIsTheFirst) { EXPECT_EQ(Shipped().CharSetByIndex(1)->name, kBaseCharSet); }

TEST(ShippedCharSets, AgreeWithTheIndependentConverter) {
  struct Row {
    std::string_view name;
    const char* converter;
  };
  constexpr Row rows[] = {{"Win1250", "CP1250"},        {"windows-1250", "WINDOWS-1250"},  {"cp1250", "CP1250"},
                          {"iso-8859-2", "ISO-8859-2"}, {"iso-8859-16", "ISO-8859-16"},    {"cp852", "CP852"},
                          {"ibm852", "IBM852"},         {"x-mac-ce", "MAC-CENTRALEUROPE"}, {"x-mac-centraleurroman", "MAC-CENTRALEUROPE"}};
  for (const Row& row : rows) {
    const auto letters = LettersBy(row.converter);
    ASSERT_TRUE(letters) << row.converter;
    EXPECT_EQ(AsText(CodesOf(row.name)), *letters) << row.name;
  }
}

// By the order of the alphabet, as collections of Polish code tables print them: ą ć ę ł ń ó ś ź ż Ą Ć Ę Ł Ń Ó Ś Ź Ż.
TEST(ShippedCharSets, AgreeWithASecondTableInTheOrderOfTheAlphabet) {
  const std::map<std::string_view, std::string_view> rows = {
      {"mazovia", "\x86\x8D\x91\x92\xA4\xA2\x9E\xA6\xA7\x8F\x95\x90\x9C\xA5\xA3\x98\xA0\xA1"},
      {"fidomazovia", "\x86\x87\x91\x92\xA4\xA2\x9E\xA6\xA7\x8F\x95\x90\x9C\xA5\xA3\x98\xA0\xA1"},
      {"csk", "\xA0\xA1\xA2\xA3\xA4\xA5\xA6\xA8\xA7\x80\x81\x82\x83\x84\x85\x86\x88\x87"},
      {"cyfromat", "\x90\x91\x92\x93\x94\x95\x96\x98\x97\x80\x81\x82\x83\x84\x85\x86\x88\x87"},
      {"x-dhn", "\x89\x8A\x8B\x8C\x8D\x8E\x8F\x91\x90\x80\x81\x82\x83\x84\x85\x86\x88\x87"},
      {"iea", "\xA0\x9B\x82\x9F\xA4\xA2\x87\xA8\x91\x8F\x80\x90\x9C\xA5\x99\xEB\x9D\x92"},
      {"iinte-isis", "\x90\x91\x92\x93\x94\x95\x96\x97\x98\x80\x81\x82\x83\x84\x85\x86\x87\x88"},
      {"x-logic", "\x89\x8A\x8B\x8C\x8D\x8E\x8F\x90\x91\x80\x81\x82\x83\x84\x85\x86\x87\x88"},
      {"x-microvex", "\xA0\x9B\x82\x9F\xA4\xA2\x87\xA8\x91\x8F\x80\x90\x9C\xA5\x93\x98\x9D\x92"},
      {"ventura", "\x96\x94\xA4\xA7\x91\xA2\x84\x82\x87\x97\x99\xA5\xA6\x92\x8F\x8E\x90\x80"},
      {"elwro-junior", "\xE1\xE3\xE5\xEC\xEE\xEF\xF3\xFA\xF9\xC1\xC3\xC5\xCC\xCE\xCF\xD3\xDA\xD9"},
      {"amiga-pl", "\xE2\xEA\xEB\xEE\xEF\xF3\xF4\xFA\xFB\xC2\xCA\xCB\xCE\xCF\xD3\xD4\xDA\xDB"},
      {"xjp", "\xE6\xE7\xEA\xEE\xF1\xF3\xF5\xFB\xFE\xC6\xC7\xCA\xCE\xD1\xD3\xD5\xDB\xDE"},
      {"atari-calamus", "\xD1\xD2\xD3\xD4\xD5\xD6\xD7\xD8\xD9\xC1\xC2\xC3\xC4\xC5\xC6\xC7\xC8\xC9"},
      {"tex-pl", "\xA1\xA2\xA6\xAA\xAB\xF3\xB1\xB9\xBB\x81\x82\x86\x8A\x8B\xD3\x91\x99\x9B"},
  };
  constexpr std::string_view kAlphabet = "ąćęłńóśźżĄĆĘŁŃÓŚŹŻ"_pl;
  for (const auto& [name, row] : rows) {
    const CharSetCodes codes = CodesOf(name);
    for (std::size_t i = 0; i < kAlphabet.size(); ++i)
      EXPECT_EQ(codes[kNationalLetters.find(kAlphabet[i])], static_cast<unsigned char>(row[i]))
          << name << " " << ToUtf8(kAlphabet.substr(i, 1));
  }
}

TEST(ShippedCharSets, SetsWithoutLettersConvertNothing) {
  EXPECT_EQ(CodesOf("ascii"), CharSetCodes{});
  EXPECT_EQ(CodesOf("ascii-range"), CharSetCodes{});
}

TEST(ShippedCharSets, EachNameFindsItsOwnSet) {
  for (std::size_t index = 1; index <= Shipped().CharSetCount(); ++index) {
    const CharSetRecord record = *Shipped().CharSetByIndex(index);
    EXPECT_EQ(CharSetOfName(Shipped(), record.name).record.name, record.name);
    EXPECT_FALSE(record.info.empty()) << record.name;
    EXPECT_EQ(record.codes[18] + record.codes[19], 0) << record.name << " has spare codes";
  }
}

TEST(ShippedCharSets, OtherWellKnownNamesFindNoneThatChangesThem) {
  // By what is alike: pages of the neighbouring sets of Windows keep their bytes.
  for (const std::string_view name : {"windows-1251", "windows-1252", "cp1251", "cp1252", "cp437", "cp850"})
    EXPECT_EQ(CharSetOfName(Shipped(), name).record.codes, CodesOf(kBaseCharSet)) << name;
  for (const std::string_view name : {"koi8-r", "koi8-u", "big5", "gb2312", "euc-jp", "euc-kr", "shift_jis", "us-ascii", "utf8", "utf-16",
                                      "macintosh", "tis-620", "hz-gb-2312", "unicode", "iso"})
    EXPECT_EQ(CharSetOfName(Shipped(), name).kind, DeclaredCharSet::Kind::Unknown) << name;
}

// Sets whose letters lie among the codes of the edited text get mixed up, since letters are exchanged one after the other.
TEST(ShippedCharSets, TheExchangeLetterByLetterMixesTheseAndNoOthers) {
  const std::map<std::string, std::string> mixed = {
      {"cp852", "ąŹ"},        {"ibm852", "ąŹ"},       {"x-mac-ce", "śŚ"},    {"x-mac-centraleurroman", "śŚ"},
      {"mazovia", "ÓĄś"},     {"fidomazovia", "ÓĄś"}, {"csk", "ół"},         {"x-dhn", "śŚ"},
      {"iea", "Ąśł"},         {"x-logic", "śŚ"},      {"x-microvex", "Ąśł"}, {"ventura", "ĘÓ"},
      {"elwro-junior", "óÓ"}, {"amiga-pl", "ęĘ"},     {"xjp", "ąĄ"},         {"atari-calamus", "ęÓą"},
      {"tex-pl", "ą"}};
  for (const std::string& name : Shipped().CharSetNames()) {
    const auto row = mixed.find(name);
    EXPECT_EQ(ToUtf8(MixedLetters(CodesOf(name), CodesOf(kBaseCharSet))), row == mixed.end() ? "" : row->second) << name;
  }
}

}  // namespace
}  // namespace morlan
