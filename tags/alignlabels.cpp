#include "tags/alignlabels.h"

#include "core/text.h"

namespace morlan {
namespace {

struct LabelRow {
  std::string_view label, word;
};

constexpr LabelRow kLabels[] = {
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
};

}  // namespace

std::string_view AlignLabelToHtml(std::string_view label) {
  for (const LabelRow& row : kLabels)
    if (EqualNoCase(row.label, label)) return row.word;
  return {};
}

std::string_view VAlignLabelToHtml(std::string_view label) { return AlignLabelToHtml(label); }

std::string_view HtmlAlignToLabel(std::string_view word) {
  if (word == "left") return "do lewej";
  if (word == "center") return "centruj";
  return {};
}

}  // namespace morlan
