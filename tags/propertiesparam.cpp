#include "tags/propertiesparam.h"

#include <algorithm>

#include "core/defs.h"
#include "core/paths.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/propertysheets.h"
#include "tags/sheetchoices.h"

namespace morlan {
namespace {

constexpr std::string_view kListFolder = "Listy", kListEnd = ".lst", kNoColour = "0";
constexpr int kNameField = 32;

void AddRows(ComboBox& box, std::span<const std::string_view> rows) { box.AddItems({rows.begin(), rows.end()}); }

const TagRecord* TagOf(const PropertyFile& file, std::string_view name) {
  const std::uint32_t position = file.FindTag(name);
  const auto found = std::find_if(file.Tags().begin(), file.Tags().end(), [&](const TagRecord& tag) { return tag.position == position; });
  return found == file.Tags().end() ? nullptr : &*found;
}

std::string ShowFor(Program& program, std::string_view tag, std::string_view param) {
  PropertiesParam& form = program.forms.Get<PropertiesParam>();
  form.Load(tag, param);
  program.platform.windows.ShowModal(form);
  return form.Saved();
}

}  // namespace

PropertiesParam::PropertiesParam(Program& program) : Form("PropertiesParam", "Parametry znacznika"), program_(program) {
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &name_;
  Info.MaxLength = kInfoWidth;
  name_.MaxLength = kNameWidth;
  Info.WidthInCharacters = name_.WidthInCharacters = Style.WidthInCharacters = kNameField;
  AddRows(Style, KindNames());
  AddRows(DialogType, DialogNames());
  Content.HeightInRows = 6;
  Style.OnChange = [this] { Style_Click(); };
  UseFile.OnClick = [this] { UseFile_Click(); };
  AddButton.OnClick = [this] { AddValue(); };
  DelButton.OnClick = [this] { RemoveValue(); };
  Command2.OnClick = [this] { SaveParam(); };
  Command1.OnClick = [this] { Hide(); };
  SetUpToolTips();
  layout = FieldRows();
}

Layout PropertiesParam::FieldRows() {
  // What comes and goes with the kind stands last, so that the other fields keep their places.
  return layout::Rows(layout::Field("Op&is znacznika", Info), layout::Field("&Nazwa parametru", name_), layout::Field("&Rodzaj", Style),
                      layout::Field("&Wartość domyślna"_pl, DefaultValue), layout::Field("O&kienko", DialogType), DialogVisible, UseFile,
                      layout::Field("Pl&ik z listą"_pl, FileList), layout::Field("&Zawartość"_pl, Content),
                      layout::Columns(AddButton, DelButton, layout::Stretch()), layout::ButtonRow(Command2, Command1));
}

void PropertiesParam::SetUpToolTips() {
  Info.SetToolTip("Krótki opis, który stoi u góry arkusza znacznika"_pl);
  name_.SetToolTip("Nazwa atrybutu, jak ma stać w znaczniku"_pl);
  Style.SetToolTip("Jakie pole dostaje atrybut na arkuszu"_pl);
  DialogType.SetToolTip("Co wybiera się w okienku"_pl);
  DialogVisible.SetToolTip("Obok pola stoi przycisk, który otwiera okienko"_pl);
  UseFile.SetToolTip("Wartości pochodzą z pliku z listą"_pl);
  FileList.SetToolTip("Plik w katalogu list, bez rozszerzenia");
  Content.SetToolTip("Wartości, które podsuwa arkusz"_pl);
  AddButton.SetToolTip("Dodaje wartość do listy"_pl);
  DelButton.SetToolTip("Usuwa wybraną wartość z listy"_pl);
  DefaultValue.SetToolTip("Wartość, którą ma pole, gdy znacznik nie ma atrybutu"_pl);
}

void PropertiesParam::Load(std::string_view tag, std::string_view param) {
  const PropertyFile& file = SheetsOf(program_).File();
  const TagRecord* tagRecord = TagOf(file, tag);
  const auto params = ParamsOfTag(program_, tag).value_or(std::vector<ParamRecord>());
  const auto found = std::find_if(params.begin(), params.end(), [&](const ParamRecord& row) { return EqualNoCase(row.name, param); });
  const bool isNew = param.empty() || found == params.end();
  const ParamRecord record = isNew ? ParamRecord() : *found;
  tag_ = tag;
  oldName_ = record.name;
  builtIn_ = record.builtIn;
  saved_.clear();
  Info.SetText(tagRecord ? tagRecord->info : "");
  name_.SetText(record.name);
  name_.ReadOnly = builtIn_;
  LoadFiles();
  FileList.SetText(record.listFile);
  Content.Clear();
  Content.AddItems(record.values);
  DialogType.SetListIndex(static_cast<int>(record.dialogType));
  DialogVisible.SetValue(record.dialogVisible);
  Style.SetListIndex(static_cast<int>(record.kind));
  DefaultValue.SetText(DefaultOf(record));
  Style_Click();
}

ParamKind PropertiesParam::Kind() const { return static_cast<ParamKind>(std::max(0, Style.ListIndex())); }

void PropertiesParam::Style_Click() {
  const ParamKind kind = Kind();
  const bool isDialog = kind == ParamKind::Dialog, isList = kind == ParamKind::List, fromFile = kind == ParamKind::ListFromFile;
  for (Control* control : {static_cast<Control*>(&DialogType), static_cast<Control*>(&DialogVisible)}) control->SetVisible(isDialog);
  for (Control* control : {static_cast<Control*>(&Content), static_cast<Control*>(&AddButton), static_cast<Control*>(&DelButton)})
    control->SetVisible(isList);
  UseFile.SetVisible(isList || fromFile);
  UseFile.SetValue(fromFile);
  FileList.SetVisible(fromFile);
  DefaultValue.SetVisible(kind != ParamKind::Style);
  LoadDefaults();
}

void PropertiesParam::UseFile_Click() {
  Style.SetListIndex(static_cast<int>(UseFile.Value() ? ParamKind::ListFromFile : ParamKind::List));
  Style_Click();
}

void PropertiesParam::LoadDefaults() {
  const std::string text = DefaultValue.Text();
  DefaultValue.Clear();
  DefaultValue.AddItems(ChoicesOf({.name = "", .kind = Kind(), .values = Content.Rows()}));
  DefaultValue.SetText(text);
}

void PropertiesParam::LoadFiles() {
  FileList.Clear();
  std::vector<std::string> names;
  for (const DirectoryEntry& entry : program_.platform.files.List(Concat({program_.ProgramPath, kListFolder}))) {
    const bool isList = entry.name.size() > kListEnd.size() && LowerCase(entry.name).ends_with(kListEnd);
    if (isList && !entry.isDirectory) names.push_back(StripExtension(entry.name));
  }
  FileList.AddItems(names);
}

void PropertiesParam::AddValue() {
  const auto value = program_.platform.windows.Input("Podaj nową domyślną wartość"_pl, "Nowa wartość"_pl, "");
  if (!value || Trim(*value).empty() || Content.IndexOf(*value) >= 0) return;
  Content.AddItem(Trim(*value).substr(0, kValueWidth));
  Content.SetListIndex(static_cast<int>(Content.ListCount()) - 1);
  LoadDefaults();
}

void PropertiesParam::RemoveValue() {
  const int row = Content.ListIndex();
  if (row < 0) return;
  Content.RemoveItem(static_cast<std::size_t>(row));
  Content.SetListIndex(std::min(row, static_cast<int>(Content.ListCount()) - 1));
  LoadDefaults();
}

ParamRecord PropertiesParam::Record() const {
  ParamRecord record;
  record.name = Trim(name_.Text());
  record.kind = Kind();
  record.defaultValue = Trim(DefaultValue.Text());
  if (record.kind == ParamKind::Colour && record.defaultValue.empty()) record.defaultValue = kNoColour;
  if (record.kind == ParamKind::Style) record.defaultValue.clear();
  if (record.kind == ParamKind::ListFromFile) record.listFile = FileList.Text();
  if (record.kind == ParamKind::List) record.values = Content.Rows();
  record.dialogType = static_cast<ParamDialog>(std::max(0, DialogType.ListIndex()));
  record.dialogVisible = DialogVisible.Value();
  record.builtIn = builtIn_;
  return record;
}

bool PropertiesParam::WriteRecord(const ParamRecord& record) {
  return SheetsOf(program_).Change([&](PropertyFile& file) {
    const std::uint32_t tag = file.FindTag(tag_);
    const bool written = oldName_.empty() ? file.AddParam(tag, record) != 0 : file.ReplaceParam(tag, oldName_, record);
    return written && file.SetInfo(tag, Info.Text());
  });
}

void PropertiesParam::SaveParam() {
  const ParamRecord record = Record();
  const auto params = ParamsOfTag(program_, tag_).value_or(std::vector<ParamRecord>());
  const bool taken = std::any_of(params.begin(), params.end(), [&](const ParamRecord& param) {
    return EqualNoCase(param.name, record.name) && !EqualNoCase(param.name, oldName_);
  });
  if (record.name.empty()) return ShowError(program_, "Podaj nazwę parametru"_pl);
  if (taken) return ShowError(program_, "Parametr jest już dodany"_pl);
  if (!WriteRecord(record)) return ShowError(program_, kSheetsNotWritten);
  saved_ = record.name;
  Hide();
}

std::string AddParamOf(Program& program, std::string_view tag) { return ShowFor(program, tag, ""); }
std::string EditParamOf(Program& program, std::string_view tag, std::string_view param) { return ShowFor(program, tag, param); }

}  // namespace morlan
