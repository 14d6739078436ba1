#include "core/recovery.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "core/document.h"
#include "core/documents.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "core/sizetext.h"
#include "core/status.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::size_t kShownCharacters = 4000;
constexpr int kPatienceAtEnd = 2000;  // milliseconds

std::string_view KindText(KeptKind kind) {
  switch (kind) {
    case KeptKind::Loaded:
      return "tak jak po otwarciu";
    case KeptKind::Replaced:
      return "sprzed zapisu";
    case KeptKind::Unsaved:
      break;
  }
  return "niezapisane zmiany";
}

std::string MomentText(const DateTime& moment, const char* pattern) {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), pattern, moment.year, moment.month, moment.day, moment.hour, moment.minute, moment.second);
  return text.data();
}

bool HasUnsavedChanges(const TEditor& document) { return document.IsModified() || document.EditedText.Modified; }

// The name of a copy: "strona (2026-11-21 07.10.00).html".
std::string NameOfCopy(const KeptText& kept) {
  const std::string name = FileNameOf(kept.path), stem = StripExtension(name);
  const std::string_view extension = std::string_view(name).substr(stem.size());
  return Concat({std::string_view(kept.path).substr(0, kept.path.size() - name.size()), stem,
                 MomentText(kept.moment, " (%04d-%02d-%02d %02d.%02d.%02d)"), extension});
}

void ShowNotice(Program& program, std::string_view text) {
  program.platform.windows.Message({.text = std::string(text), .title = "Odzyskiwanie", .icon = Icon::Information});
}

}  // namespace

// --- keeping

void KeepChanges(Program& program) {
  if (!program.safety) return;
  std::vector<std::string> changed;
  for (const auto& document : program.documents) {
    if (!HasUnsavedChanges(*document)) continue;
    changed.push_back(document->Caption());
    if (document->keptRevision == document->EditedText.Revision()) continue;
    document->keptRevision = document->EditedText.Revision();
    program.safety->KeepUnsaved(document->Caption(), Concat({document->EditedText.FrontText(), document->EditedText.BackText()}));
  }
  program.safety->ForgetUnsavedBut(changed);
}

bool KeepChangesNow(Program& program) {
  if (!program.safety) return true;
  KeepChanges(program);
  return program.safety->Finish(kPatienceAtEnd);
}

// --- giving back

void OpenKeptText(Program& program, const KeptText& kept) {
  std::optional<std::string> text = program.safety ? program.safety->Read(kept) : std::nullopt;
  if (!text) return ShowError(program, "Tego tekstu już nie ma."_pl);
  const bool isUnsaved = kept.kind == KeptKind::Unsaved;
  if (!isUnsaved) text = DecodeDocumentCharSet(program, *std::move(text), kept.path);
  TEditor* sameName = isUnsaved ? FindDocument(program, kept.path) : nullptr;
  // The empty page of the start gives its place to an untitled text of the same name.
  if (sameName && sameName->EditedText.Length() == 0 && !HasUnsavedChanges(*sameName))
    ActivateDocument(program, *sameName);
  else
    NewDocumentOfName(program, isUnsaved && !sameName ? kept.path : NameOfCopy(kept));
  TEditor& document = *program.ActiveDocument;
  document.EditedText.SetSelText(*text);
  document.EditedText.Select(0, 0);
  if (document.EditedText.UseColorise && program.passes.colourDocument) program.passes.colourDocument(document.EditedText);
  document.CharSet.SetCaption(program.CurrentCharset);
  if (!isUnsaved) return;
  // The text is this program's own from now on, and kept as such before the other one's goes.
  KeepChanges(program);
  program.safety->Delete(kept);
}

std::string KeptTextRow(const KeptText& kept) {
  return Concat({FileNameOf(kept.path), " - ", KindText(kept.kind), ", ", MomentText(kept.moment, "%04d-%02d-%02d %02d:%02d:%02d"), ", ",
                 SizeText(kept.size)});
}

void OfferLeftBehind(Program& program) {
  if (!program.safety) return;
  std::vector<KeptText> left = program.safety->LeftBehind();
  if (left.empty()) return;
  program.frame().splashShown = true;  // the greeting would come up above this form
  Recovery& form = program.forms.Get<Recovery>();
  form.SetTexts(std::move(left), "Program nie zakończył ostatnio pracy. Oto teksty, których nie zdążono zapisać:"_pl);
  program.platform.windows.ShowModal(form);
}

