#include "tags/cfmail.h"

#include "tags/tagscan.h"

namespace morlan {

std::string CfMailText(const CfMailValues& values) {
  return AddAttribute(values.to, "TO") + AddAttribute(values.cc, "CC") + AddAttribute(values.from, "FROM") +
         AddAttribute(values.query, "QUERY") + AddAttribute(values.subject, "SUBJECT");
}

CFMAIL::CFMAIL(Program& program) : ServerDialog(program, "CFMAIL", "CFMAIL") {
  Remember(MailTo, "Listy\\MailTo.lst");
  Remember(MailFrom, "Listy\\MailFrom.lst");
  Remember(MailQuery, "Listy\\Query.lst");
  SetUp(Command2, Command1);
  for (ComboBox* box : {&MailTo, &MailFrom, &MailQuery}) box->WidthInCharacters = 32;
  for (TextBox* box : {&cc_, &Subject}) box->WidthInCharacters = 32;
  MailTo.SetToolTip("Adres odbiorcy; kilka adresów rozdziela się przecinkami"_pl);
  cc_.SetToolTip("Adresy, pod które pójdzie kopia listu"_pl);
  MailFrom.SetToolTip("Adres nadawcy");
  Subject.SetToolTip("Temat listu");
  MailQuery.SetToolTip("Nazwa zapytania, z którego wyników powstaje list"_pl);
  layout = layout::Rows(layout::Field("Od&biorca", MailTo), layout::Field("&Kopia", cc_), layout::Field("&Nadawca", MailFrom),
                        layout::Field("&Temat", Subject), layout::Field("&Zapytanie", MailQuery), layout::ButtonRow(Command2, Command1));
}

void CFMAIL::Read(std::string_view tag) {
  ShowChoice(MailTo, GetTagParam(tag, "TO"));
  cc_.SetText(GetTagParam(tag, "CC"));
  ShowChoice(MailFrom, GetTagParam(tag, "FROM"));
  ShowChoice(MailQuery, GetTagParam(tag, "QUERY"));
  Subject.SetText(GetTagTextParam(tag, "subject"));
}

CfMailValues CFMAIL::Values() const {
  return {.to = MailTo.Text(), .cc = cc_.Text(), .from = MailFrom.Text(), .query = MailQuery.Text(), .subject = Subject.Text()};
}

}  // namespace morlan
