// The start-up sequence. Its order is fixed: each step may rely on those above it, and a failed one is passed over.
#include <cstdio>

#include "core/applysettings.h"
#include "core/documents.h"
#include "core/filepanel.h"
#include "core/lastopened.h"
#include "core/modes.h"
#include "core/morlan.h"
#include "core/panels.h"
#include "core/paths.h"
#include "core/programmenus.h"
#include "core/settings.h"
#include "core/status.h"
#include "core/text.h"
#include "core/toolbars.h"
#include "core/windowslist.h"

namespace morlan {
namespace {

constexpr std::string_view kDirectories[] = {"PROJEKTY", "UPLOAD", "STYLE", "MAKRO", "SZABLONY", "Shell", "FTPs"};
constexpr int kFirstNationalLetter = 193, kLastNationalLetter = 255;
constexpr std::string_view kShellKey = "htmlfile\\shell\\Morlan7";

std::string ConfigurationFile(Program& program) { return Concat({program.platform.environment.WindowsDirectory(), "\\Morlan7.ini"}); }

// "yy-mm-dd"
std::string ShortDate(const DateTime& date) {
  char text[16];
  std::snprintf(text, sizeof text, "%02u-%02u-%02u", static_cast<unsigned>(date.year) % 100u, static_cast<unsigned>(date.month) % 100u,
                static_cast<unsigned>(date.day) % 100u);
  return text;
}

void OpenMainStore(Program& program) {
  program.DocumentLoading = false;
  program.MainIni.Init(ConfigurationFile(program));
  PrepareProfile(program);
  const std::string stored = Settings(program.MainIni).Text(Setting::ProgramPath);
  // A store that cannot be written leaves the path empty, which would mean the root of the drive.
  program.ProgramPath = WithBackslash(stored.empty() ? program.platform.environment.UserDataDirectory() : stored);
}

void SetGlobals(Program& program) {
  program.PrintHeader[0] = Concat({"[Ten wydruk został zrobiony przez program Morlan7 "_pl, VersionText, "]"});
  program.PrintHeader[1] = Concat({"Data wydruku :", ShortDate(program.platform.clock.Now())});
  program.TempDir = WithBackslash(program.platform.environment.Variable("temp"));
  program.TempFile = program.TempDir + "Morlan7.tmp";
  program.PreviewFile = program.TempDir + "Morlan7.html";
  program.TempFileN = program.TempDir + "Morlan7N.tmp";
  program.TempFileE = program.TempDir + "Morlan7E.tmp";
  DeleteTempFiles(program);
  program.frame().SetCaption(Concat({program.frame().Caption(), VersionText}));
}

void CheckConfiguration(Program& program) {
  INIFile store(program.platform.files);
  store.Init(ConfigurationFile(program));
  if (EqualNoCase(Settings(store).Text(Setting::Installation), "ok")) return;
  if (!program.platform.files.Copy(program.ProgramPath + "Morlan7.ini", ConfigurationFile(program)))
    ShowError(program, "Uaktualnienie pliku konfiguracyjnego nie możliwe !"_pl);
  Settings(store).SetText(Setting::ProgramPath, program.ProgramPath);
}

// The names, without their extension, of a directory's files that match a pattern.
std::vector<std::string> FileNames(Program& program, std::string_view directory, std::string_view pattern) {
  std::vector<std::string> names;
  for (const DirectoryEntry& entry : program.platform.files.List(Concat({program.ProgramPath, directory})))
    if (!entry.isDirectory && MatchesPattern(entry.name, pattern)) names.push_back(StripExtension(entry.name));
  return names;
}

void PrepareDirectories(Program& program) {
  for (const std::string_view directory : kDirectories) EnsureDirectory(program, Concat({program.ProgramPath, directory}));
  CheckConfiguration(program);
  program.ProjectIni.Init(program.ProgramPath + "PROJEKTY\\");
  program.frame().Lista2.AddItems(FileNames(program, "PROJEKTY", "*.*"));
  program.platform.windows.Yield();
}

void FillLists(Program& program) {
  Morlan& frame = program.frame();
  LoadComboFromList(program, frame.tags, "Listy\\Tags.lst");
  frame.Combo1.AddItems(FileNames(program, "STYLE", "*.stl"));
  frame.currentTagList = "tags1";
  frame.makro.AddItems(FileNames(program, "MAKRO", "*.mac"));
  frame.makro.SetListIndex(0);
  std::vector<std::string> letters;
  for (int code = kFirstNationalLetter; code <= kLastNationalLetter; ++code)
    if (code != 215 && code != 247) letters.emplace_back(1, static_cast<char>(code));  // the signs of multiplication and division
  frame.Chars.AddItems(letters);
}

void SetUpSymbols(Program& program) {
  int number = 0;
  for (const auto& symbol : program.frame().Chars2) symbol->SetCaption(Settings(program.MainIni).Text(Setting::UserSymbol, number++));
}

// Shows the buttons that have a command and a tab for each toolbar that has a button.
void SetUpToolbars(Program& program) {
  Morlan& frame = program.frame();
  for (const auto& toolbar : frame.toolbars) {
    for (const ToolBar::Item& item : toolbar->Items())
      toolbar->SetItemVisible(item.key, program.commands.HasToolbar(toolbar->Name(), item.key));
  }
  for (const ToolbarTab& tab : ToolbarTabs())
    for (const auto& toolbar : frame.toolbars)
      if (toolbar->Name() == tab.toolbar && toolbar->HasVisibleItems())
        (tab.cdf ? frame.CDFObject : frame.objectsmenu).Add({.key = std::string(tab.toolbar), .text = std::string(tab.caption), .tag = ""});
  for (Tabs* tabs : {&frame.objectsmenu, &frame.CDFObject})
    if (tabs->Count()) tabs->Select(0);
  EnableToolbars(program);
}

void OpenFirstDocument(Program& program) {
  const std::string file = program.platform.environment.CommandLine();
  if (FileExists(program, file)) {
    MoveFilePanel(program, PathOf(file));
    OpenDocument(program, file);
  } else {
    NewEmptyDocument(program);
    MoveFilePanel(program, Settings(program.MainIni).Text(Setting::StartPath));
  }
  ListFilePanelIfWanted(program);
}

void AssociateShell(Program& program) {
  Registry& registry = program.platform.registry;
  registry.SetString(kShellKey, "", "&Edytuj w Morlan7");
  registry.SetString(Concat({kShellKey, "\\command"}), "",
                     Concat({WithBackslash(program.platform.environment.ExecutableDirectory()), "Morlan7.exe %1"}));
}

}  // namespace

void PrepareProfile(Program& program) {
  INIFile store(program.platform.files);
  store.Init(ConfigurationFile(program));
  if (!Settings(store).IsStored(Setting::ProgramPath))
    Settings(store).SetText(Setting::ProgramPath, WithBackslash(program.platform.environment.UserDataDirectory()));
}

void StartUp(Program& program) {
  OpenMainStore(program);
  ShowBusy(program, "Uruchanianie programu");
  SetGlobals(program);
  SetUpFilePanel(program);
  PrepareDirectories(program);
  FillLists(program);
  ReadAutoSave(program);
  program.frame().WindowsManager.Clear();
  SetUpSymbols(program);
  ShowBusy(program, "Ładuje parametry pasków narzędzi..."_pl);
  SetUpToolbars(program);
  program.frame().menu.HideWithoutCommand(program.commands);
  SetHtmlMode(program);
  program.AutoSaveCounter = 0;
  program.HelpFile = WithBackslash(program.platform.environment.ExecutableDirectory()) + "Morlan7.hlp";
  if (program.passes.loadColours) program.passes.loadColours();
  ReadHints(program);
  ShowStoredPanels(program);
  RefreshLastOpened(program);
  SetUpMenu(program, program.frame().menu);
  OpenFirstDocument(program);
  AssociateShell(program);
  ShowReady(program);
}

}  // namespace morlan
