#include "tags/properties.h"

#include <algorithm>
#include <iterator>

#include "core/defs.h"
#include "core/document.h"
#include "core/paths.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/colours.h"
#include "tags/propertieseditor.h"
#include "tags/propertiesparam.h"
#include "tags/propertyhints.h"
#include "tags/propertysheets.h"
#include "tags/sheetchoices.h"
#include "tags/styleclasses.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr int kFieldWidth = 32;

std::string ArrayName(std::string_view name, std::size_t index) {
  return Concat({name, "(", NumberText(static_cast<std::int64_t>(index)), ")"});
}

void SetValueText(Control& value, std::string_view text) {
  if (auto* combo = dynamic_cast<ComboBox*>(&value)) return combo->SetText(text);
  static_cast<TextBox&>(value).SetText(text);
}

// A name is no caption: its "&" is itself.
std::string CaptionOf(std::string_view name) { return Replaced(name, "&", "&&"); }

// Where a link in the document leads, in the program's form.
std::string PathOfLink(const TEditor& document, std::string_view link) {
  const std::string path = Replaced(link, "/", "\\");
  const bool isWhole = path.starts_with('\\') || path.find(':') != std::string::npos;
  return isWhole ? path : Concat({WithBackslash(PathOf(document.Caption())), path});
}

}  // namespace

Properties::Properties(Program& program) : Form("Properties", "Właściwości"_pl), program_(program) {
  defaultButton = &Command2;
  cancelButton = &Command1;
  OnLoad = [this] { Form_Load(); };
  Command2.OnClick = [this] {
    Hide();
    TakeTag();
  };
  Command1.OnClick = [this] {
    Hide();
    FocusActiveDocument(program_);
  };
  SetUpCssPage();
}

void Properties::SetUpCssPage() {
  UseClass.SetToolTip("Znacznik dostaje atrybut CLASS");
  ClassList.SetToolTip("Klasy tego znacznika z dokumentu i z dołączonych arkuszy; można wpisać inną"_pl);
  UseDef.SetToolTip("Znacznik dostaje atrybut STYLE");
  StyleList.SetToolTip("Style zapisane na dysku; bez wyboru zostaje styl, który znacznik już ma"_pl);
  ClassList.OnChange = [this] { UseClass.SetValue(!ClassList.Text().empty()); };
  StyleList.OnChange = [this] { UseDef.SetValue(true); };
}

void Properties::Form_Load() {
  SheetsOf(program_).ReadIfChanged();
  const std::string tag = program_.tagState.CurrentTagText;
  tagName_ = TagNameOf(tag);
  SetCaption(Concat({"Właściwości <"_pl, tagName_, ">"}));
  BuildSheet(tagName_);
  ReadTag(tag);
  LoadExternalClass(tagName_);
  LoadLocalClass(tagName_);
  LoadStyles();
  LayOut();
}

void Properties::BuildSheet(std::string_view tagName) {
  attributes.clear();
  events.clear();
  hasCss_ = false;
  const PropertyFile& file = SheetsOf(program_).File();
  const std::uint32_t position = file.FindTag(tagName);
  const auto& tags = file.Tags();
  const auto tag = std::find_if(tags.begin(), tags.end(), [position](const TagRecord& record) { return record.position == position; });
  Info.SetCaption(tag == tags.end() ? "Ten znacznik nie ma arkusza właściwości"_pl : std::string_view(CaptionOf(tag->info)));
  for (const ParamRecord& param : file.Params(position).value_or(std::vector<ParamRecord>())) AddRow(param);
}

void Properties::AddRow(const ParamRecord& param) {
  if (param.kind == ParamKind::Style) {
    hasCss_ = true;
    return;
  }
  const bool isEvent = param.kind == ParamKind::Event;
  std::vector<SheetRow>& rows = isEvent ? events : attributes;
  SheetRow row;
  row.kind = param.kind;
  row.name = std::make_unique<Label>(*this, ArrayName(isEvent ? "Event_" : "Name_", rows.size()), CaptionOf(param.name));
  row.name->Tag = NumberText(static_cast<std::int64_t>(param.kind));
  row.value = MakeValue(ArrayName(isEvent ? "EvValue_" : "Value_", rows.size()), param);
  row.value->SetToolTip(ToolTipOf(param.kind));
  SetValueText(*row.value, DefaultOf(param));
  if (param.kind == ParamKind::Dialog && param.dialogVisible) {
    row.dialog = std::make_unique<Button>(*this, ArrayName("Dialog_", rows.size()), "...");
    SetUpDialog(row, param.dialogType);
  }
  rows.push_back(std::move(row));
}

