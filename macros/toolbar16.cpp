#include "macros/toolbar16.h"

#include <string>
#include <vector>

#include "core/defs.h"
#include "core/documents.h"
#include "core/filepanel.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "core/status.h"
#include "core/text.h"
#include "macros/macrofacts.h"
#include "macros/macroparam.h"
#include "macros/shorttagwizard.h"

namespace morlan {
namespace {

constexpr std::string_view kToolbar = "Toolbar16";

std::string SelectedMacro(const Program& program) { return program.frame().makro.SelectedRow(); }

void RunSelected(Program& program) {
  const std::string name = SelectedMacro(program);
  if (!name.empty()) program.runMacro(name);
}

void Refuse(Program& program, std::string_view message) {
  program.platform.windows.Message({.text = std::string(message), .title = "Morlan7 Makro", .icon = Icon::Warning});
}

void NewMacro(Program& program) {
  const std::string name = program.platform.windows.Input("Podaj nazwę dla makra"_pl, "Makro", "").value_or("");
  if (name.empty()) return;
  const std::string path = MacroPath(program, name);
  if (!IsMacroName(name)) return Refuse(program, kBadMacroName);
  if (FileExists(program, path)) return Refuse(program, kMacroExists);
  if (TEditor* open = FindDocument(program, path)) return ActivateDocument(program, *open);
  NewDocumentOfName(program, path);
}

void OpenSelected(Program& program) {
  const std::string name = SelectedMacro(program);
  if (!name.empty()) OpenDocument(program, MacroPath(program, name));
}

void ShowWizard(Program& program) { program.platform.windows.ShowModal(program.forms.Get<ShortTagWizard>()); }

struct ButtonRow {
  std::string_view key, menu;
  void (*run)(Program& program);
};
constexpr ButtonRow kButtons[] = {
    {"run", "mn_macrorun", RunSelected},        {"new", "mn_macronew", NewMacro},           {"open", "mn_macroopen", OpenSelected},
    {"param", "mn_macroparam", ShowMacroParam}, {"creator", "mn_macrocreator", ShowWizard},
};

std::vector<std::string> MacroNames(Program& program) {
  std::vector<std::string> names;
  for (const DirectoryEntry& entry : program.platform.files.List(program.ProgramPath + "MAKRO"))
    if (!entry.isDirectory && MatchesPattern(entry.name, "*.mac")) names.push_back(StripExtension(entry.name));
  return names;
}

}  // namespace

void RefreshMacroList(Program& program, std::string_view name) {
  ComboBox& box = program.frame().makro;
  const std::string selected = name.empty() ? box.SelectedRow() : std::string(name);
  const std::vector<std::string> names = MacroNames(program);
  if (box.Rows() != names) {
    box.Clear();
    box.AddItems(names);
  }
  box.SetListIndex(box.ListFind(selected));
}

void RegisterToolbar16(Program& program) {
  for (const ButtonRow& row : kButtons) {
    const auto run = [&program, &row] { row.run(program); };
    program.commands.OnToolbar(kToolbar, row.key, run);
    program.commands.OnMenu(row.menu, run);
  }
  program.forms.OnShow("MacroParam", [&program] { ShowMacroParam(program); });
  program.forms.OnShow("ShortTagWizard", [&program] { ShowWizard(program); });
  // A macro may have been saved or deleted meanwhile.
  program.frame().makro.OnGotFocus = [&program] { RefreshMacroList(program); };
}

}  // namespace morlan
