#include "core/filepanel.h"

#include <algorithm>

#include "core/documents.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kParent = "..";

// The patterns stand in the parentheses of the caption, parted by commas.
constexpr std::string_view kFileTypes[] = {
    "Pliki HTML (*.html)",         "Pliki tekstowe (*.txt)",       "Pliki graficzne (*.gif,*.jpg,*.png)",
    "Pliki multimedialne (*.mid)", "Pliki programu (*.tbl,*.lis)", "Wszystkie pliki (*.*)",
};

std::vector<std::string> PatternsOf(std::string_view caption) {
  const std::size_t open = caption.find('('), close = caption.find(')');
  std::vector<std::string> patterns;
  if (open == std::string_view::npos || close == std::string_view::npos) return patterns;
  std::string_view rest = caption.substr(open + 1, close - open - 1);
  while (!rest.empty()) {
    const std::size_t comma = std::min(rest.find(','), rest.size());
    patterns.emplace_back(rest.substr(0, comma));
    rest.remove_prefix(std::min(comma + 1, rest.size()));
  }
  return patterns;
}

bool MatchesAny(std::string_view name, const std::vector<std::string>& patterns) {
  return std::any_of(patterns.begin(), patterns.end(), [&](const std::string& pattern) { return MatchesPattern(name, pattern); });
}

bool IsRoot(std::string_view directory) { return directory.size() <= 3 && directory.find(':') != std::string_view::npos; }

std::string Tidied(std::string_view directory) {
  while (directory.size() > 1 && directory.ends_with('\\')) directory.remove_suffix(1);
  return directory.ends_with(':') ? Concat({directory, "\\"}) : std::string(directory);
}

void FillLists(Program& program) {
  Morlan& frame = program.frame();
  const std::vector<std::string> patterns = PatternsOf(frame.filetypes.Text());
  std::vector<std::string> directories, files;
  if (!IsRoot(frame.panelDirectory)) directories.emplace_back(kParent);
  for (DirectoryEntry& entry : program.platform.files.List(frame.panelDirectory)) {
    if (entry.name.starts_with('.')) continue;  // hidden by the custom of this system
    if (entry.isDirectory)
      directories.push_back(std::move(entry.name));
    else if (MatchesAny(entry.name, patterns))
      files.push_back(std::move(entry.name));
  }
  frame.Dirlist.Clear();
  frame.Dirlist.AddItems(directories);
  frame.Filelist.Clear();
  frame.Filelist.AddItems(files);
}

void ShowDirectory(Program& program, std::string_view directory) {
  Morlan& frame = program.frame();
  frame.panelDirectory = Tidied(directory);
  frame.panelListed = false;
  frame.path.SetCaption(WithBackslash(frame.panelDirectory));
  frame.Drivelist.SetText(LowerCase(frame.panelDirectory.substr(0, 2)));
}

void EnterSelectedDirectory(Program& program) {
  const std::string row = program.frame().Dirlist.SelectedRow(), here = CurrentPanelDirectory(program);
  if (row.empty()) return;
  MoveFilePanel(program, row == kParent ? WithBackslash(PathOf(here)) : Concat({WithBackslash(here), row}));
}

}  // namespace

void SetUpFilePanel(Program& program) {
  Morlan& frame = program.frame();
  frame.Drivelist.AddItem("c:");
  for (const std::string_view type : kFileTypes) frame.filetypes.AddItem(type);
  frame.filetypes.SetListIndex(0);
  ShowDirectory(program, program.platform.files.CurrentDirectory());
  frame.Drivelist.OnChange = [&program] { MoveFilePanel(program, WithBackslash(program.frame().Drivelist.Text())); };
  frame.filetypes.OnChange = [&program] { RefreshFilePanel(program); };
  frame.Dirlist.OnDblClick = [&program] { EnterSelectedDirectory(program); };
  frame.Filelist.OnDblClick = [&program] {
    if (const std::string file = SelectedPanelFile(program); !file.empty()) OpenDocument(program, file);
  };
}

void MoveFilePanel(Program& program, std::string_view directory) {
  if (directory.empty() || !program.platform.files.DirectoryExists(directory)) return;
  if (Tidied(directory) == program.frame().panelDirectory) return ListFilePanelIfWanted(program);
  ShowDirectory(program, directory);
  ListFilePanelIfWanted(program);
}

std::string CurrentPanelDirectory(const Program& program) { return program.frame().panelDirectory; }

void RefreshFilePanel(Program& program) {
  program.frame().panelListed = false;
  ListFilePanelIfWanted(program);
}

void ListFilePanelIfWanted(Program& program) {
  Morlan& frame = program.frame();
  if (frame.panelListed || !frame.Menadzerplikow.Visible()) return;
  frame.panelListed = true;
  FillLists(program);
}

std::string SelectedPanelFile(const Program& program) {
  const std::string row = program.frame().Filelist.SelectedRow();
  return row.empty() ? row : Concat({WithBackslash(CurrentPanelDirectory(program)), row});
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  std::size_t n = 0, p = 0, star = std::string_view::npos, retry = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      retry = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || LowerCharacter(pattern[p]) == LowerCharacter(name[n]))) {
      ++p;
      ++n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++retry;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace morlan
