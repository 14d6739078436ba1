#include "tags/propertieseditor.h"

#include <algorithm>

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/propertiesparam.h"
#include "tags/propertysheets.h"

namespace morlan {

PropertiesEditor::PropertiesEditor(Program& program) : Form("PropertiesEditor", "Edycja Właściwości"_pl), program_(program) {
  defaultButton = &Command5;
  cancelButton = &Command5;
  OnLoad = [this] {
    SheetsOf(program_).ReadAnew();
    LoadTags(Znaczniki.SelectedRow());
  };
  Znaczniki.OnChange = [this] { LoadParams(""); };
  Parametry.OnChange = [this] { EnableButtons(); };
  Parametry.OnDblClick = [this] { EditParam(); };
  Command1.OnClick = [this] { AddTag(); };
  Command2.OnClick = [this] { RemoveTag(); };
  Command3.OnClick = [this] { EditParam(); };
  Command4.OnClick = [this] { AddParam(); };
  Command6.OnClick = [this] { RemoveParam(); };
  Command5.OnClick = [this] { Hide(); };
  SetUpToolTips();
  Znaczniki.HeightInRows = Parametry.HeightInRows = 14;
  layout =
      layout::Rows(layout::Columns(layout::Rows(layout::Field("Z&naczniki", Znaczniki), layout::Columns(Command1, Command2)),
                                   layout::Rows(layout::Field("&Parametry", Parametry), layout::Columns(Command4, Command3, Command6))),
                   layout::ButtonRow(Command5));
}

void PropertiesEditor::SetUpToolTips() {
  Znaczniki.SetToolTip("Znaczniki, które mają arkusz właściwości"_pl);
  Parametry.SetToolTip("Atrybuty wybranego znacznika w kolejności arkusza"_pl);
  Command1.SetToolTip("Dodaje znacznik bez parametrów"_pl);
  Command2.SetToolTip("Usuwa wybrany znacznik z jego parametrami"_pl);
  Command4.SetToolTip("Dodaje parametr do wybranego znacznika"_pl);
  Command3.SetToolTip("Zmienia wybrany parametr"_pl);
  Command6.SetToolTip("Usuwa wybrany parametr"_pl);
}

void PropertiesEditor::LoadTags(const std::string& selected) {
  std::vector<std::string> names;
  for (const TagRecord& tag : SheetsOf(program_).File().Tags()) names.push_back(tag.name);
  Znaczniki.Clear();
  Znaczniki.AddItems(names);
  Znaczniki.SetListIndex(std::max(0, Znaczniki.ListFind(selected)));
  LoadParams("");
}

void PropertiesEditor::LoadParams(const std::string& selected) {
  std::vector<std::string> names;
  for (const ParamRecord& param : ParamsOfTag(program_, Znaczniki.SelectedRow()).value_or(std::vector<ParamRecord>()))
    names.push_back(param.name);
  Parametry.Clear();
  Parametry.AddItems(names);
  Parametry.SetListIndex(std::max(0, Parametry.ListFind(selected)));
  EnableButtons();
}

void PropertiesEditor::EnableButtons() {
  const bool hasTag = Znaczniki.ListIndex() >= 0, hasParam = Parametry.ListIndex() >= 0;
  Command2.SetEnabled(hasTag);
  Command4.SetEnabled(hasTag);
  Command3.SetEnabled(hasParam);
  Command6.SetEnabled(hasParam);
}

void PropertiesEditor::AddTag() {
  const auto name = program_.platform.windows.Input("Jaki znacznik dodać"_pl, "Dodaj nowy znacznik", "");
  if (!name || Trim(*name).empty()) return;
  if (FindTagRecord(program_, *name) != 0) return ShowError(program_, "Znacznik jest już dodany"_pl);
  if (AddTagRecord(program_, {.name = *name}))
    LoadTags(std::string(Trim(Trim(*name).substr(0, kNameWidth))));
  else
    ShowError(program_, kSheetsNotWritten);
}

bool PropertiesEditor::IsConfirmed(std::string_view question, std::string_view name) {
  return program_.platform.windows.Message({.text = Concat({question, name}), .icon = Icon::Question, .buttons = Buttons::YesNo}) ==
         Answer::Yes;
}

void PropertiesEditor::RemoveTag() {
  const std::string tag = Znaczniki.SelectedRow();
  const auto row = static_cast<std::size_t>(Znaczniki.ListIndex());
  if (!IsConfirmed("Jesteś pewny, że chcesz usunąć znacznik "_pl, tag) || !RemoveTagRecord(program_, tag)) return;
  LoadTags(row + 1 < Znaczniki.ListCount() ? Znaczniki.List(row + 1) : "");
}

void PropertiesEditor::AddParam() {
  if (Znaczniki.ListIndex() < 0) return;
  const std::string added = AddParamOf(program_, Znaczniki.SelectedRow());
  if (!added.empty()) LoadParams(added);
}

void PropertiesEditor::EditParam() {
  if (Parametry.ListIndex() < 0) return;
  const std::string changed = EditParamOf(program_, Znaczniki.SelectedRow(), Parametry.SelectedRow());
  if (!changed.empty()) LoadParams(changed);
}

void PropertiesEditor::RemoveParam() {
  const std::string param = Parametry.SelectedRow();
  const auto row = static_cast<std::size_t>(Parametry.ListIndex());
  if (!IsConfirmed("Jesteś pewny, że chcesz usunąć parametr "_pl, param)) return;
  if (!RemoveParamRecord(program_, Znaczniki.SelectedRow(), param)) return;
  LoadParams(row + 1 < Parametry.ListCount() ? Parametry.List(row + 1) : "");
}

void EditProperties(Program& program) { program.platform.windows.ShowModal(program.forms.Get<PropertiesEditor>()); }

}  // namespace morlan
