#include "core/newdoc.h"

#include "core/documents.h"
#include "core/filepanel.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/status.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kTemplates = "SZABLONY\\";
constexpr std::string_view kExtension = ".hst";

void SetMeta(Program& program, std::string_view name, std::string_view content) {
  if (program.passes.setMeta) program.passes.setMeta("HTTP-EQUIV", name, content);
}

// The META tags of a new page; `quote` goes in front of the charset's name.
void SetPageMeta(Program& program, std::string_view quote) {
  const std::string charset = Settings(program.MainIni).Text(Setting::CharSet);
  SetMeta(program, "Content-Type", Concat({"text/html;CHARSET=", quote, charset}));
  SetMeta(program, "Generator", GeneratorText);
  if (program.passes.markCharset && program.ActiveDocument) program.passes.markCharset(*program.ActiveDocument);
}

void OpenFromTemplate(Program& program) {
  const std::string file = program.DialogResult, base = WithBackslash(program.platform.files.CurrentDirectory());
  if (DocumentKindOf(program, file) == "channel")
    OpenDocumentAs(program, file, base + UniqueCdfName(program));
  else if (OpenDocumentAs(program, file, base + UniqueHtmlName(program)))
    SetPageMeta(program, "");
}

// The stray quote in the META tag of a new template belongs there.
void OpenNewTemplate(Program& program) {
  const std::string file = program.DialogResult;
  if (OpenDocumentAs(program, file, file)) SetPageMeta(program, Quote);
}

}  // namespace

NewDoc::NewDoc(Program& program) : Form("NewDoc", "Nowy dokument"), program_(program) {
  OnLoad = [this] { ListTemplates(); };
  // The second "\" makes the path differ from that of a template which is open for editing.
  Command1.OnClick = [this] {
    Leave(Concat({program_.ProgramPath, kTemplates, "\\", DocList.SelectedRow(), kExtension}), newdoc::kFromTemplate);
  };
  DocList.OnDblClick = Command1.OnClick;
  Command6.OnClick = [this] { Leave(TemplateFile(TempList.SelectedRow()), newdoc::kEditTemplate); };
  Command3.OnClick = [this] { Leave(TemplateFile("Bez tytułu"_pl), newdoc::kNewTemplate); };
  Command5.OnClick = [this] { DeleteTemplate(); };
  for (Button* cancel : {&Command2, &Command4})
    cancel->OnClick = [this] {
      program_.DialogChoice = newdoc::kCancelled;
      Hide();
    };
  TempList.OnDblClick = Command6.OnClick;
  DocList.SetToolTip("Szablony, od których można zacząć nowy dokument"_pl).SetAccessibleName("Typ dokumentu");
  TempList.SetToolTip("Szablony do zmiany; podwójne kliknięcie otwiera wybrany"_pl).SetAccessibleName("Wybierz szablon");
  defaultButton = &Command1;
  cancelButton = &Command2;
  layout = layout::Pages(layout::Group("Typ dokumentu", DocList, layout::ButtonRow(Command1, Command2)),
                         layout::Group("Wybierz szablon", TempList, layout::ButtonRow(Command3, Command5, Command6, Command4)));
}

std::string NewDoc::TemplateFile(std::string_view name) const { return Concat({program_.ProgramPath, kTemplates, name, kExtension}); }

void NewDoc::ListTemplates() {
  program_.DialogChoice = newdoc::kCancelled;
  std::vector<std::string> names;
  for (const DirectoryEntry& entry : program_.platform.files.List(Concat({program_.ProgramPath, kTemplates})))
    if (!entry.isDirectory && MatchesPattern(entry.name, "*.hst")) names.push_back(StripExtension(entry.name));
  for (ListBox* list : {&DocList, &TempList}) {
    list->Clear();
    list->AddItems(names);
    list->SetListIndex(0);
  }
}

void NewDoc::Leave(std::string_view file, int choice) {
  program_.DialogResult = file;
  program_.DialogChoice = static_cast<std::uint8_t>(choice);
  Hide();
}

void NewDoc::DeleteTemplate() {
  const std::string name = TempList.SelectedRow();
  if (name.empty()) return;
  const Answer answer = program_.platform.windows.Message(
      {.text = Concat({"Usunąć szablon "_pl, name, " ?"}), .title = "Szablony", .icon = Icon::Question, .buttons = Buttons::YesNo});
  if (answer != Answer::Yes || !program_.platform.files.Delete(TemplateFile(name))) return;
  program_.platform.windows.Message({.text = std::string("Szablon usunięty"_pl)});
  for (ListBox* list : {&DocList, &TempList})
    if (const int row = list->IndexOf(name); row >= 0) list->RemoveItem(static_cast<std::size_t>(row));
}

void NewDocument(Program& program) {
  program.platform.windows.ShowModal(program.forms.Get<NewDoc>());
  switch (program.DialogChoice) {
    case newdoc::kFromTemplate:
      OpenFromTemplate(program);
      break;
    case newdoc::kEditTemplate:
      OpenDocument(program, std::string(program.DialogResult));
      break;
    case newdoc::kNewTemplate:
      OpenNewTemplate(program);
      break;
    default:
      break;
  }
  EnableToolbars(program);
}

}  // namespace morlan
