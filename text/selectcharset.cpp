#include "text/selectcharset.h"

#include "core/document.h"
#include "core/text.h"
#include "text/charsets.h"
#include "text/createcharset.h"

namespace morlan {

SelectCharSet::SelectCharSet(Program& program)
    : Form("SelectCharSet", "Ustalanie sposobu kodowania znaków narodowych"_pl), program_(program) {
  saveformat.SetToolTip("Format, w którym zapisywane będą polskie litery"_pl);
  CharSetInfo.SetAccessibleName("Opis formatu");
  Mixed.SetAccessibleName("Uwaga");
  OnLoad = [this] { Form_Load(); };
  saveformat.OnChange = [this] { ShowInfo(); };
  saveformat.OnDblClick = [this] { Leave(saveformat.SelectedRow()); };
  Command2.OnClick = [this] { Leave(saveformat.SelectedRow()); };
  Command1.OnClick = [this] { Leave(""); };
  Command3.OnClick = [this] {
    const std::string selected = saveformat.SelectedRow();
    ShowCreateCharSet(program_);
    FillFormats(selected);
  };
  layout = layout::Rows(layout::Field("&Wybierz format", saveformat), layout::Field("Opis", CharSetInfo), Mixed,
                        layout::ButtonRow(Command3, Command2, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &saveformat;
}

void SelectCharSet::Form_Load() { FillFormats(program_.ActiveDocument ? program_.ActiveDocument->CharSet.Caption() : std::string()); }

void SelectCharSet::FillFormats(std::string_view selected) {
  saveformat.Clear();
  saveformat.AddItems(LoadCharSets(program_).CharSetNames());
  saveformat.SetListIndex(saveformat.ListFind(selected));
  ShowInfo();
}

void SelectCharSet::ShowInfo() {
  const CharSetFile file = LoadCharSets(program_);
  const auto record = file.CharSetByName(saveformat.SelectedRow());
  CharSetInfo.SetCaption(record ? record->info : "");
  Mixed.SetCaption(record ? MixedLettersNote(file, record->codes) : "");
  Command2.SetEnabled(record.has_value());
}

void SelectCharSet::Leave(std::string_view result) {
  program_.DialogResult = result;
  Hide();
}

void SelectCharSetByDialog(Program& program) { program.platform.windows.ShowModal(program.forms.Get<SelectCharSet>()); }

}  // namespace morlan