void ShowRecovery(Program& program) {
  Recovery& form = program.forms.Get<Recovery>();
  form.SetTexts(program.safety ? program.safety->All() : std::vector<KeptText>(), "Teksty zachowane przez program, od najnowszego:");
  program.platform.windows.ShowModal(form);
}

// --- the form

Recovery::Recovery(Program& program) : Form("Recovery", "Odzyskiwanie"), program_(program) {
  Teksty.HeightInRows = 8;
  Teksty.OnChange = [this] { ShowContent(); };
  Teksty.OnDblClick = Command2.OnClick = [this] { OpenSelected(); };
  Teksty.SetToolTip("Zachowane teksty; podwójne kliknięcie otwiera wybrany"_pl).SetAccessibleName("Zachowane teksty");
  Zawartosc.ReadOnly = true;
  Zawartosc.WidthInCharacters = 70;
  Zawartosc.SetToolTip("Początek wybranego tekstu"_pl).SetAccessibleName("Zawartość"_pl);
  Command2.SetToolTip("Otwiera wybrany tekst jako zmieniony dokument");
  Command3.SetToolTip("Zapisuje wybrany tekst do pliku, bajt po bajcie");
  Command4.SetToolTip("Usuwa wybrany tekst na zawsze");
  Command3.OnClick = [this] { SaveCopy(); };
  Command4.OnClick = [this] { DeleteSelected(); };
  Command1.OnClick = [this] { Hide(); };
  layout = layout::Rows(Info, Teksty, Zawartosc, layout::ButtonRow(Command2, Command3, Command4, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &Teksty;
}

void Recovery::SetTexts(std::vector<KeptText> texts, std::string_view info) {
  texts_ = std::move(texts);
  Info.SetCaption(info);
  Teksty.Clear();
  for (const KeptText& kept : texts_) Teksty.AddItem(KeptTextRow(kept));
  Teksty.SetListIndex(texts_.empty() ? -1 : 0);
  ShowContent();
}

const KeptText* Recovery::Selected() const {
  const auto row = static_cast<std::size_t>(Teksty.ListIndex());
  return row < texts_.size() ? &texts_[row] : nullptr;
}

void Recovery::ShowContent() {
  const KeptText* kept = Selected();
  for (Button* button : {&Command2, &Command3, &Command4}) button->SetEnabled(kept != nullptr);
  const auto text = kept && program_.safety ? program_.safety->Read(*kept) : std::nullopt;
  Zawartosc.SetText(text ? std::string_view(*text).substr(0, kShownCharacters) : std::string_view());
}

void Recovery::RemoveRow() {
  const int row = Teksty.ListIndex();
  texts_.erase(texts_.begin() + row);
  Teksty.RemoveItem(static_cast<std::size_t>(row));
  Teksty.SetListIndex(std::min(row, static_cast<int>(texts_.size()) - 1));
  ShowContent();
}

void Recovery::OpenSelected() {
  const KeptText* kept = Selected();
  if (!kept) return;
  OpenKeptText(program_, *kept);
  const bool isGone = kept->kind == KeptKind::Unsaved;
  if (isGone) RemoveRow();
  if (!isGone || texts_.empty()) Hide();
}

void Recovery::SaveCopy() {
  const KeptText* kept = Selected();
  const auto bytes = kept && program_.safety ? program_.safety->Read(*kept) : std::nullopt;
  if (!bytes) return;
  FileRequest request;
  request.mode = FileRequest::Mode::Save;
  request.title = "Zapisz kopię"_pl;
  request.filter = "Wszystkie pliki (*.*)|*.*|";
  request.directory = PathOf(kept->path);
  request.fileName = FileNameOf(NameOfCopy(*kept));
  request.overwritePrompt = true;
  const std::string path = program_.platform.windows.AskFile(request).value_or("");
  if (!path.empty() && !program_.platform.files.Write(path, *bytes)) ShowNotice(program_, "Nie mogę zapisać kopii."_pl);
}

void Recovery::DeleteSelected() {
  const KeptText* kept = Selected();
  if (!kept || !program_.safety) return;
  const Answer answer = program_.platform.windows.Message(
      {.text = std::string("Usunąć ten tekst na zawsze ?"_pl), .title = "Odzyskiwanie", .icon = Icon::Question, .buttons = Buttons::YesNo});
  if (answer != Answer::Yes) return;
  program_.safety->Delete(*kept);
  RemoveRow();
}

}  // namespace morlan
