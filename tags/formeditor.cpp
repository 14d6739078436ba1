#include "tags/formeditor.h"

#include "core/defs.h"
#include "core/status.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::string_view kActions = "Listy\\Scripts.lst", kEncodings = "Listy\\Enctype.lst";
// The row of GET, which a form without a method means.
constexpr int kDefaultMethod = 0;

}  // namespace

std::string FormText(const FormValues& values) {
  TagText tag("<FORM");
  tag.Quoted(" ACTION=", values.action).Quoted(" METHOD=", values.method);
  return tag.QuotedIfText(" TARGET=", values.target).QuotedIfText(" ENCTYPE=", values.enctype).Close();
}

FormShape::FormShape(Program& program) : TagDialog(program, "FormShape", "Zarys formularza", kFormStatus) {
  for (const std::string_view word : {"GET", "POST"}) method.AddItem(word);
  method.SetListIndex(kDefaultMethod);
  FillTargets(target);
  SetUp(Command2, Command1);
  OnLoad = [this] {
    RefillFromList(program_, action, kActions);
    RefillFromList(program_, enctype, kEncodings);
  };
  SetUpToolTips();
  action.WidthInCharacters = enctype.WidthInCharacters = 36;
  method.WidthInCharacters = 8;
  layout = layout::Rows(layout::Field("A&kcja", action), layout::Field("&Metoda", method), layout::Field("Okno &doceliwe", target),
                        layout::Field("Kodo&wanie", enctype), layout::ButtonRow(Command2, Command1));
}

void FormShape::SetUpToolTips() {
  action.SetToolTip("Adres programu na serwerze, który odbierze dane formularza"_pl);
  method.SetToolTip("Sposób wysłania danych: GET dopisuje je do adresu, POST wysyła osobno"_pl);
  target.SetToolTip("Okno albo ramka, w której pokaże się odpowiedź"_pl);
  enctype.SetToolTip("Postać, w jakiej dane jadą do serwera; pliki wymagają multipart/form-data"_pl);
}

void FormShape::Remember() {
  RememberInList(program_, action, kActions);
  RememberInList(program_, enctype, kEncodings);
}

void FormShape::Read(std::string_view tag) {
  action.SetText(GetTagTextParam(tag, "ACTION"));
  target.SetText(GetTagParam(tag, "TARGET"));
  enctype.SetText(GetTagParam(tag, "ENCTYPE"));
  const int row = method.ListFind(GetTagParam(tag, "METHOD"));
  method.SetListIndex(row >= 0 ? row : kDefaultMethod);
}

FormValues FormShape::Values() const {
  return {.action = action.Text(), .method = method.Text(), .target = target.Text(), .enctype = enctype.Text()};
}

void EditForm(Program& program) { program.forms.Get<FormShape>().Edit(); }

void InsertForm(Program& program) { program.forms.Get<FormShape>().Insert(); }

}  // namespace morlan