std::unique_ptr<Control> Properties::MakeValue(std::string_view name, const ParamRecord& param) {
  if (!HasChoices(param.kind)) {
    auto field = std::make_unique<TextBox>(*this, name);
    field->WidthInCharacters = kFieldWidth;
    return field;
  }
  auto box = std::make_unique<ComboBox>(*this, name);
  box->WidthInCharacters = kFieldWidth;
  const bool isList = param.kind == ParamKind::List || param.kind == ParamKind::ListFromFile;
  if (isList && EqualNoCase(param.name, "face")) {
    ShowBusy(program_, "Wczytuję listę czcionek"_pl);
    LoadFontNames(program_, *box);
    ShowReady(program_);
  } else if (param.kind == ParamKind::ListFromFile) {
    LoadComboFromList(program_, *box, Concat({"Listy\\", param.listFile, ".lst"}));
  } else {
    box->AddItems(ChoicesOf(param));
  }
  return box;
}

void Properties::SetUpDialog(SheetRow& row, ParamDialog type) {
  auto& field = static_cast<TextBox&>(*row.value);
  if (type != ParamDialog::Colour) return SetUpFileButton(program_, *row.dialog, field, FilterOf(type));
  row.dialog->SetToolTip("Wybiera kolor").SetAccessibleName("Wybierz kolor");
  row.dialog->OnClick = [this, &field] {
    const auto colour = program_.platform.windows.AskColour(ColorNameToValue(field.Text()));
    if (colour) field.UserSets(Concat({"#", ColorToHex(*colour)}));
  };
}

void Properties::ReadTag(const std::string& tag) {
  for (std::vector<SheetRow>* rows : {&attributes, &events}) {
    for (const SheetRow& row : *rows) {
      std::string value = ReadAttribute(tag, Replaced(row.name->Caption(), "&&", "&"));
      if (row.kind == ParamKind::Switch && TextToBool(value)) value = "TRUE";
      if (!value.empty()) SetValueText(*row.value, value);
    }
  }
  const std::string cssClass = HasRow("class") ? "" : GetTagParam(tag, "class");
  oldStyle_ = HasRow("style") ? "" : GetTagParam(tag, "style");
  UseClass.SetValue(!cssClass.empty());
  ClassList.Clear();
  ClassList.SetText(cssClass);
  UseDef.SetValue(!oldStyle_.empty());
  StyleList.Clear();
}

bool Properties::HasRow(std::string_view attribute) const {
  return std::any_of(attributes.begin(), attributes.end(),
                     [&](const SheetRow& row) { return EqualNoCase(row.name->Caption(), attribute); });
}

void Properties::LoadExternalClass(std::string_view tagName) {
  ShowBusy(program_, "Wczytuję listę klas zewnętrzych"_pl);
  if (const TEditor* document = program_.ActiveDocument) {
    for (const std::string& link : LinkedSheets(document->EditedText.Text()))
      if (const auto content = program_.platform.files.Read(PathOfLink(*document, link)))
        ClassList.AddItems(ClassesInFile(*content, tagName));
  }
  ShowReady(program_);
}

void Properties::LoadLocalClass(std::string_view tagName) {
  ShowBusy(program_, "Wczytuję listę klas lokanych"_pl);
  if (program_.ActiveEditor) ClassList.AddItems(ClassesInPage(program_.ActiveEditor->Text(), tagName));
  ClassList.SetText(std::string(ClassList.Text()));  // the row of the text, where it has one
  ShowReady(program_);
}

void Properties::LoadStyles() {
  ShowBusy(program_, "Wczytuję listę zdefiniowanych styli"_pl);
  const StyleSource& source = SheetsOf(program_).styles;
  if (source.IsThere()) StyleList.AddItems(source.styleNames());
  UseClass.SetVisible(hasCss_);
  ClassList.SetVisible(hasCss_);
  UseDef.SetVisible(hasCss_ && source.IsThere());
  StyleList.SetVisible(hasCss_ && source.IsThere());
  ShowReady(program_);
}

