#include "core/status.h"

#include "core/document.h"
#include "core/frmbrowser.h"
#include "core/frontend.h"
#include "core/morlan.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kReady = "Gotowy";
constexpr std::size_t kMessagePanel = 1;

// Calls `visit` for each line, without its line end, until it answers false.
template <class Visit>
void VisitLines(std::string_view content, Visit visit) {
  while (!content.empty()) {
    const std::size_t end = content.find_first_of("\r\n");
    if (!visit(content.substr(0, end)) || end == std::string_view::npos) return;
    content.remove_prefix(end + (content.substr(end).starts_with(CrLf) ? 2 : 1));
  }
}

bool HasLine(std::string_view content, std::string_view text) {
  bool found = false;
  VisitLines(content, [&](std::string_view line) {
    found = EqualNoCase(line, text);
    return !found;
  });
  return found;
}

}  // namespace

void ShowBusy(Program& program, std::string_view message) {
  program.frame().statusBar.SetPanel(kMessagePanel, message.empty() ? "Proces w toku...Proszę czekać..."_pl : message);
  program.platform.windows.ShowBusyPointer(true);
}

void ShowReady(Program& program, std::string_view message) {
  ShowInPanel(program, kMessagePanel, message);
  program.platform.windows.ShowBusyPointer(false);
}

void ShowInPanel(Program& program, std::size_t number, std::string_view text) {
  program.frame().statusBar.SetPanel(number, text.empty() ? kReady : text);
}

void ShowError(Program& program, std::string_view message) {
  program.platform.windows.Message({.text = std::string(message), .icon = Icon::Stop, .buttons = Buttons::Ok});
}

bool FileExists(Program& program, std::string_view path) { return !path.empty() && program.platform.files.Size(path).has_value(); }

void EnsureDirectory(Program& program, std::string_view path) {
  Files& files = program.platform.files;
  const std::string before = files.CurrentDirectory();
  if (!files.ChangeDirectory(path)) files.CreateDirectory(path);
  files.ChangeDirectory(before);
}

bool IsAnyDocumentOpen(const Program& program) { return !program.documents.empty(); }

void FocusActiveDocument(Program& program) {
  if (!IsAnyDocumentOpen(program)) return;
  program.platform.windows.Yield();
  if (!program.ActiveDocument) return;
  if (FrmBrowser* viewer = ShownViewer(program)) return viewer->brwWebBrowser.SetFocus();
  program.frontEnd.DocumentActivated(*program.ActiveDocument);
  program.ActiveEditor->SetFocus();
}

bool TextToBool(std::string_view text) { return EqualNoCase(text, "true"); }

void LoadComboFromList(Program& program, ComboBox& box, std::string_view listFile) {
  const auto content = program.platform.files.Read(Concat({program.ProgramPath, listFile}));
  if (!content) return;
  std::vector<std::string> rows;
  VisitLines(*content, [&](std::string_view line) {
    if (!line.empty()) rows.emplace_back(line);
    return true;
  });
  box.AddItems(rows);
  box.SetListIndex(static_cast<int>(box.ListCount()) - 1);
}

bool IsInList(Program& program, std::string_view text, std::string_view listFile) {
  const auto content = program.platform.files.Read(Concat({program.ProgramPath, listFile}));
  return content && HasLine(*content, text);
}

void RememberInList(Program& program, ComboBox& box, std::string_view listFile) { RememberInList(program, box.Text(), listFile); }

void RememberInList(Program& program, std::string_view text, std::string_view listFile) {
  if (text.empty()) return;
  Files& files = program.platform.files;
  const std::string path = Concat({program.ProgramPath, listFile});
  const std::string content = files.Read(path).value_or("");
  if (HasLine(content, text)) return;
  // A last line without its end would swallow the new one.
  const bool open = !content.empty() && content.back() != '\n' && content.back() != '\r';
  files.Append(path, Concat({open ? CrLf : "", text, CrLf}));
}

void SortComboBox(Program& program, ComboBox& box) {
  ShowBusy(program, "Sortowanie...");
  box.Sort();
  ShowReady(program);
}

void LoadFontNames(Program& program, ComboBox& box) { box.AddItems(program.platform.windows.FontNames()); }

}  // namespace morlan
