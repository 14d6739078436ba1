#include "tags/tableeditor.h"

#include "core/defs.h"
#include "core/status.h"
#include "tags/alignlabels.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {

std::string TableText(const TableValues& values) {
  TagText tag("<TABLE");
  tag.UnquotedIfPositive(" BORDER=", values.border);
  tag.QuotedIfPositive(" HEIGHT=", values.height).QuotedIfPositive(" WIDTH=", values.width);
  tag.QuotedIfText(" BACKGROUND=", values.background);
  tag.QuotedColour(" BGCOLOR=", values.backColour);
  tag.QuotedIfText(" ALIGN=", ItemOfRow(TableAlign, values.align)).QuotedIfText(" VALIGN=", ItemOfRow(TableVAlign, values.valign));
  tag.Flag(values.noflow, " NOFLOW").Flag(values.nowarp, " NOWARP");
  tag.QuotedIfPositive(" CELLSPACING=", values.cellspacing).QuotedIfPositive(" CELLPADDING=", values.cellpadding);
  return tag.Close();
}

Tabela::Tabela(Program& program) : TagDialog(program, "Tabela", "Tabela", kTableStatus) {
  // In the order of TableAlign and TableVAlign.
  FillChoices(align, {"Formtauj jak tekst", "Na lewej krawędzi okna"_pl, "Na prawej krawędzi okna"_pl, "Na środku"_pl,
                      "W miejscu najbardziej dogodnym", "Z lewej", "Z prawej"});
  FillChoices(valign, {"Podstawa linii", "Wysokość linii"_pl});
  SetUp(Command2, Command1);
  SetUpFileButton(program, backgroundFile, background, kPictureFiles);
  SetUpColourBox(program, fillwithcolor, isbackcolor);
  for (TextBox* box : {&border, &Height_, &Width_, &cellspacing, &cellpadding}) box->WidthInCharacters = 8;
  align.WidthInCharacters = valign.WidthInCharacters = 28;
  SetUpToolTips();
  using namespace layout;
  const Layout size =
      Group("Wymiary", Field("&Grudość ramki"_pl, border), Field("&Wysokość tabeli "_pl, Height_), Field("&Szerokość tabeli"_pl, Width_));
  const Layout ground = Group("Wypełnienie"_pl, Field("&Tło"_pl, background, &backgroundFile), Columns(isbackcolor, fillwithcolor));
  const Layout place = Group("Położenie tabeli względem tekstu"_pl, Field("&Poziome", align), Field("Pio&nowe", valign), noflow, nowarp);
  const Layout distances =
      Group("Odległości"_pl, Field("O&dległość między komórkami"_pl, cellspacing), Field("Od&ległość ramki od tekstu"_pl, cellpadding));
  Form::layout = Rows(Columns(size, ground), Columns(place, distances), ButtonRow(Command2, Command1));
}

void Tabela::SetUpToolTips() {
  border.SetToolTip("Grubość ramki wokół tabeli w punktach; zero znaczy bez ramki"_pl);
  Height_.SetToolTip("Wysokość w punktach albo w procentach okna"_pl);
  Width_.SetToolTip("Szerokość w punktach albo w procentach okna"_pl);
  background.SetToolTip("Rysunek, który wypełni tło tabeli"_pl);
  isbackcolor.SetToolTip("Wypełnia tło tabeli kolorem"_pl);
  align.SetToolTip("Położenie tabeli w poziomie"_pl);
  valign.SetToolTip("Położenie tabeli w pionie"_pl);
  noflow.SetToolTip("Zapisuje atrybut NOFLOW");
  nowarp.SetToolTip("Zapisuje atrybut NOWARP");
  cellspacing.SetToolTip("Wolne miejsce między komórkami w punktach"_pl);
  cellpadding.SetToolTip("Wolne miejsce między ramką komórki a tekstem w punktach"_pl);
}

void Tabela::Read(std::string_view tag) {
  cellpadding.SetText(GetTagParam(tag, "CELLPADDING"));
  cellspacing.SetText(GetTagParam(tag, "CELLSPACING"));
  background.SetText(GetTagTextParam(tag, "BACKGROUND"));
  Height_.SetText(GetTagParam(tag, "HEIGHT"));
  Width_.SetText(GetTagParam(tag, "WIDTH"));
  noflow.SetValue(TextToBool(GetTagParam(tag, "NOFLOW")));
  nowarp.SetValue(TextToBool(GetTagParam(tag, "NOWARP")));
  border.SetText(GetTagParam(tag, "BORDER"));
  ShowBackColour(GetTagParam(tag, "BGCOLOR"), isbackcolor, fillwithcolor);
  align.SetListIndex(RowOfItem(TableAlign, GetTagParam(tag, "ALIGN")));
  valign.SetListIndex(RowOfItem(TableVAlign, GetTagParam(tag, "VALIGN")));
}

TableValues Tabela::Values() const {
  return {.border = border.Text(),
          .height = Height_.Text(),
          .width = Width_.Text(),
          .background = background.Text(),
          .backColour = BackColour(isbackcolor, fillwithcolor),
          .align = align.ListIndex(),
          .valign = valign.ListIndex(),
          .noflow = noflow.Value(),
          .nowarp = nowarp.Value(),
          .cellspacing = cellspacing.Text(),
          .cellpadding = cellpadding.Text()};
}

void EditTable(Program& program) { program.forms.Get<Tabela>().Edit(); }

void InsertTable(Program& program) { program.forms.Get<Tabela>().Insert(); }

}  // namespace morlan
