#include "core/closing.h"

#include <algorithm>

#include "core/document.h"
#include "core/documents.h"
#include "core/frmbrowser.h"
#include "core/frontend.h"
#include "core/morlan.h"
#include "core/recovery.h"
#include "core/savedocument.h"
#include "core/text.h"
#include "core/windowslist.h"

namespace morlan {
namespace {

constexpr std::string_view kUntitledPage = "BezTytułu.html"_pl;

Answer AskToSave(Program& program, const TEditor& document) {
  return program.platform.windows.Message({.text = Concat({"Plik ", document.Caption(), " został zmieniony. Zapisać zmiany ?"_pl}),
                                           .title = "Morlan7",
                                           .icon = Icon::Question,
                                           .buttons = Buttons::YesNoCancel});
}

bool IsOpen(const Program& program, const TEditor* document) {
  return std::any_of(program.documents.begin(), program.documents.end(), [&](const auto& open) { return open.get() == document; });
}

void SetActive(Program& program, TEditor* document) {
  program.ActiveDocument = document;
  program.ActiveEditor = document ? &document->EditedText : nullptr;
}

void Forget(Program& program, TEditor& document) {
  const auto place =
      std::find_if(program.documents.begin(), program.documents.end(), [&](const auto& open) { return open.get() == &document; });
  if (place == program.documents.end()) return;
  program.closedDocuments.push_back(*place);
  program.documents.erase(place);
  if (program.ActiveDocument == &document) SetActive(program, program.documents.empty() ? nullptr : program.documents.back().get());
  KeepChanges(program);
  if (program.documents.empty()) HideViewer(program);
  program.frontEnd.DocumentClosed(document);
}

void BringActiveForward(Program& program) {
  if (program.ActiveDocument) ActivateDocument(program, *program.ActiveDocument);
}

}  // namespace

bool TEditor::Form_Unload() {
  if (program_.DocumentLoading || !EditedText.Modified || EditedText.Length() == 0) return true;
  const Answer answer = AskToSave(program_, *this);
  if (answer != Answer::Yes) return answer == Answer::No;
  program_.ActiveDocument = this;
  program_.ActiveEditor = &EditedText;
  // A write that failed before has cleared the label, though the text is still not in the file.
  NeedToBeSaved.SetCaption("True");
  // Where the text cannot be written the window stays, or the work would be lost without a word.
  return SaveActiveDocument(program_) != SaveOutcome::Failed;
}

bool UnloadDocument(Program& program, TEditor& document) {
  const bool loading = program.DocumentLoading;
  if (!document.Form_Unload()) return false;
  Forget(program, document);
  if (loading) return true;
  program.DialogChoice = 0;
  program.platform.windows.Yield();
  program.WindowsListDirty = true;
  UpdateWindowsManager(program);
  return true;
}

bool CloseDocument(Program& program, TEditor& document) {
  TEditor* const before = program.ActiveDocument;
  const bool closed = UnloadDocument(program, document);
  if (closed && program.ActiveDocument == before) return true;
  // Saving makes a document the active one; what was in front before stays in front.
  if (closed && IsOpen(program, before)) SetActive(program, before);
  BringActiveForward(program);
  return closed;
}

void CloseActiveDocument(Program& program) {
  if (!program.ActiveDocument) return;
  if (TEditor* document = FindDocument(program, program.ActiveDocument->Caption())) CloseDocument(program, *document);
}

void CloseAllDocuments(Program& program) {
  const std::vector<std::shared_ptr<TEditor>> all = program.documents;
  for (std::size_t i = all.size(); i-- > 0;) UnloadDocument(program, *all[i]);
  UpdateWindowsManager(program);
  BringActiveForward(program);
}

bool UnloadAllDocuments(Program& program) {
  while (!program.documents.empty()) {
    const std::shared_ptr<TEditor> document = program.documents.front();
    if (document->EditedText.Modified && document.get() != program.ActiveDocument) ActivateDocument(program, *document);
    if (UnloadDocument(program, *document)) continue;
    BringActiveForward(program);
    return false;
  }
  return true;
}

void CloseUnusedEmptyDocument(Program& program, const TEditor& newcomer) {
  const std::vector<std::shared_ptr<TEditor>> all = program.documents;
  for (const auto& document : all)
    if (document.get() != &newcomer && document->Caption() == kUntitledPage && document->EditedText.Length() == 0)
      UnloadDocument(program, *document);
}

}  // namespace morlan
