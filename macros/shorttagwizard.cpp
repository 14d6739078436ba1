#include "macros/shorttagwizard.h"

#include "core/status.h"
#include "core/text.h"
#include "macros/macrofacts.h"
#include "macros/toolbar16.h"

namespace morlan {

// One pair of line ends is cut at either end of a text, so one is added.
std::string WrappingMacro(std::string_view before, std::string_view after) {
  return Concat({"{beforesel}", CrLf, before, CrLf, "{/beforesel}", CrLf, "{aftersel}", CrLf, after, CrLf, "{/aftersel}", CrLf});
}

ShortTagWizard::ShortTagWizard(Program& program) : Form("ShortTagWizard", "Kreator makra"), program_(program) {
  OnLoad = [this] { Form_Load(); };
  Nazwa.SetToolTip("Nazwa, pod którą makro pojawi się na liście"_pl);
  Poczatek.SetToolTip("Tekst, który stanie przed zaznaczeniem"_pl);
  Koniec.SetToolTip("Tekst, który stanie za zaznaczeniem"_pl);
  Command2.OnClick = [this] { MakeMacro(); };
  Command1.OnClick = [this] { Hide(); };
  layout = layout::Rows(layout::Field("&Nazwa makra", Nazwa), layout::Field("Tekst &przed zaznaczeniem", Poczatek),
                        layout::Field("Tekst &za zaznaczeniem", Koniec), layout::ButtonRow(Command2, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &Nazwa;
}

void ShortTagWizard::Form_Load() {
  for (TextBox* field : {&Nazwa, &Poczatek, &Koniec}) field->SetText("");
}

void ShortTagWizard::Refuse(Control& field, std::string_view message) {
  program_.platform.windows.Message({.text = std::string(message), .title = "Morlan7 Makro", .icon = Icon::Warning});
  field.SetFocus();
}

void ShortTagWizard::MakeMacro() {
  const std::string path = MacroPath(program_, Nazwa.Text());
  if (Trim(Nazwa.Text()).empty()) return Refuse(Nazwa, "Podaj nazwę makra."_pl);
  if (!IsMacroName(Nazwa.Text())) return Refuse(Nazwa, kBadMacroName);
  if (FileExists(program_, path)) return Refuse(Nazwa, kMacroExists);
  for (TextBox* field : {&Poczatek, &Koniec})
    if (field->Text().find_first_of("{}") != std::string::npos) return Refuse(*field, "Tekst nie może zawierać nawiasów klamrowych."_pl);
  if (!program_.platform.files.Write(path, WrappingMacro(Poczatek.Text(), Koniec.Text())))
    return Refuse(Nazwa, "Nie mogę zapisać makra."_pl);
  RefreshMacroList(program_, Nazwa.Text());
  Hide();
}

}  // namespace morlan
