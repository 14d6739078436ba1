#include "tags/roweditor.h"

#include "core/defs.h"
#include "core/text.h"
#include "tags/alignlabels.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr ReadWord kAlignRows[] = {{"left", 0}, {"right", 1}, {"center", 2}};
// "center", which the middle row is written as, is not among the words that are read.
constexpr ReadWord kValignRows[] = {{"top", 0}, {"middle", 1}, {"bottom", 2}, {"baseline", 3}};

}  // namespace

std::string RowText(const RowValues& values) {
  TagText tag("<TR");
  if (!values.align.empty()) tag.Quoted(" ALIGN=", UpperCase(AlignLabelToHtml(values.align)));
  if (!values.valign.empty()) tag.Quoted(" VALIGN=", UpperCase(VAlignLabelToHtml(values.valign)));
  tag.QuotedColour(" BGCOLOR=", values.backColour);
  return tag.Close();
}

DTR::DTR(Program& program) : TagDialog(program, "DTR", "Wiersz tabeli", kTableStatus) {
  FillChoices(Align, {"Do lewej", "Do prawej", "Wycentrowane"});
  FillChoices(Valign, {"U góry"_pl, "Na środku"_pl, "Na dole", "U podstawy linii"});
  SetUp(Command2, Command1);
  SetUpColourBox(program, fillwithcolor, isbackcolor);
  Align.SetToolTip("Położenie tekstu w komórkach wiersza w poziomie"_pl);
  Valign.SetToolTip("Położenie tekstu w komórkach wiersza w pionie"_pl);
  isbackcolor.SetToolTip("Wypełnia tło wiersza kolorem"_pl);
  Align.WidthInCharacters = Valign.WidthInCharacters = 18;
  layout = layout::Rows(layout::Field("&Poziome", Align), layout::Field("Pio&nowe", Valign), layout::Columns(isbackcolor, fillwithcolor),
                        layout::ButtonRow(Command2, Command1));
}

void DTR::Read(std::string_view tag) {
  ShowBackColour(GetTagParam(tag, "BGCOLOR"), isbackcolor, fillwithcolor);
  Align.SetListIndex(RowOfWord(kAlignRows, GetTagParam(tag, "ALIGN")));
  Valign.SetListIndex(RowOfWord(kValignRows, GetTagParam(tag, "VALIGN")));
}

RowValues DTR::Values() const {
  return {.align = Align.Text(), .valign = Valign.Text(), .backColour = BackColour(isbackcolor, fillwithcolor)};
}

void EditRow(Program& program) { program.forms.Get<DTR>().Edit(); }

void InsertRow(Program& program) { program.forms.Get<DTR>().Insert(); }

}  // namespace morlan
