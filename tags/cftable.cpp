#include "tags/cftable.h"

#include "core/status.h"
#include "tags/tagscan.h"

namespace morlan {

std::string CfTableText(const CfTableValues& values) {
  return AddAttribute(values.query, "QUERY") + AddAttribute(values.spacing, "COLSPACING") +
         AddAttribute(values.headerLines, "HEADERLINES") + AddAttribute(values.maxRows, "MAXROWS") +
         (values.columnHeaders ? " COLHEADERS" : "") + (values.htmlTable ? " HTMLTABLE" : "");
}

CFTable::CFTable(Program& program) : ServerDialog(program, "CFTable", "CFTable") {
  Remember(Query, "Listy\\Query.lst");
  SetUp(Command2, Command1);
  for (TextBox* box : {&spacing, &headerlines, &maxrows}) box->WidthInCharacters = 8;
  Query.SetToolTip("Nazwa zapytania, którego wyniki pokaże tabela"_pl);
  spacing.SetToolTip("Liczba spacji między kolumnami tabeli tekstowej"_pl);
  headerlines.SetToolTip("Liczba wierszy zajętych przez nagłówek"_pl);
  maxrows.SetToolTip("Największa liczba pokazanych wierszy"_pl);
  colheaders_.SetToolTip("Pokazuje nagłówki kolumn"_pl);
  htmltable_.SetToolTip("Tworzy tabelę HTML zamiast tekstu ułożonego w kolumny"_pl);
  layout = layout::Rows(layout::Field("&Zapytanie", Query), layout::Field("Column &spacing", spacing),
                        layout::Field("&Header lines", headerlines), layout::Field("&Max. rows", maxrows), colheaders_, htmltable_,
                        layout::ButtonRow(Command2, Command1));
}

void CFTable::Read(std::string_view tag) {
  ShowChoice(Query, GetTagParam(tag, "query"));
  spacing.SetText(GetTagParam(tag, "COLSPACING"));
  headerlines.SetText(GetTagParam(tag, "HEADERLINES"));
  maxrows.SetText(GetTagParam(tag, "MAXROWS"));
  colheaders_.SetValue(TextToBool(GetTagParam(tag, "COLHEADERS")));
  htmltable_.SetValue(TextToBool(GetTagParam(tag, "HTMLTABLE")));
}

CfTableValues CFTable::Values() const {
  return {.query = Query.Text(),
          .spacing = spacing.Text(),
          .headerLines = headerlines.Text(),
          .maxRows = maxrows.Text(),
          .columnHeaders = colheaders_.Value(),
          .htmlTable = htmltable_.Value()};
}

}  // namespace morlan
