#include "platform/posix/filenames.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "platform/encoding.h"

namespace morlan {
namespace {

struct Row {
  std::string_view native, name;
};

TEST(FileNames, HaveOneFormInTheProgramAndComeBack) {
  constexpr Row kRows[] = {
      {"strona.html", "strona.html"},
      {"Zażółć.html", "Zażółć.html"_pl},
      {"a→b", "a¤E2¤86¤92b"_pl},
      {"a\\b", "a¤5Cb"_pl},
      {"cena 5¤", "cena 5¤C2¤A4"_pl},
      {"a\xFFz", "a¤FFz"_pl},
      {"\xC5", "¤C5"_pl},
      {"a\nb", "a¤0Ab"_pl},
      {"o\xCC\x81", "o¤CC¤81"_pl},
      {"\xC2\x81", "\x81"},
      {"", ""},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(NameFromNative(row.native), row.name);
    EXPECT_EQ(NameToNative(row.name), row.native);
  }
}

TEST(FileNames, ASignThatStartsNoEscapeStandsForItself) {
  EXPECT_EQ(NameToNative("¤"_pl), "¤");
  EXPECT_EQ(NameToNative("¤4"_pl), "¤4");
  EXPECT_EQ(NameToNative("¤zz"_pl), "¤zz");
  EXPECT_EQ(NameToNative("¤-1"_pl), "¤-1");
}

TEST(FileNames, NoSeparatorAndNoPlainCharacterComesOutOfAnEscape) {
  EXPECT_EQ(NameToNative("a¤2Fb"_pl), "a¤2Fb");
  EXPECT_EQ(NameToNative("a¤00b"_pl), "a¤00b");
  EXPECT_EQ(NameToNative("¤2E¤2E"_pl), "¤2E¤2E");
}

TEST(FileNames, EscapesOutliveAChangeOfLetterCase) { EXPECT_EQ(NameToNative("a¤e2¤86¤92b"_pl), "a→b"); }

TEST(FileNames, AnyBytesComeBackAndNoTwoNamesShareAForm) {
  std::mt19937 random(3);
  std::set<std::string> natives, names;
  for (int round = 0; round < 20000; ++round) {
    std::string native(1 + random() % 6, '\0');
    for (char& c : native)
      while (c == '\0' || c == '/') c = random() % 2 == 0 ? static_cast<char>(random() % 256) : "\xC2\xA4\xE2\\5C"[random() % 6];
    const std::string name = NameFromNative(native);
    ASSERT_EQ(NameToNative(name), native);
    natives.insert(native);
    names.insert(name);
  }
  EXPECT_EQ(natives.size(), names.size());
}

TEST(FileNames, PathsStartAtTheRootOfTheDrive) {
  EXPECT_EQ(PathFromNative("/home/ala/a.html"), "c:\\home\\ala\\a.html");
  EXPECT_EQ(PathFromNative("/"), "c:\\");
  EXPECT_EQ(PathFromNative("//a//b/"), "c:\\a\\b\\");
  EXPECT_EQ(PathFromNative("/a\\b"), "c:\\a¤5Cb"_pl);
}

TEST(FileNames, ThePathsOfTheProgramOnlyChangeTheirEncoding) {
  EXPECT_EQ(ProgramFormFromUtf8("c:\\żaba\\a¤FF"), "c:\\żaba\\a¤FF"_pl);
  EXPECT_EQ(ProgramFormFromUtf8("c:\\→"), "c:\\¤E2¤86¤92"_pl);
}

}  // namespace
}  // namespace morlan
