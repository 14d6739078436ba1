#include "tags/variables.h"

#include "core/defs.h"
#include "core/status.h"
#include "tags/metatags.h"
#include "tags/tageditor.h"

namespace morlan {
namespace {

struct KindRow {
  std::string_view attribute, list;
};

constexpr KindRow kKinds[] = {{"NAME", "Listy\\NVariables.lst"}, {"HTTP-EQUIV", "Listy\\HVariables.lst"}};

}  // namespace

Variables::Variables(Program& program) : Form("Variables", "Ustaw zmienne"), program_(program) {
  SetUpButtons(program, *this, Command2, Command1);
  OnLoad = [this] { ListNames(); };
  for (OptionButton* option : {&typ0, &typ1}) option->OnClick = [this] { ChooseKind(); };
  Command2.OnClick = [this] {
    Hide();
    Set();
  };
  typ0.SetToolTip("Zmienna, która opisuje stronę"_pl);
  typ1.SetToolTip("Zmienna, którą przeglądarka czyta tak, jak nagłówek od serwera"_pl);
  nazwa.SetToolTip("Nazwa zmiennej; strona ma najwyżej jedną o danej nazwie"_pl);
  wartosc.SetToolTip("Nowa wartość zmiennej"_pl);
  wartosc.WidthInCharacters = 40;
  layout = layout::Rows(layout::Group("Typ", layout::Columns(typ0, typ1, layout::Stretch())), layout::Field("&Nazwa", nazwa),
                        layout::Field("Wa&rtość"_pl, wartosc), layout::ButtonRow(Command2, Command1));
}

void Variables::ChooseKind() {
  if (Kind() == listed_) return;
  names_[listed_] = nazwa.Text();
  ListNames();
}

void Variables::ListNames() {
  listed_ = Kind();
  nazwa.Clear();
  nazwa.SetText("");
  LoadComboFromList(program_, nazwa, kKinds[listed_].list);
  if (!names_[listed_].empty()) nazwa.SetText(names_[listed_]);
}

void Variables::Set() {
  const std::string name = nazwa.Text();
  names_[listed_] = name;
  for (std::size_t kind = 0; kind < names_.size(); ++kind) RememberInList(program_, names_[kind], kKinds[kind].list);
  // A tag without a name would be found in any META tag that has none.
  if (!name.empty()) SetMeta(program_, kKinds[listed_].attribute, name, wartosc.Text());
}

void SetVariables(Program& program) { ShowForNew(program, program.forms.Get<Variables>()); }

}  // namespace morlan