SheetValues Properties::Values() const {
  SheetValues values;
  values.tagName = tagName_;
  const auto copy = [](const std::vector<SheetRow>& rows, std::vector<SheetAttribute>& target) {
    for (const SheetRow& row : rows) target.push_back({Replaced(row.name->Caption(), "&&", "&"), row.kind, row.value->ValueText()});
  };
  copy(attributes, values.attributes);
  copy(events, values.events);
  if (UseDef.Value()) values.style = StyleList.ListIndex() < 0 ? oldStyle_ : SheetsOf(program_).styles.StyleTextByName(StyleList.Text());
  if (UseClass.Value()) values.cssClass = ClassList.Text();
  return values;
}

void Properties::TakeTag() {
  const std::size_t start = program_.tagState.CurrentTagStart;
  if (!program_.ActiveDocument || start == 0) return;
  TEditor& document = *program_.ActiveDocument;
  MlnEditor& editor = document.EditedText;
  const std::string& oldTag = program_.tagState.CurrentTagText;
  const std::size_t end = morlan::Find(editor.Text(), ">", start);
  // Another document may have come forward meanwhile.
  if (end == 0 || std::string_view(editor.Text()).substr(start - 1, oldTag.size()) != oldTag) return;
  editor.SetSelStart(start - 1);
  editor.SetSelLength(end - start + 1);
  const std::string newTag = PropertyText(Values());
  document.UNDO.AddChange(start - 1, 0, newTag, editor.SelText(), ChangeKind::Replacement);
  document.ReplaceAndColour(newTag);
  FocusActiveDocument(program_);
}

void Properties::LayOut() {
  const auto page = [](std::string_view caption, const std::vector<SheetRow>& rows) {
    Layout fields = layout::Rows();
    for (const SheetRow& row : rows) fields.children.push_back(layout::Field(row.name->Caption(), *row.value, row.dialog.get()));
    return layout::Group(caption, layout::Scrolled(std::move(fields)));
  };
  Layout pages = layout::Pages(page("Atrybuty", attributes));
  if (!events.empty()) pages.children.push_back(page("Zdarzenia", events));
  if (hasCss_) {
    Layout css = layout::Group("CSS", UseClass, layout::Field("K&lasa", ClassList));
    if (UseDef.Visible()) css.children.insert(css.children.end(), {UseDef, layout::Field("S&tyl", StyleList)});
    pages.children.push_back(std::move(css));
  }
  layout = layout::Rows(Info, pages, layout::ButtonRow(Command2, Command1));
  firstFocus = attributes.empty() ? static_cast<Control*>(&Command1) : attributes.front().value.get();
  Command2.SetEnabled(HasPropertySheet(program_, tagName_));
}

bool OpenPropertySheet(Program& program, TEditor& document) {
  const FoundTag found = FindTagAt(document.EditedText.Text(), document.EditedText.SelStart());
  if (found.start == 0 || !HasPropertySheet(program, TagNameOf(found.text))) return false;
  program.tagState.CurrentTagStart = found.start;
  program.tagState.CurrentTagText = found.text;
  program.platform.windows.ShowModal(program.forms.Get<Properties>());
  return true;
}

namespace {

// By its name the sheet comes up for any tag, be it without rows.
void ShowSheetAtCaret(Program& program) {
  if (program.ActiveDocument && OpenPropertySheet(program, *program.ActiveDocument)) return;
  program.tagState.CurrentTagStart = 0;
  program.tagState.CurrentTagText.clear();
  program.platform.windows.ShowModal(program.forms.Get<Properties>());
}

}  // namespace

void RegisterPropertySheets(Program& program) {
  program.hooks.openPropertySheet = [&program](TEditor& document) { return OpenPropertySheet(program, document); };
  program.hints.fillHintList = [&program](ListBox& list, std::string_view tagName) { FillHintList(program, list, tagName); };
  program.hints.hintBlockText = [&program](std::string_view tagName) { return HintBlockText(program, tagName); };
  program.commands.OnMenu("xmn_properties", [&program] {
    if (program.ActiveDocument) OpenPropertySheet(program, *program.ActiveDocument);
  });
  program.commands.OnMenu("mn_propertieseditor", [&program] { EditProperties(program); });
  program.forms.OnShow("Properties", [&program] { ShowSheetAtCaret(program); });
  program.forms.OnShow("PropertiesEditor", [&program] { EditProperties(program); });
  program.forms.OnShow("PropertiesParam", [&program] {
    const auto& tags = SheetsOf(program).File().Tags();
    const std::string selected = program.forms.Get<PropertiesEditor>().Znaczniki.SelectedRow();
    if (!tags.empty()) AddParamOf(program, selected.empty() ? tags.front().name : selected);
  });
}

}  // namespace morlan
