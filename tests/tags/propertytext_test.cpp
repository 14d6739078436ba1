#include "tags/propertytext.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

TEST(PropertyText, ValuesStandInQuotesAndNumbersToo) {
  EXPECT_EQ(PropertyText({"Input", {{"type", ParamKind::List, "text"}, {"size", ParamKind::Text, "5"}}, {}, {}, {}}),
            "<Input type=\"text\" size=\"5\">");
}

TEST(PropertyText, EmptyValuesAreLeftOut) { EXPECT_EQ(PropertyText({"p", {{"id", ParamKind::Text, ""}}, {}, {}, {}}), "<p>"); }

TEST(PropertyText, ASwitchIsABareNameOrNothing) {
  const auto text = [](std::string_view value) { return PropertyText({"p", {{"on", ParamKind::Switch, std::string(value)}}, {}, {}, {}}); };
  EXPECT_EQ(text("TRUE"), "<p on>");
  EXPECT_EQ(text("true"), "<p on>");
  EXPECT_EQ(text("FALSE"), "<p>");
  EXPECT_EQ(text(""), "<p>");
  EXPECT_EQ(text("until-found"), "<p on=\"until-found\">") << "another value is not lost";
}

TEST(PropertyText, EventsStandBehindAttributesAndInFrontOfStyleAndClass) {
  EXPECT_EQ(PropertyText({"p", {{"id", ParamKind::Text, "a"}}, {{"onclick", ParamKind::Event, "f('x')"}}, "color: red;", "b"}),
            "<p id=\"a\" onclick=\"f('x')\" STYLE=\"color: red;\" CLASS=\"b\">");
}

TEST(PropertyText, AUsedStyleAndClassAreWrittenThoughTheyAreEmpty) {
  EXPECT_EQ(PropertyText({"p", {}, {}, "", ""}), "<p STYLE=\"\" CLASS=\"\">");
}

TEST(PropertyText, QuotesAndLineEndsWithinAValueStandAsTheyAre) {
  EXPECT_EQ(PropertyText({"p", {{"title", ParamKind::Text, "a\"b\r\nc"}}, {}, {}, {}}), "<p title=\"a\"b\r\nc\">");
}

TEST(ReadAttribute, NamesThatMayHoldBlanksAreReadInQuotesAlone) {
  for (const std::string_view name : {"src", "href", "face", "content", "name", "value", "alt", "SRC"}) {
    EXPECT_EQ(ReadAttribute(std::string("<x ") + std::string(name) + "=\"a b\"", name), "a b") << name;
    EXPECT_EQ(ReadAttribute(std::string("<x ") + std::string(name) + "=a", name), "") << name;
  }
  EXPECT_EQ(ReadAttribute("<x size=5", "size"), "5");
  EXPECT_EQ(ReadAttribute("<x onclick=\"f('a b')\"", "onclick"), "f('a b')");
  EXPECT_EQ(ReadAttribute("<x noshade", "noshade"), "true");
}

TEST(TagNameOf, TheNameIsTheFirstWord) {
  EXPECT_EQ(TagNameOf("<Input type=x"), "Input");
  EXPECT_EQ(TagNameOf("<input\r\ntype=x"), "input");
  EXPECT_EQ(TagNameOf("<input>"), "input");
  EXPECT_EQ(TagNameOf("</b"), "/b");
  EXPECT_EQ(TagNameOf("<"), "");
  EXPECT_EQ(TagNameOf(""), "");
}

}  // namespace
}  // namespace morlan
