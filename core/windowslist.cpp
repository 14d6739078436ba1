#include "core/windowslist.h"

#include <algorithm>
#include <set>

#include "core/closing.h"
#include "core/document.h"
#include "core/documents.h"
#include "core/morlan.h"
#include "core/paths.h"

namespace morlan {
namespace {

// One tab for each Caption, in the order of the documents.
std::vector<Tabs::Tab> WantedTabs(const Program& program) {
  std::vector<Tabs::Tab> tabs;
  std::set<std::string_view> keys;
  for (const auto& document : program.documents)
    if (keys.insert(document->Caption()).second) tabs.push_back(TabOf(*document));
  return tabs;
}

bool SameTabs(const std::vector<Tabs::Tab>& left, const std::vector<Tabs::Tab>& right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](const Tabs::Tab& a, const Tabs::Tab& b) {
    return a.key == b.key && a.text == b.text && a.tag == b.tag && a.image == b.image;
  });
}

void UnloadNameless(Program& program) {
  for (std::size_t i = program.documents.size(); i-- > 0;)
    if (i < program.documents.size() && program.documents[i]->Caption().empty()) UnloadDocument(program, *program.documents[i]);
}

}  // namespace

Tabs::Tab TabOf(const TEditor& document) {
  return {.key = document.Caption(),
          .text = FileNameOf(document.Caption()),
          .tag = document.Caption(),
          .image = document.IsModified() ? kModifiedMark : kNoMark};
}

void AddTab(Program& program, const TEditor& document) {
  Tabs& tabs = program.frame().WindowsManager;
  if (tabs.IndexOfKey(document.Caption()) < 0) tabs.Add(TabOf(document));
  SelectTab(program, document);
}

void SelectTab(Program& program, const TEditor& document) {
  Tabs& tabs = program.frame().WindowsManager;
  const int index = tabs.IndexOfKey(document.Caption());
  if (index >= 0 && index != tabs.Selected()) tabs.Select(index);
}

void MarkTab(Program& program, const TEditor& document, int image) {
  Tabs& tabs = program.frame().WindowsManager;
  const int index = tabs.IndexOfKey(document.Caption());
  if (index < 0) return;
  Tabs::Tab tab = tabs.All()[static_cast<std::size_t>(index)];
  if (tab.image == image) return;
  tab.image = image;
  tabs.Replace(static_cast<std::size_t>(index), std::move(tab));
}

void UpdateWindowsManager(Program& program) {
  Tabs& tabs = program.frame().WindowsManager;
  UnloadNameless(program);
  std::vector<Tabs::Tab> wanted = WantedTabs(program);
  if (!SameTabs(wanted, tabs.All())) {
    tabs.Clear();
    for (Tabs::Tab& tab : wanted) tabs.Add(std::move(tab));
  }
  if (program.documents.empty()) DisableToolbars(program);
  if (program.ActiveDocument && tabs.Selected() < 0) SelectTab(program, *program.ActiveDocument);
  program.WindowsListDirty = true;
}

}  // namespace morlan
