#include "tags/cfcol.h"

#include "tags/tagscan.h"

namespace morlan {

std::string CfColText(const CfColValues& values) {
  return AddAttribute(values.header, "HEADER") + AddAttribute(values.text, "TEXT") + AddAttribute(values.align, "ALIGN") +
         AddAttribute(values.width, "WIDTH");
}

CFCOL::CFCOL(Program& program) : ServerDialog(program, "CFCOL", "CF Table Column") {
  align.AddItems({"LEFT", "CENTER", "RIGHT"});
  SetUp(Command2, Command1);
  header.WidthInCharacters = text_.WidthInCharacters = 32;
  align.WidthInCharacters = width_.WidthInCharacters = 10;
  header.SetToolTip("Napis nad kolumną"_pl);
  text_.SetToolTip("Treść pól kolumny; nazwy kolumn zapytania stoją między znakami #"_pl);
  align.SetToolTip("Położenie treści w kolumnie"_pl);
  width_.SetToolTip("Szerokość kolumny w znakach, a w tabeli HTML w procentach"_pl);
  layout = layout::Rows(layout::Field("&Nagłówek"_pl, header), layout::Field("&Tekst", text_), layout::Field("&Wyrównanie"_pl, align),
                        layout::Field("&Szerokość"_pl, width_), layout::ButtonRow(Command2, Command1));
}

void CFCOL::Read(std::string_view tag) {
  header.SetText(GetTagParam(tag, "HEADER"));
  text_.SetText(GetTagParam(tag, "TEXT"));
  ShowChoice(align, GetTagParam(tag, "ALIGN"));
  width_.SetText(GetTagParam(tag, "WIDTH"));
}

CfColValues CFCOL::Values() const { return {.header = header.Text(), .text = text_.Text(), .align = align.Text(), .width = width_.Text()}; }

}  // namespace morlan
