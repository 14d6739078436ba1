#include "tags/cfquery.h"

#include "tags/tagscan.h"

namespace morlan {

std::string CfQueryText(const CfQueryValues& values) {
  return AddAttribute(values.dataSource, "DATASOURCE") + AddAttribute(values.name, "NAME");
}

CFQUERY::CFQUERY(Program& program) : ServerDialog(program, "CFQUERY", "CFQUERY") {
  Remember(text_0, "Listy\\QSource.lst");
  Remember(text_1, "Listy\\Query.lst");
  SetUp(Command2, Command1);
  text_0.SetToolTip("Źródło danych założone na serwerze, do którego idzie zapytanie"_pl);
  text_1.SetToolTip("Nazwa, pod którą strona sięga po wyniki zapytania"_pl);
  layout = layout::Rows(layout::Field("Ź&ródło danych"_pl, text_0), layout::Field("&Nazwa", text_1), layout::ButtonRow(Command2, Command1));
}

void CFQUERY::Read(std::string_view tag) {
  ShowChoice(text_0, GetTagParam(tag, "DATASOURCE"));
  ShowChoice(text_1, GetTagParam(tag, "NAME"));
}

}  // namespace morlan
