#include "core/savedocument.h"

#include "core/document.h"
#include "core/documents.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "core/safetystore.h"
#include "core/settings.h"
#include "core/status.h"
#include "core/text.h"
#include "core/windowslist.h"

namespace morlan {
namespace {

constexpr std::string_view kUntitled = "BezTytułu"_pl;

constexpr std::string_view kPages = "Plik HTML (*.HTML,*.HTM,*.SHTML)|*.htm,*.html,*.shtml|";
constexpr std::string_view kChannels = "Pliki kanałów inf. (*.CDF)|*.cdf|"_pl;
constexpr std::string_view kTexts = "Plik tekstowy (*.TXT)|*.txt|";
constexpr std::string_view kMapsAndScripts = "Plik Map (*.MAP)|*.map|Plik skryptu CGI (*.CGI)|*.cgi";
constexpr std::string_view kTemplates = "Plik szablonu (*.HST)|*.hst|";
constexpr std::string_view kMacros = "Plik makrodefinicji (*.MAC)|*.mac|";

struct TypeRow {
  std::string_view fileType, extension;
};
constexpr TypeRow kExtensions[] = {{"html", ".html"}, {"szablon", ".hst"}, {"makro", ".mac"}, {"cdf", ".cdf"}};

std::string_view ExtensionFor(std::string_view fileType) {
  for (const TypeRow& row : kExtensions)
    if (row.fileType == fileType) return row.extension;
  return kExtensions[0].extension;
}

std::string EncodedText(Program& program, const TEditor& document, std::string_view path) {
  std::string text = document.EditedText.Text();
  if (program.passes.updateBlocks) text = program.passes.updateBlocks(std::move(text), path);
  return EncodeDocumentCharSet(program, std::move(text));
}

// The old file under its backup name, unless a backup is there: the first one stays. Empty when none was made.
std::string MakeBackup(Program& program, std::string_view path) {
  Files& files = program.platform.files;
  const std::string backup = StripExtension(path) + ".Bak";
  if (files.Size(backup) || !files.Size(path) || !files.Copy(path, backup)) return "";
  return backup;
}

// The backup is a copy and the file is replaced in one go, so that a failed write leaves everything as it was.
bool WriteWithBackup(Program& program, std::string_view path, std::string_view bytes) {
  if (program.safety)
    if (auto old = program.platform.files.Read(path)) program.safety->KeepReplaced(path, *std::move(old));
  const bool wanted = Settings(program.MainIni).Flag(Setting::CreateBackup);
  const std::string backup = wanted ? MakeBackup(program, path) : std::string();
  if (program.platform.files.Write(path, bytes)) return true;
  if (!backup.empty()) program.platform.files.Delete(backup);
  return false;
}

SaveOutcome WriteDocument(Program& program, TEditor& document) {
  const std::string path = document.Caption();
  const bool written = WriteWithBackup(program, path, EncodedText(program, document, path));
  document.NeedToBeSaved.SetCaption("False");
  MarkTab(program, document, kNoMark);
  if (!written) return SaveOutcome::Failed;
  document.EditedText.Modified = false;
  return SaveOutcome::Saved;
}

void Rename(Program& program, TEditor& document, std::string_view name) {
  Tabs& tabs = program.frame().WindowsManager;
  const int tab = tabs.IndexOfKey(document.Caption());
  document.SetCaption(name);
  document.LastDir.SetCaption(PathOf(name));
  if (tab < 0) return;
  Tabs::Tab renamed = TabOf(document);
  renamed.image = kNoMark;
  tabs.Replace(static_cast<std::size_t>(tab), std::move(renamed));
}

}  // namespace

std::string SaveFilter(std::string_view fileType) {
  if (fileType == "cdf") return Concat({kChannels, kPages, kTexts, kMapsAndScripts});
  const std::string_view first = fileType == "szablon" ? kTemplates : fileType == "makro" ? kMacros : "";
  return Concat({first, kPages, kChannels, kTexts, kMapsAndScripts});
}

SaveOutcome SaveActiveDocument(Program& program) {
  TEditor* document = program.ActiveDocument;
  if (!document || !document->IsModified()) return SaveOutcome::Nothing;
  // The whole path is looked at: a page in a directory of that name counts as untitled too.
  if (FindNoCase(document->Caption(), kUntitled)) return SaveActiveDocumentAs(program);
  return WriteDocument(program, *document);
}

SaveOutcome SaveActiveDocumentAs(Program& program) {
  TEditor* document = program.ActiveDocument;
  if (!document) return SaveOutcome::Nothing;
  const std::string directory = PathOf(document->Caption());
  const std::string fileType = document->FileType.Caption();
  FileRequest request;
  request.mode = FileRequest::Mode::Save;
  request.title = "Zapisz jako";
  request.filter = SaveFilter(fileType);
  request.directory = directory.empty() ? program.platform.files.CurrentDirectory() : directory;
  request.extension = ExtensionFor(fileType);
  request.overwritePrompt = true;
  std::string name = program.platform.windows.AskFile(request).value_or("");
  if (name.empty()) return SaveOutcome::Cancelled;
  if (FileNameOf(name).find('.') == std::string::npos) name += ExtensionFor(fileType);
  Rename(program, *document, name);
  return WriteDocument(program, *document);
}

void SaveDocument(Program& program) { SaveActiveDocument(program); }
void SaveDocumentAs(Program& program) { SaveActiveDocumentAs(program); }

void WriteDocumentTo(Program& program, std::string_view path) {
  if (!program.ActiveDocument) return;
  const std::string target(path);
  if (!program.platform.files.Write(target, EncodedText(program, *program.ActiveDocument, target))) program.platform.files.Delete(target);
}

}  // namespace morlan
