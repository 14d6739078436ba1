#include "core/alwaysview.h"

#include "core/documents.h"

namespace morlan {

AlwaysView::AlwaysView(Program& program) : Form("AlwaysView", "Zawsze pokazuj plik"), program_(program) {
  FileName.SetToolTip("Strona, którą pokazuje podgląd zamiast bieżącego dokumentu; puste pole: bieżący dokument"_pl);
  FileName.WidthInCharacters = 48;
  Toolbar1.Add({.key = "open", .toolTip = std::string("Wybierz plik"), .icon = "open"});
  Toolbar1.OnButtonClick = [this](const std::string&) { Toolbar1_ButtonClick(); };
  Command2.OnClick = [this] { Command2_Click(); };
  Command1.OnClick = [this] { Hide(); };
  OnLoad = [this] { FileName.SetText(program_.AlwaysViewFile); };
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &FileName;
  layout = layout::Rows(layout::Field("&Plik:", FileName, &Toolbar1), layout::ButtonRow(Command2, Command1));
}

void AlwaysView::Toolbar1_ButtonClick() {
  const std::string name = program_.platform.windows.AskFile(OpenRequest(program_)).value_or("");
  if (!name.empty()) FileName.SetText(name);
}

void AlwaysView::Command2_Click() {
  program_.AlwaysViewFile = FileName.Text();
  Hide();
}

void ShowAlwaysView(Program& program) { program.platform.windows.ShowModal(program.forms.Get<AlwaysView>()); }

}  // namespace morlan
