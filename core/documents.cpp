#include "core/documents.h"

#include <algorithm>
#include <utility>

#include "core/closing.h"
#include "core/document.h"
#include "core/frmbrowser.h"
#include "core/frontend.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "core/programmenus.h"
#include "core/safetystore.h"
#include "core/status.h"
#include "core/text.h"
#include "core/windowslist.h"

namespace morlan {
namespace {

constexpr std::string_view kUntitled = "BezTytułu"_pl;
constexpr std::size_t kPageTestLength = 200;

struct TypeRow {
  std::string_view extension, fileType;
};
constexpr TypeRow kFileTypes[] = {{"hst", "szablon"}, {"mac", "makro"}, {"cdf", "cdf"}};

std::string_view FileTypeOf(std::string_view path) {
  const std::string extension = LowerCase(ExtensionOf(FileNameOf(path)));
  for (const TypeRow& row : kFileTypes)
    if (row.extension == extension) return row.fileType;
  return "html";
}

std::string UniqueName(const Program& program, std::string_view extension) {
  std::string candidate = Concat({kUntitled, extension});
  const auto taken = [&] {
    return std::any_of(program.documents.begin(), program.documents.end(),
                       [&](const auto& document) { return FileNameOf(document->Caption()) == candidate; });
  };
  for (std::int64_t counter = 1; taken(); ++counter) candidate = Concat({kUntitled, NumberText(counter), extension});
  return candidate;
}

bool LooksLikePage(std::string_view text) { return FindNoCase(text.substr(0, kPageTestLength), "<html>") != 0; }

std::string WithGenerator(Program& program, std::string text) {
  if (!program.passes.setMetaInText) return text;
  return program.passes.setMetaInText(std::move(text), "HTTP-EQUIV", "Generator", GeneratorText);
}

TEditor& MakeDocument(Program& program, std::string_view caption) {
  const auto document = std::make_shared<TEditor>(program);
  program.documents.push_back(document);
  document->SetCaption(caption);
  SetUpMenu(program, document->menu);
  document->Form_Initialize();
  document->Form_Load();
  return *document;
}

// The window that has the path comes forward; false when there is none.
bool BringForward(Program& program, std::string_view path) {
  TEditor* document = FindDocument(program, path);
  if (!document) return false;
  ActivateDocument(program, *document);
  return true;
}

std::optional<std::string> ReadDocument(Program& program, std::string_view path) {
  if (FileExists(program, path)) {
    ShowBusy(program, Concat({"Otwieranie pliku...", path}));
    program.DocumentLoading = true;
    if (auto text = program.platform.files.Read(path)) {
      if (program.safety) program.safety->KeepLoaded(path, *text);
      return text;
    }
    program.DocumentLoading = false;
    ShowReady(program);
  }
  // The message has two blanks, since it names no file.
  ShowError(program, "Plik  nie istnieje !");
  return std::nullopt;
}

// What opening under the file's own name and under another title have in common, from the finished text on.
void Settle(Program& program, TEditor& document, std::string text, std::string_view path) {
  document.EditedText.SetText(std::move(text));
  if (document.EditedText.UseColorise && program.passes.colourDocument) program.passes.colourDocument(document.EditedText);
  document.FileType.SetCaption(FileTypeOf(document.Caption()));
  CloseUnusedEmptyDocument(program, document);
  RememberOpened(program, path);
  document.CharSet.SetCaption(program.CurrentCharset);
  document.EditedText.SetSelStart(0);
  document.EditedText.Modified = false;
  document.NeedToBeSaved.SetCaption("False");
  AddTab(program, document);
  UpdateWindowsManager(program);
  EnableToolbars(program);
}

void ShowEndOfLoad(Program& program) { ShowReady(program, std::exchange(program.LoadNotice, "")); }

// A document's window comes forward, and the viewer leaves its place to it.
void ComeForward(Program& program, TEditor& document) {
  HideViewer(program);
  program.frontEnd.DocumentActivated(document);
}

void SetActive(Program& program, TEditor& document) {
  program.ActiveDocument = &document;
  program.ActiveEditor = &document.EditedText;
}

}  // namespace

std::string UniqueHtmlName(Program& program) { return UniqueName(program, ".html"); }
std::string UniqueCdfName(Program& program) { return UniqueName(program, ".cdf"); }

TEditor* FindDocument(Program& program, std::string_view caption) {
  for (const auto& document : program.documents)
    if (document->Caption() == caption) return document.get();
  return nullptr;
}

FileRequest OpenRequest(const Program& program) {
  FileRequest request;
  request.title = "Otwórz dokument"_pl;
  request.filter = "Pliki HTML (*.HTML,*.HTM,*SHTM)|*.html;*.htm;*.shtm|Pliki kanałów inf. (*.CDF)|*.cdf|Wszystkie pliki (*.*)|*.*|"_pl;
  if (program.ActiveDocument) request.directory = program.ActiveDocument->LastDir.Caption();
  return request;
}

void NewEmptyDocument(Program& program) { NewDocumentOfName(program, UniqueHtmlName(program)); }

void NewDocumentOfName(Program& program, std::string_view caption) {
  TEditor& document = MakeDocument(program, caption);
  if (!PathOf(caption).empty()) document.FileType.SetCaption(FileTypeOf(caption));
  AddTab(program, document);
  document.NeedToBeSaved.SetCaption("False");
  EnableToolbars(program);
  program.frontEnd.DocumentOpened(document);
  ActivateDocument(program, document);
}

void OpenDocument(Program& program, std::string_view path) {
  if (BringForward(program, path)) return;
  std::optional<std::string> read = ReadDocument(program, path);
  if (!read) return;
  TEditor& document = MakeDocument(program, path);
  SetActive(program, document);  // whose menu takes the marks of the character set
  std::string text = DecodeDocumentCharSet(program, std::move(*read), path);
  if (LooksLikePage(text))
    text = WithGenerator(program, std::move(text));
  else
    document.EditedText.UseColorise = false;
  Settle(program, document, std::move(text), path);
  program.DocumentLoading = false;
  program.frontEnd.DocumentOpened(document);
  document.Form_Activate();
  ShowEndOfLoad(program);
  ComeForward(program, document);
  document.EditedText.SetFocus();
}

bool OpenDocumentAs(Program& program, std::string_view path, std::string_view title) {
  if (BringForward(program, path)) return true;
  std::optional<std::string> read = ReadDocument(program, path);
  if (!read) return false;
  TEditor& document = MakeDocument(program, title);
  SetActive(program, document);
  std::string text = std::move(*read);
  // The raw text is tested here, before it is decoded.
  document.EditedText.UseColorise = LooksLikePage(text);
  if (document.EditedText.UseColorise) text = WithGenerator(program, std::move(text));
  text = DecodeDocumentCharSet(program, std::move(text), path);
  Settle(program, document, std::move(text), path);
  program.frontEnd.DocumentOpened(document);
  ComeForward(program, document);
  document.EditedText.SetFocus();
  program.DocumentLoading = false;
  document.Form_Load();
  document.Form_Activate();
  ShowEndOfLoad(program);
  return true;
}

void ActivateDocument(Program& program, TEditor& document) {
  ComeForward(program, document);
  document.Form_Activate();
  document.EditedText.SetFocus();
}

void ActivateNextDocument(Program& program, int step) {
  const auto& documents = program.documents;
  const auto active =
      std::find_if(documents.begin(), documents.end(), [&](const auto& document) { return document.get() == program.ActiveDocument; });
  if (active == documents.end()) return;
  const auto count = static_cast<std::ptrdiff_t>(documents.size());
  const std::ptrdiff_t next = ((active - documents.begin() + step) % count + count) % count;
  ActivateDocument(program, *documents[static_cast<std::size_t>(next)]);
}

std::string DocumentKindOf(Program& program, std::string_view path) {
  const auto text = program.platform.files.Read(path);
  return text && FindNoCase(*text, "<!doctype channel") ? "channel" : "html";
}

std::string DecodeDocumentCharSet(Program& program, std::string text, std::string_view path) {
  if (program.passes.decode) text = program.passes.decode(std::move(text), path);
  if (program.passes.updateBlocks) text = program.passes.updateBlocks(std::move(text), path);
  return text;
}

std::string EncodeDocumentCharSet(Program& program, std::string text) {
  return program.passes.encode ? program.passes.encode(std::move(text)) : text;
}

}  // namespace morlan
