#include "macros/macroparam.h"

#include <algorithm>
#include <utility>

#include "core/document.h"
#include "core/documents.h"
#include "core/morlan.h"
#include "core/status.h"
#include "core/text.h"
#include "macros/macrofacts.h"

namespace morlan {
namespace {

void ShowNotice(Program& program, std::string_view text) {
  program.platform.windows.Message({.text = std::string(text), .title = "Morlan7 Makro", .icon = Icon::Information});
}

// The changes of the old text cannot be taken back any more.
void ShowNewText(Program& program, TEditor& document, std::string text) {
  document.EditedText.SetText(std::move(text));
  document.UNDO.Clear();
  if (document.EditedText.UseColorise && program.passes.colourDocument) program.passes.colourDocument(document.EditedText);
}

}  // namespace

MacroParam::MacroParam(Program& program) : Form("MacroParam", "Parametry makra"), program_(program) {
  OnLoad = [this] { Form_Load(); };
  Parametry.OnChange = [this] { ShowValue(); };
  Parametry.HeightInRows = 8;
  Parametry.SetToolTip("Zmienne makra i pytania, które zadaje"_pl).SetAccessibleName("Parametry");
  Wartosc.OnChange = [this] {
    const auto row = static_cast<std::size_t>(Parametry.ListIndex());
    if (row < parameters_.size()) parameters_[row].value = Wartosc.Text();
  };
  Wartosc.SetToolTip("Wartość początkowa zaznaczonego parametru"_pl);
  Command3.SetToolTip("Zapisuje parametry i wykonuje makro");
  Command3.OnClick = [this] {
    if (!Save()) return;
    Hide();
    program_.runMacro(name_);
  };
  Command2.OnClick = [this] {
    if (Save()) Hide();
  };
  Command1.OnClick = [this] { Hide(); };
  layout = layout::Rows(Parametry, layout::Field("Wa&rtość"_pl, Wartosc), layout::ButtonRow(Command3, Command2, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &Parametry;
}

void MacroParam::Form_Load() {
  name_ = program_.frame().makro.SelectedRow();
  text_ = program_.platform.files.Read(MacroPath(program_, name_)).value_or("");
  parameters_ = MacroParametersOf(text_);
  SetCaption(Concat({"Parametry makra ", name_}));
  Parametry.Clear();
  for (const MacroParameter& parameter : parameters_) Parametry.AddItem(parameter.name);
  Parametry.SetListIndex(0);
  ShowValue();
}

void MacroParam::ShowValue() {
  const auto row = static_cast<std::size_t>(Parametry.ListIndex());
  Wartosc.SetEnabled(row < parameters_.size());
  Wartosc.SetText(row < parameters_.size() ? parameters_[row].value : "");
}

bool MacroParam::Save() {
  const auto bad = std::find_if(parameters_.begin(), parameters_.end(), [](const auto& each) { return !CanStandInMacro(each.value); });
  if (bad != parameters_.end()) {
    Parametry.SetListIndex(static_cast<int>(bad - parameters_.begin()));
    ShowValue();
    ShowNotice(program_, "Wartość nie może zawierać cudzysłowu ani nawiasów klamrowych."_pl);
    Wartosc.SetFocus();
    return false;
  }
  const std::string changed = WithMacroParameters(text_, parameters_), path = MacroPath(program_, name_);
  if (changed == text_) return true;
  if (!program_.platform.files.Write(path, changed)) {
    ShowError(program_, "Nie mogę zapisać makra."_pl);
    return false;
  }
  if (TEditor* open = FindDocument(program_, path)) ShowNewText(program_, *open, changed);
  return true;
}

void ShowMacroParam(Program& program) {
  const std::string name = program.frame().makro.SelectedRow();
  if (name.empty()) return;
  const TEditor* open = FindDocument(program, MacroPath(program, name));
  if (open && open->IsModified()) return ShowNotice(program, "Makro jest otwarte i ma niezapisane zmiany. Najpierw je zapisz."_pl);
  const auto text = program.platform.files.Read(MacroPath(program, name));
  if (!text || MacroParametersOf(*text).empty()) return ShowNotice(program, "To makro nie ma parametrów."_pl);
  program.platform.windows.ShowModal(program.forms.Get<MacroParam>());
}

}  // namespace morlan
