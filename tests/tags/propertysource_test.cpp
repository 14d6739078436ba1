#include "tags/propertysource.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace morlan {
namespace {

using Faults = std::vector<std::string>;

CompiledProperties Compiled(std::string_view source) { return CompileProperties({{"a.txt", std::string(source)}}); }

// The attributes of a tag of a source without faults.
std::vector<ParamRecord> ParamsOf(const CompiledProperties& compiled, std::string_view tag) {
  EXPECT_EQ(compiled.faults, Faults());
  auto params = compiled.file.Params(compiled.file.FindTag(tag)).value_or(std::vector<ParamRecord>());
  for (ParamRecord& param : params) param.position = 0;
  return params;
}

std::string NamesOf(const std::vector<ParamRecord>& params) {
  std::string names;
  for (const ParamRecord& param : params) names += Concat({names.empty() ? "" : " ", param.name});
  return names;
}

// A built-in attribute as it comes from a line without details.
ParamRecord Param(std::string_view name, ParamKind kind) {
  ParamRecord param;
  param.name = name;
  param.kind = kind;
  param.builtIn = true;
  return param;
}

TEST(PropertySource, ATagHasANameAndATextThatMayHoldBlanks) {
  const auto compiled = Compiled("znacznik  ol   Lista numerowana  \n");
  ASSERT_EQ(compiled.file.Tags().size(), 1u);
  EXPECT_EQ(compiled.file.Tags()[0].name, "ol");
  EXPECT_EQ(compiled.file.Tags()[0].info, "Lista numerowana");
}

TEST(PropertySource, TheTextAboutATagIsWindows1250InTheFile) { EXPECT_EQ(Compiled("znacznik p Żółw\n").file.Tags().at(0).info, "Żółw"_pl); }

TEST(PropertySource, TagsComeInTheOrderOfTheirNames) {
  const auto compiled = CompileProperties({{"1", "znacznik ul\nznacznik a\n"}, {"2", "znacznik li\n"}});
  std::string names;
  for (const TagRecord& tag : compiled.file.Tags()) names += tag.name + " ";
  EXPECT_EQ(names, "a li ul ");
}

TEST(PropertySource, EachKindHasItsWord) {
  const auto params = ParamsOf(Compiled("znacznik x\n a kolor\n b tekst\n c lista\n d plik Tags\n e przełącznik\n f zdarzenie\n"
                                        " g styl\n h okno strony\n"),
                               "x");
  ASSERT_EQ(params.size(), 8u);
  for (std::size_t i = 0; i < params.size(); ++i) EXPECT_EQ(params[i].kind, static_cast<ParamKind>(i)) << params[i].name;
}

TEST(PropertySource, AListHasItsValuesAndADefault) {
  ParamRecord expected = Param("shape", ParamKind::List);
  expected.values = {"rect", "a b", "="};
  expected.defaultValue = "rect";
  EXPECT_EQ(ParamsOf(Compiled("znacznik area\n  shape lista rect \"a b\" \"=\" = rect\n"), "area"), std::vector{expected});
}

TEST(PropertySource, AListFromAFileHasTheNameOfTheFile) {
  ParamRecord expected = Param("href", ParamKind::ListFromFile);
  expected.listFile = "HREF";
  EXPECT_EQ(ParamsOf(Compiled("znacznik a\n  href plik HREF\n"), "a"), std::vector{expected});
}

TEST(PropertySource, ASwitchIsOffUnlessTheSourceSaysOtherwise) {
  const auto params = ParamsOf(Compiled("znacznik x\n off przełącznik\n on przełącznik = TRUE\n none przełącznik = \"\"\n"), "x");
  ASSERT_EQ(params.size(), 3u);
  EXPECT_EQ(params[0].defaultValue, "FALSE");
  EXPECT_EQ(params[1].defaultValue, "TRUE");
  EXPECT_EQ(params[2].defaultValue, "");
}

TEST(PropertySource, ADialogHasItsTypeAndItsButtonUnlessHidden) {
  const auto params = ParamsOf(Compiled("znacznik x\n a okno kolor\n b okno grafika\n c okno strony\n d okno wszystkie ukryte\n"), "x");
  ASSERT_EQ(params.size(), 4u);
  EXPECT_EQ(params[0].dialogType, ParamDialog::Colour);
  EXPECT_EQ(params[1].dialogType, ParamDialog::Pictures);
  EXPECT_EQ(params[2].dialogType, ParamDialog::Pages);
  EXPECT_EQ(params[3].dialogType, ParamDialog::AllFiles);
  EXPECT_TRUE(params[0].dialogVisible);
  EXPECT_FALSE(params[3].dialogVisible);
}

TEST(PropertySource, WhatIsMarkedAsNewCanBeRemovedAndTheRestIsBuiltIn) {
  const auto params = ParamsOf(Compiled("znacznik x\n nowy a tekst\n \"nowy\" tekst\n"), "x");
  ASSERT_EQ(params.size(), 2u);
  EXPECT_FALSE(params[0].builtIn);
  EXPECT_EQ(params[1].name, "nowy");
  EXPECT_TRUE(params[1].builtIn);
}

TEST(PropertySource, AGroupGivesWhatTheTagDoesNotHaveYetAndCountsOnce) {
  const auto compiled = Compiled(
      "znacznik x\n  id lista 1 2\n  + all\n  + some\n  own tekst\n"
      "grupa some\n  id tekst\n  lang tekst\n"
      "grupa all\n  + some\n  title tekst\n");
  const auto params = ParamsOf(compiled, "x");
  EXPECT_EQ(NamesOf(params), "id lang title own");
  EXPECT_EQ(params.at(0).kind, ParamKind::List);
}

TEST(PropertySource, GroupsThatHoldEachOtherEnd) {
  EXPECT_EQ(NamesOf(ParamsOf(Compiled("grupa a\n + b\n p tekst\ngrupa b\n + a\n q tekst\nznacznik x\n + a\n"), "x")), "q p");
}

TEST(PropertySource, CommentsEmptyLinesLineEndsAndAByteOrderMarkDoNotCount) {
  EXPECT_EQ(NamesOf(ParamsOf(Compiled("\xEF\xBB\xBF# one\r\n\r\nznacznik x\r\n  # two\r\n  a tekst\r\n   \r\n  b tekst"), "x")), "a b");
}

TEST(PropertySource, AWordInQuotesHoldsAnyCharacter) {
  const auto params = ParamsOf(Compiled("znacznik x\n  a tekst = \"\\\"\\\\ \\x0d\\x0A#ą\"\n"), "x");
  EXPECT_EQ(params.at(0).defaultValue, Concat({"\"\\ \r\n#", "ą"_pl}));
}

struct BadSource {
  const char* source;
  const char* fault;
};

class BadPropertySource : public testing::TestWithParam<BadSource> {};

TEST_P(BadPropertySource, IsToldWithItsPlace) {
  EXPECT_EQ(Compiled(GetParam().source).faults, Faults{GetParam().fault}) << GetParam().source;
}

constexpr BadSource kBadSources[] = {
    {"tag x\n", "a.txt:1: \"tag\" begins neither a tag nor a group"},
    {"\n  a tekst\n", "a.txt:2: stands before the first tag"},
    {"znacznik\n", "a.txt:1: a name is missing"},
    {"znacznik \" \" x\n", "a.txt:1: a name is missing"},
    {"znacznik \"x\n", "a.txt:1: a word in quotes does not end, or holds a wrong \\"},
    {"znacznik x \"y\n", "a.txt:1: a word in quotes does not end, or holds a wrong \\"},
    {"znacznik x\nznacznik y\nznacznik X\n", "a.txt:3: \"X\" stands twice"},
    {"grupa x\n\ngrupa x\n", "a.txt:3: \"x\" stands twice"},
    {"grupa x y\n", "a.txt:1: a group has no text about it"},
    {"znacznik x\n a\n", "a.txt:2: an attribute needs a name and a kind"},
    {"znacznik x\n nowy a\n", "a.txt:2: an attribute needs a name and a kind"},
    {"znacznik x\n a text\n", "a.txt:2: \"text\" is no kind of attribute"},
    {"znacznik x\n a \"tekst\"\n", "a.txt:2: \"tekst\" is no kind of attribute"},
    {"znacznik x\n a tekst b\n", "a.txt:2: \"b\" has no meaning for this kind"},
    {"znacznik x\n a tekst =\n", "a.txt:2: \"=\" needs one value behind it"},
    {"znacznik x\n a tekst = b c\n", "a.txt:2: \"=\" needs one value behind it"},
    {"znacznik x\n a tekst = \"b\n", "a.txt:2: a word in quotes does not end, or holds a wrong \\"},
    {"znacznik x\n a tekst = \"\\n\"\n", "a.txt:2: a word in quotes does not end, or holds a wrong \\"},
    {"znacznik x\n a tekst = \"\\x1\"\n", "a.txt:2: a word in quotes does not end, or holds a wrong \\"},
    {"znacznik x\n a przełącznik = true\n", "a.txt:2: a switch is TRUE or FALSE, not \"true\""},
    {"znacznik x\n a lista b c b\n", "a.txt:2: the value \"b\" stands twice"},
    {"znacznik x\n a plik\n", "a.txt:2: a list from a file needs the file's name and nothing else"},
    {"znacznik x\n a okno\n", "a.txt:2: a dialog needs one of kolor, grafika, strony, wszystkie"},
    {"znacznik x\n a okno strony kolor\n", "a.txt:2: a dialog needs one of kolor, grafika, strony, wszystkie"},
    {"znacznik x\n a tekst\n A tekst\n", "a.txt:3: \"a\" stands twice"},
    {"grupa g\n a tekst\nznacznik x\n + g\n a tekst\n", "a.txt:5: \"a\" comes from a group above already"},
    {"znacznik x\n +\n", "a.txt:2: \"+\" needs the name of one group"},
    {"znacznik x\n + g\n", "a.txt:2: there is no group \"g\""},
    {"znacznik x\n\ta tekst\n", "a.txt:2: holds a tab where a blank is meant"},
    {"znacznik x\n a tekst = π\n", "a.txt:2: holds a character that Windows-1250 lacks"},
    {"znacznik x\n a tekst = \xFF\n", "a.txt:2: holds a character that Windows-1250 lacks"},
    {"znacznik żółw\nznacznik ŻÓŁW\n", "a.txt:2: \"ŻÓŁW\" stands twice"},
};
INSTANTIATE_TEST_SUITE_P(Sources, BadPropertySource, testing::ValuesIn(kBadSources));

TEST(PropertySource, WhatDoesNotFitItsFieldIsAFault) {
  const std::string name(41, 'n'), value(81, 'v');
  EXPECT_EQ(Compiled("znacznik " + name + "\n").faults, Faults{"a.txt:1: \"" + name + "\" is longer than 40"});
  EXPECT_EQ(Compiled("znacznik x " + name + "\n").faults, Faults{"a.txt:1: \"" + name + "\" is longer than 40"});
  EXPECT_EQ(Compiled("znacznik x\n " + name + " tekst\n").faults, Faults{"a.txt:2: \"" + name + "\" is longer than 40"});
  EXPECT_EQ(Compiled("znacznik x\n a tekst = " + value + "\n").faults, Faults{"a.txt:2: \"" + value + "\" is longer than 80"});
  EXPECT_EQ(Compiled("znacznik x\n a lista " + value + "\n").faults, Faults{"a.txt:2: \"" + value + "\" is longer than 80"});
  EXPECT_EQ(Compiled("znacznik x\n a plik " + value + "\n").faults, Faults{"a.txt:2: \"" + value + "\" is longer than 80"});
}

TEST(PropertySource, AWidthCountsCharactersNotBytesOfUtf8) {
  std::string forty;
  for (int i = 0; i < 40; ++i) forty += "ż";
  EXPECT_EQ(Compiled("znacznik x " + forty + "\n").faults, Faults());
}

TEST(PropertySource, EachFaultIsToldAndTheRestIsRead) {
  const auto compiled = Compiled("znacznik\n a tekst\nznacznik x\n b text\n c tekst\n");
  EXPECT_EQ(compiled.faults, (Faults{"a.txt:1: a name is missing", "a.txt:4: \"text\" is no kind of attribute"}));
  EXPECT_EQ(NamesOf(compiled.file.Params(compiled.file.FindTag("x")).value()), "c");
}

TEST(PropertySource, IsWrittenAsItIsReadWithoutGroups) {
  constexpr std::string_view source =
      "znacznik a Odsyłacz lub etykieta\n"
      "  href plik HREF\n"
      "  color kolor = red\n"
      "  nowy nohref przełącznik\n"
      "  on przełącznik = TRUE\n"
      "  none przełącznik = \"\"\n"
      "  src okno grafika ukryte\n"
      "  rel lista next \"a b\" \"=\" \"+\" \"\" = next\n"
      "  \"nowy\" tekst = \"\\\"\\\\ \\x0D\"\n"
      "  \"two words\" tekst = a\\b\n"
      "  style styl\n"
      "  onclick zdarzenie\n"
      "\n"
      "znacznik \"b b\" \"\\\"x\\\" \\x09\"\n"
      "\n"
      "znacznik p\n"
      "  align lista\n";
  const auto compiled = Compiled(source);
  EXPECT_EQ(compiled.faults, Faults());
  EXPECT_EQ(PropertySourceOf(compiled.file), source);
}

TEST(PropertySource, BytesThatWindows1250LeavesFreeComeBack) {
  PropertyFile file;
  ParamRecord param;
  param.name = "\x81\x98";
  const std::uint32_t tag = file.AddTag({"x", ""});
  ASSERT_NE(file.AddParam(tag, param), 0u);
  const auto source = PropertySourceOf(file);
  ASSERT_TRUE(source);
  EXPECT_EQ(Compiled(*source).file.Bytes(), file.Bytes());
}

TEST(PropertySource, ADamagedTagHasNoSource) {
  PropertyFile file;
  ASSERT_NE(file.AddTag({"x", ""}), 0u);
  std::string bytes = file.Bytes();
  bytes[44] = 77;  // FirstParam, behind the end
  EXPECT_EQ(PropertySourceOf(PropertyFile(bytes)), std::nullopt);
}

TEST(PropertySource, NothingGivesNothing) {
  EXPECT_EQ(CompileProperties({}).file.Bytes(), "");
  EXPECT_EQ(PropertySourceOf(PropertyFile()), "");
}

}  // namespace
}  // namespace morlan
