// The file of tags: bytes that are written by hand, the chains, and what becomes of a damaged file.
#include "tags/propertyfile.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace morlan {
namespace {

std::string Field(std::string_view text, std::size_t width) { return std::string(text) + std::string(width - text.size(), ' '); }

std::string Number(std::uint32_t number) {
  std::string bytes;
  for (int i = 0; i < 4; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
  return bytes;
}

std::string TagBytes(std::string_view name, std::uint32_t next, std::uint32_t firstParam, std::string_view info = "") {
  return Field(name, 40) + Number(next) + Number(firstParam) + Field(info, 40);
}

std::string ParamBytes(std::string_view name, std::uint32_t next, char kind, std::string_view defaultValue = "",
                       std::uint32_t firstValue = 0, std::string_view flags = "310") {
  return Field(name, 40) + Number(next) + kind + Field(defaultValue, 80) + Field("", 80) + Number(firstValue) + std::string(flags);
}

std::string ValueBytes(std::string_view text, std::uint32_t next) { return Field(text, 80) + Number(next); }

std::vector<std::string> NamesOf(const PropertyFile& file) {
  std::vector<std::string> names;
  for (const TagRecord& tag : file.Tags()) names.push_back(tag.name);
  return names;
}

std::vector<std::string> ParamNamesOf(const PropertyFile& file, std::string_view tag) {
  std::vector<std::string> names;
  for (const ParamRecord& param : file.Params(file.FindTag(tag)).value_or(std::vector<ParamRecord>{{.name = "?"}}))
    names.push_back(param.name);
  return names;
}

using Names = std::vector<std::string>;

// Two tags; the second one has two parameters, the first of which has two values.
const std::string kSample = TagBytes("TABLE", 89, 0, "Tabela") + TagBytes("hr", 0, 177, "Linia") +
                            ParamBytes("align", 389, '2', "left", 601) + ParamBytes("noshade", 0, '4', "", 0, "311") +
                            ValueBytes("left", 685) + ValueBytes("right", 0);

TEST(PropertyFile, RecordsHaveTheirWidths) {
  EXPECT_EQ(TagBytes("a", 0, 0).size(), kTagRecordSize);
  EXPECT_EQ(ParamBytes("a", 0, '1').size(), kParamRecordSize);
  EXPECT_EQ(ValueBytes("a", 0).size(), kValueRecordSize);
}

TEST(PropertyFile, ReadsTheChains) {
  const PropertyFile file(kSample);
  EXPECT_EQ(NamesOf(file), (Names{"TABLE", "hr"}));
  EXPECT_EQ(file.Tags()[1].info, "Linia");
  const auto params = file.Params(89);
  ASSERT_TRUE(params && params->size() == 2);
  const ParamRecord align{.name = "align",
                          .kind = ParamKind::List,
                          .defaultValue = "left",
                          .listFile = "",
                          .values = {"left", "right"},
                          .dialogType = ParamDialog::AllFiles,
                          .dialogVisible = true,
                          .builtIn = false,
                          .position = 177};
  EXPECT_EQ((*params)[0], align);
  EXPECT_EQ((*params)[1].kind, ParamKind::Switch);
  EXPECT_TRUE((*params)[1].builtIn);
}

TEST(PropertyFile, NamesAreFoundWithoutRegardToCaseAndBlanks) {
  const PropertyFile file(kSample);
  EXPECT_EQ(file.FindTag("table"), 1u);
  EXPECT_EQ(file.FindTag(" HR "), 89u);
  EXPECT_EQ(file.FindTag("h"), 0u);
  EXPECT_EQ(file.FindTag(""), 0u);
  EXPECT_EQ(file.FindTag(" "), 0u);
}

TEST(PropertyFile, AFieldThatWasNeverWrittenIsEmpty) {
  EXPECT_EQ(TrimField(std::string_view("\0\0abc", 5)), "");
  EXPECT_EQ(TrimField("  abc  "), "abc");
  EXPECT_EQ(TrimField(std::string_view("\0abc", 4)), std::string_view("\0abc", 4));
  EXPECT_EQ(TrimField(""), "");
}

TEST(PropertyFile, UnknownDigitsReadAsAPlainFieldAndAsAllFiles) {
  const PropertyFile file(TagBytes("a", 0, 89) + ParamBytes("b", 0, 'x', "", 0, "9?x"));
  const auto params = file.Params(1);
  ASSERT_TRUE(params && params->size() == 1);
  EXPECT_EQ(params->front().kind, ParamKind::Text);
  EXPECT_EQ(params->front().dialogType, ParamDialog::AllFiles);
  EXPECT_FALSE(params->front().dialogVisible || params->front().builtIn);
}

TEST(PropertyFile, ANewTagIsAppendedAndLinkedBehindTheLast) {
  PropertyFile file(kSample);
  EXPECT_EQ(file.AddTag({"IMG", "Rysunek", 0}), kSample.size() + 1);
  std::string expected = kSample + TagBytes("IMG", 0, 0, "Rysunek");
  expected.replace(88 + 40, 4, Number(static_cast<std::uint32_t>(kSample.size() + 1)));
  EXPECT_EQ(file.Bytes(), expected);
  EXPECT_EQ(file.FindTag("img"), kSample.size() + 1);
}

TEST(PropertyFile, TheFirstTagBeginsTheFile) {
  for (const std::string_view old : {"", "short"}) {
    PropertyFile file{std::string(old)};
    EXPECT_EQ(file.AddTag({"A", "", 0}), 1u);
    EXPECT_EQ(file.Bytes(), TagBytes("A", 0, 0));
  }
}

TEST(PropertyFile, ATakenOrEmptyNameIsRefused) {
  PropertyFile file(kSample);
  EXPECT_EQ(file.AddTag({"Table", "", 0}), 0u);
  EXPECT_EQ(file.AddTag({"  ", "", 0}), 0u);
  EXPECT_EQ(file.AddParam(89, {.name = "ALIGN"}), 0u);
  EXPECT_EQ(file.AddParam(89, {.name = ""}), 0u);
  EXPECT_EQ(file.AddParam(5, {.name = "x"}), 0u);
  EXPECT_EQ(file.Bytes(), kSample);
}

TEST(PropertyFile, LongTextsAreCutToTheirFields) {
  PropertyFile file;
  const std::string longText(100000, 'x');
  const std::uint32_t tag = file.AddTag({longText, longText, 0});
  EXPECT_EQ(file.Tags()[0].name, std::string(40, 'x'));
  EXPECT_EQ(file.Tags()[0].info, std::string(40, 'x'));
  EXPECT_NE(file.AddParam(tag, {.name = longText, .defaultValue = longText, .listFile = longText, .values = {longText}}), 0u);
  const ParamRecord param = file.Params(tag)->front();
  EXPECT_EQ(param.name, std::string(40, 'x'));
  EXPECT_EQ(param.defaultValue, std::string(80, 'x'));
  EXPECT_EQ(param.listFile, std::string(80, 'x'));
  EXPECT_EQ(param.values, Names{std::string(80, 'x')});
}

TEST(PropertyFile, ARemovedTagIsUnlinked) {
  PropertyFile file(kSample);
  file.AddTag({"img", "", 0});
  EXPECT_TRUE(file.RemoveTag(file.FindTag("hr")));
  EXPECT_EQ(NamesOf(file), (Names{"TABLE", "img"}));
  EXPECT_EQ(NamesOf(PropertyFile(file.Bytes())), (Names{"TABLE", "img"}));
  EXPECT_FALSE(file.RemoveTag(2));
}

TEST(PropertyFile, TheSecondTagTakesThePlaceOfARemovedFirstOne) {
  PropertyFile file(kSample);
  EXPECT_TRUE(file.RemoveTag(1));
  EXPECT_EQ(file.FindTag("hr"), 1u);
  EXPECT_EQ(ParamNamesOf(file, "hr"), (Names{"align", "noshade"}));
  EXPECT_TRUE(file.RemoveTag(1));
  EXPECT_EQ(file.Bytes(), "");
}

TEST(PropertyFile, ParametersAreAddedAndUnlinked) {
  PropertyFile file(kSample);
  EXPECT_NE(file.AddParam(89, {.name = "width", .values = {"1", "2", "3"}}), 0u);
  EXPECT_NE(file.AddParam(1, {.name = "border"}), 0u);
  EXPECT_EQ(ParamNamesOf(file, "hr"), (Names{"align", "noshade", "width"}));
  EXPECT_EQ(ParamNamesOf(file, "table"), Names{"border"});
  EXPECT_EQ(file.Params(89)->back().values, (Names{"1", "2", "3"}));
  EXPECT_TRUE(file.RemoveParam(89, "NOSHADE"));
  EXPECT_TRUE(file.RemoveParam(89, "align"));
  EXPECT_FALSE(file.RemoveParam(89, "align"));
  EXPECT_EQ(ParamNamesOf(PropertyFile(file.Bytes()), "hr"), Names{"width"});
}

TEST(PropertyFile, AReplacedParameterKeepsItsPlace) {
  PropertyFile file(kSample);
  EXPECT_TRUE(file.ReplaceParam(89, "align", {.name = "valign", .kind = ParamKind::List, .values = {"top", "middle", "bottom"}}));
  EXPECT_EQ(ParamNamesOf(file, "hr"), (Names{"valign", "noshade"}));
  EXPECT_EQ(file.Params(89)->front().values, (Names{"top", "middle", "bottom"}));
  EXPECT_EQ(file.Params(89)->front().position, 177u);
  EXPECT_TRUE(file.ReplaceParam(89, "valign", {.name = "valign"}));
  EXPECT_TRUE(file.Params(89)->front().values.empty());
  EXPECT_FALSE(file.ReplaceParam(89, "valign", {.name = "noshade"})) << "that name is taken";
  EXPECT_FALSE(file.ReplaceParam(89, "x", {.name = "y"}));
}

TEST(PropertyFile, ATagIsBuiltInWhileOneOfItsParametersIs) {
  PropertyFile file(kSample);
  EXPECT_TRUE(file.IsBuiltIn(89));
  EXPECT_FALSE(file.IsBuiltIn(1));
  file.RemoveParam(89, "noshade");
  EXPECT_FALSE(file.IsBuiltIn(89));
}

TEST(PropertyFile, TheInfoOfATagIsWrittenInItsPlace) {
  PropertyFile file(kSample);
  EXPECT_TRUE(file.SetInfo(89, "Pozioma kreska"));
  EXPECT_EQ(PropertyFile(file.Bytes()).Tags()[1].info, "Pozioma kreska");
  EXPECT_EQ(file.Bytes().size(), kSample.size());
}

TEST(PropertyFile, AChainOfTagsEndsWhereItLeavesTheFileOrComesRound) {
  EXPECT_EQ(NamesOf(PropertyFile(TagBytes("a", 89, 0) + TagBytes("b", 1, 0))), (Names{"a", "b"}));
  EXPECT_EQ(NamesOf(PropertyFile(TagBytes("a", 1, 0))), Names{"a"});
  EXPECT_EQ(NamesOf(PropertyFile(TagBytes("a", 4000000000u, 0))), Names{"a"});
  EXPECT_EQ(NamesOf(PropertyFile(TagBytes("a", 2, 0))), Names{"a"});
  EXPECT_EQ(NamesOf(PropertyFile(kSample.substr(0, 87))), Names{});
}

TEST(PropertyFile, ADamagedChainIsMendedByTheNextTag) {
  PropertyFile file(TagBytes("a", 4000000000u, 0));
  file.AddTag({"b", "", 0});
  EXPECT_EQ(NamesOf(PropertyFile(file.Bytes())), (Names{"a", "b"}));
}

TEST(PropertyFile, ATagWhoseParametersAreDamagedHasNone) {
  const auto paramsOf = [](const std::string& bytes) { return PropertyFile(bytes).Params(1); };
  EXPECT_FALSE(paramsOf(TagBytes("a", 0, 90)));                                                            // beyond the file
  EXPECT_FALSE(paramsOf(TagBytes("a", 0, 89) + ParamBytes("b", 89, '1')));                                 // a circle
  EXPECT_FALSE(paramsOf(TagBytes("a", 0, 89) + ParamBytes("b", 0, '2', "", 5000)));                        // values beyond the file
  EXPECT_FALSE(paramsOf(TagBytes("a", 0, 89) + ParamBytes("b", 0, '2', "", 301) + ValueBytes("v", 301)));  // values in a circle
  EXPECT_FALSE(paramsOf((TagBytes("a", 0, 89) + ParamBytes("b", 0, '1')).substr(0, 299)));                 // cut short
}

TEST(PropertyFile, ManyParametersThatShareALongListOfValuesAreNoWork) {
  std::string bytes = TagBytes("a", 0, 89);
  constexpr std::uint32_t kMany = 5000;
  const std::uint32_t firstValue = 89 + kMany * 212;
  for (std::uint32_t i = 0; i < kMany; ++i) bytes += ParamBytes("b", i + 1 == kMany ? 0 : 89 + (i + 1) * 212, '2', "", firstValue);
  for (std::uint32_t i = 0; i < kMany; ++i) bytes += ValueBytes("v", i + 1 == kMany ? 0 : firstValue + (i + 1) * 84);
  EXPECT_FALSE(PropertyFile(bytes).Params(1));
}

TEST(PropertyFile, ValuesThatLieOnEachOtherAreReplacedWithoutHarm) {
  // The second value begins within the first one, so writing that destroys the link to what follows.
  PropertyFile file(TagBytes("a", 0, 89) + ParamBytes("b", 0, '2', "", 301) + ValueBytes("v", 303) + Field("", 80));
  file.ReplaceParam(1, "b", {.name = "b", .kind = ParamKind::List, .values = {std::string(80, 'x'), std::string(80, 'y'), "z"}});
  EXPECT_GE(file.Bytes().size(), 88u + 212 + 84);
  EXPECT_EQ(NamesOf(file), Names{"a"});
}

TEST(PropertyFile, EveryShortenedFileIsReadWithoutHarm) {
  for (std::size_t length = 0; length <= kSample.size(); ++length) {
    PropertyFile file(kSample.substr(0, length));
    for (const TagRecord& tag : file.Tags()) file.Params(tag.position);
    const bool whole = length >= 88;
    EXPECT_EQ(file.FindTag("table") != 0, whole);
    EXPECT_NE(file.AddTag({"nowy", "", 0}), 0u);
  }
}

}  // namespace
}  // namespace morlan
