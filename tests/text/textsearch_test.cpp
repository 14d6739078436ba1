#include "text/textsearch.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace morlan {
namespace {

using Hit = std::optional<std::size_t>;

struct TextSearch : testing::Test {
  MlnEditor editor;
  Hit FindAt(std::string_view text, std::size_t from, int options = 0) {
    return FindInText(editor, text, from, static_cast<std::uint8_t>(options));
  }
};

TEST_F(TextSearch, AHitAtTheStartingPlaceCounts) {
  editor.SetText("ala ala");
  EXPECT_EQ(FindAt("ala", 0), Hit(0));
  EXPECT_EQ(FindAt("ala", 1), Hit(4));
  EXPECT_EQ(FindAt("ala", 5), std::nullopt);
}

TEST_F(TextSearch, AnEmptyTextIsNotFound) {
  editor.SetText("ala");
  EXPECT_EQ(FindAt("", 0), std::nullopt);
}

TEST_F(TextSearch, CaseCountsOnlyWhenAsked) {
  editor.SetText(std::string("ŁÓDŹ łódź"_pl));
  EXPECT_EQ(FindAt("łódź"_pl, 0), Hit(0));
  EXPECT_EQ(FindAt("łódź"_pl, 0, kMatchCase), Hit(5));
}

TEST_F(TextSearch, AWholeWordHasNoLetterDigitOrUnderscoreBesideIt) {
  editor.SetText(std::string("kota _kot kot2 żkot kot"_pl));
  EXPECT_EQ(FindAt("kot", 0, kWholeWords), Hit(20));
  EXPECT_EQ(FindAt("KOT", 0, kWholeWords + kMatchCase), std::nullopt);
}

TEST_F(TextSearch, FindsOnBothSidesOfTheGapAndAcrossIt) {
  for (std::size_t gap = 0; gap <= 12; ++gap) {
    editor.SetText("xxabcdexabcd");
    editor.Select(gap, 0);
    editor.SetSelText("-");
    editor.Select(gap, 1);
    editor.SetSelText("");
    ASSERT_EQ(editor.FrontText().size(), gap);
    EXPECT_EQ(FindAt("abcd", 0), Hit(2)) << "gap at " << gap;
    EXPECT_EQ(FindAt("ABCD", 3), Hit(8)) << "gap at " << gap;
    EXPECT_EQ(FindAt("abcd", 9), std::nullopt) << "gap at " << gap;
    EXPECT_EQ(FindAt("x", 1), Hit(1)) << "gap at " << gap;
  }
}

}  // namespace
}  // namespace morlan
