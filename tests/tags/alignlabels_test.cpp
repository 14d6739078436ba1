#include "tags/alignlabels.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace morlan {
namespace {

struct LabelCase {
  std::string_view label, word;
};

TEST(AlignLabels, EveryLabelHasItsWord) {
  constexpr LabelCase kCases[] = {
      {"do lewej", "left"},
      {"z lewej", "left"},
      {"do prawej", "right"},
      {"z prawej", "right"},
      {"centruj", "center"},
      {"na środku"_pl, "center"},
      {"wycentrowane", "center"},
      {"formatuj jak tekst", "justify"},
      {"na lewej krawędzi okna"_pl, "bleedleft"},
      {"na prawej krawędzi okna"_pl, "bleedright"},
      {"w miejscu najbardziej dogodnym", "float"},
      {"podstawa linii", "bottom"},
      {"na dole", "bottom"},
      {"wysokość linii"_pl, "top"},
      {"na górze"_pl, "top"},
      {"u góry"_pl, "top"},
      {"u podstawy linii", "baseline"},
      {"do lewego marginesu", "l"},
      {"do prawego marginesu", "r"},
      {"wycentrowany", "c"},
      {"wyjustowany", "j"},
      {"gdziekolwiek", ""},
      {"", ""},
  };
  for (const LabelCase& row : kCases) {
    EXPECT_EQ(AlignLabelToHtml(row.label), row.word) << ToUtf8(row.label);
    EXPECT_EQ(VAlignLabelToHtml(row.label), row.word) << ToUtf8(row.label);
  }
}

TEST(AlignLabels, LetterCaseDoesNotCount) { EXPECT_EQ(AlignLabelToHtml("Na ŚRODKU"_pl), "center"); }

TEST(AlignLabels, RightReadsBackAsEmptyOnPurpose) {
  EXPECT_EQ(HtmlAlignToLabel("left"), "do lewej");
  EXPECT_EQ(HtmlAlignToLabel("center"), "centruj");
  EXPECT_EQ(HtmlAlignToLabel("right"), "");
  EXPECT_EQ(HtmlAlignToLabel("top"), "");
}

TEST(AlignLabels, TheTablesKeepTheOrderOfTheDialogs) {
  EXPECT_EQ(TableAlign, (std::array<std::string_view, 7>{"JUSTIFY", "BLEEDLEFT", "BLEEDRIGHT", "CENTER", "FLOAT", "LEFT", "RIGHT"}));
  EXPECT_EQ(TableVAlign, (std::array<std::string_view, 2>{"BOTTOM", "TOP"}));
  EXPECT_EQ(CaptionAlign, (std::array<std::string_view, 4>{"L", "R", "C", "J"}));
  EXPECT_EQ(CaptionVAlign, (std::array<std::string_view, 5>{"TOP", "BOTTOM", "LEFT", "RIGHT", "CENTER"}));
  EXPECT_EQ(RowVAlign, (std::array<std::string_view, 2>{"BOTTOM", "TOP"}));
  EXPECT_EQ(CellVAlign, (std::array<std::string_view, 4>{"BOTTOM", "TOP", "CENTER", "BASELINE"}));
  EXPECT_EQ(CellAlign, (std::array<std::string_view, 3>{"CENTER", "LEFT", "RIGHT"}));
}

}  // namespace
}  // namespace morlan
