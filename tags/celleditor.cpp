#include "tags/celleditor.h"

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/alignlabels.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

// Rows of CellAlign and CellVAlign. What is written for the middle row, "CENTER", is not read back.
constexpr ReadWord kAlignRows[] = {{"left", 1}, {"right", 2}, {"center", 0}};
constexpr ReadWord kValignRows[] = {{"top", 1}, {"middle", 2}, {"bottom", 0}, {"baseline", 3}};

void Insert(Program& program, CellKind kind) {
  DTH& form = program.forms.Get<DTH>();
  form.SetKind(kind);
  form.Insert();
}

}  // namespace

std::string CellText(CellKind kind, const CellValues& values) {
  TagText tag(kind == CellKind::Header ? "<TH" : "<TD");
  tag.QuotedIfText(" ALIGN=", ItemOfRow(CellAlign, values.align)).QuotedIfText(" VALIGN=", ItemOfRow(CellVAlign, values.valign));
  tag.QuotedIfText(" BACKGROUND=", values.tlo);
  tag.QuotedColour(" BGCOLOR=", values.backColour);
  tag.Flag(values.nowarp, " NOWARP");
  tag.QuotedIfPositive(" WIDTH=", values.szer).QuotedIfPositive(" HEIGHT=", values.wys);
  tag.QuotedIfPositive(" ROWSPAWN=", values.rowspawn).QuotedIfPositive(" COLSPAWN=", values.colspawn);
  return tag.Close();
}

DTH::DTH(Program& program) : TagDialog(program, "DTH", "Komórka tabeli"_pl, kTableStatus) {
  // In the order of CellAlign and CellVAlign.
  FillChoices(align, {"Centrowany", "Do lewego marg.", "Prawego marg."});
  FillChoices(valign, {"Na dole", "Na górze"_pl, "Na środku"_pl, "Podstawa tekstu"});
  for (ComboBox* size : {&szer, &wys})
    for (const std::string_view text : {"10%", "20%", "25%", "33%", "50%", "75%", "100%"}) size->AddItem(text);
  SetUp(Command2, Command1);
  SetUpFileButton(program, tloFile, tlo, kPictureFiles);
  SetUpColourBox(program, fillwithcolor2, isbackcolor2);
  szer.WidthInCharacters = wys.WidthInCharacters = 8;
  rowspawn.WidthInCharacters = colspawn.WidthInCharacters = 8;
  align.WidthInCharacters = valign.WidthInCharacters = 18;
  SetUpToolTips();
  using namespace layout;
  const Layout ground = Group("Wypełnienie"_pl, Field("&Tło"_pl, tlo, &tloFile), Columns(isbackcolor2, fillwithcolor2));
  const Layout size = Group("Wymiary", Field("&Szerokość"_pl, szer), Field("W&ysokość"_pl, wys), Field("Obejmij wie&rszy", rowspawn),
                            Field("Obejmij ko&lumn", colspawn));
  const Layout place = Group("Położenie tekstu"_pl, Field("&Poziome", align), Field("Piono&we", valign), nowarp2);
  Form::layout = Rows(ground, Columns(size, place), ButtonRow(Command2, Command1));
}

void DTH::SetUpToolTips() {
  tlo.SetToolTip("Rysunek, który wypełni tło komórki"_pl);
  szer.SetToolTip("Szerokość w punktach albo w procentach tabeli"_pl);
  wys.SetToolTip("Wysokość w punktach albo w procentach tabeli"_pl);
  rowspawn.SetToolTip("Zapisuje, ile wierszy obejmuje komórka (ROWSPAWN)"_pl);
  colspawn.SetToolTip("Zapisuje, ile kolumn obejmuje komórka (COLSPAWN)"_pl);
  nowarp2.SetToolTip("Tekst komórki zostaje w jednej linii (NOWARP)"_pl);
  isbackcolor2.SetToolTip("Wypełnia tło komórki kolorem"_pl);
  align.SetToolTip("Położenie tekstu w komórce w poziomie"_pl);
  valign.SetToolTip("Położenie tekstu w komórce w pionie"_pl);
}

void DTH::SetKind(CellKind kind) {
  kind_ = kind;
  SetCaption(kind == CellKind::Header ? "Nagłówek tabeli"_pl : "Komórka tabeli"_pl);
}

void DTH::Read(std::string_view tag) {
  SetKind(EqualNoCase(GetTagName(tag), "TH") ? CellKind::Header : CellKind::Cell);
  tlo.SetText(GetTagTextParam(tag, "BACKGROUND"));
  szer.SetText(GetTagParam(tag, "WIDTH"));
  wys.SetText(GetTagParam(tag, "HEIGHT"));
  rowspawn.SetText(GetTagParam(tag, "ROWSPAWN"));
  colspawn.SetText(GetTagParam(tag, "COLSPAWN"));
  nowarp2.SetValue(TextToBool(GetTagParam(tag, "NOWARP")));
  ShowBackColour(GetTagParam(tag, "BGCOLOR"), isbackcolor2, fillwithcolor2);
  align.SetListIndex(RowOfWord(kAlignRows, GetTagParam(tag, "ALIGN")));
  valign.SetListIndex(RowOfWord(kValignRows, GetTagParam(tag, "VALIGN")));
}

CellValues DTH::Values() const {
  return {.align = align.ListIndex(),
          .valign = valign.ListIndex(),
          .tlo = tlo.Text(),
          .backColour = BackColour(isbackcolor2, fillwithcolor2),
          .nowarp = nowarp2.Value(),
          .szer = szer.Text(),
          .wys = wys.Text(),
          .rowspawn = rowspawn.Text(),
          .colspawn = colspawn.Text()};
}

void EditCell(Program& program) { program.forms.Get<DTH>().Edit(); }
void InsertHeaderCell(Program& program) { Insert(program, CellKind::Header); }
void InsertCell(Program& program) { Insert(program, CellKind::Cell); }

}  // namespace morlan
