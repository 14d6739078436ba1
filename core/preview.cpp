#include "core/preview.h"

#include <algorithm>

#include "core/document.h"
#include "core/documents.h"
#include "core/frmbrowser.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/status.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kPreviewName = "Morlan7.html";
constexpr std::string_view kDesktopBrowser = "domyślna"_pl;
constexpr int kMaximised = 3;

bool IsOpenDocument(const Program& program, std::string_view path) {
  return std::any_of(program.documents.begin(), program.documents.end(),
                     [&](const auto& document) { return EqualNoCase(document->Caption(), path); });
}

// Beside the document, so that its relative links and pictures work.
std::string PreviewPath(Program& program) {
  std::string path = Concat({PathOf(program.ActiveDocument->Caption()), "\\", kPreviewName});
  if (path.starts_with('\\')) path = Concat({WithBackslash(program.platform.files.CurrentDirectory()), kPreviewName});
  // A page of that very name must not be written without having been saved, nor deleted at the end.
  return IsOpenDocument(program, path) ? Concat({program.TempDir, kPreviewName}) : path;
}

void WritePreviewFile(Program& program) {
  if (!IsOpenDocument(program, program.PreviewFile)) program.platform.files.Delete(program.PreviewFile);
  program.PreviewFile = PreviewPath(program);
  WriteDocumentTo(program, program.PreviewFile);
}

const std::string& ShownFile(const Program& program) {
  return program.AlwaysViewFile.empty() ? program.PreviewFile : program.AlwaysViewFile;
}

}  // namespace

void PreviewDocument(Program& program) { PreviewInBrowser(program, Settings(program.MainIni).Text(Setting::CurrentBrowser)); }

void PreviewInBrowser(Program& program, std::string_view browser) {
  if (!program.ActiveDocument) return;
  const bool isDesktops = browser.empty() || LowerCase(browser) == kDesktopBrowser;
  if (!isDesktops && !FileExists(program, browser)) return ShowError(program, "Nie mogę otworzyć przeglądarki"_pl);
  WritePreviewFile(program);
  // A browser that does not start is passed over in silence.
  if (isDesktops)
    program.platform.processes.Open(ShownFile(program));
  else
    program.platform.processes.Start(Concat({browser, " ", ShownFile(program)}), kMaximised);
}

void SelViewer_Click(Program& program) {
  if (!program.ActiveDocument) return;
  WritePreviewFile(program);
  ShowViewer(program, Concat({"file://", TrimLeft(ShownFile(program))}));
}

void SelEditor_Click(Program& program) {
  HideViewer(program);
  FocusActiveDocument(program);
}

}  // namespace morlan
