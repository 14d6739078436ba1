#include "core/morlan.h"

#include <algorithm>

#include "core/defs.h"
#include "core/document.h"
#include "core/documents.h"
#include "core/preview.h"
#include "core/recovery.h"
#include "core/text.h"
#include "core/timers.h"
#include "core/toolbars.h"

namespace morlan {
namespace {

constexpr std::size_t kToolbarCount = 21;
constexpr std::size_t kFirstSwitchedToolbar = 1;

std::string Numbered(std::string_view name, std::size_t number) { return Concat({name, NumberText(static_cast<std::int64_t>(number))}); }

void MakeToolbars(Morlan& frame) {
  for (std::size_t i = 0; i < kToolbarCount; ++i) frame.toolbars.push_back(std::make_unique<ToolBar>(frame, Numbered("Toolbar", i)));
  for (const ToolbarRow& row : ToolbarRows())
    for (const auto& toolbar : frame.toolbars)
      if (toolbar->Name() == row.toolbar)
        toolbar->Add({.key = std::string(row.key), .toolTip = std::string(row.toolTip), .icon = std::string(row.icon)});
  for (const auto& toolbar : frame.toolbars)
    toolbar->OnButtonClick = [&program = frame.program(), name = toolbar->Name()](const std::string& key) {
      program.commands.RunToolbar(name, key);
    };
}

void MakeSymbolButtons(Morlan& frame) {
  for (std::size_t i = 0; i < frame.Chars2.size(); ++i)
    frame.Chars2[i] = std::make_unique<Button>(frame, Concat({"Chars2(", NumberText(static_cast<std::int64_t>(i)), ")"}), "");
}

TEditor* DocumentOfTab(Program& program, int index) {
  const auto& tabs = program.frame().WindowsManager.All();
  if (index < 0 || index >= static_cast<int>(tabs.size())) return nullptr;
  return FindDocument(program, tabs[static_cast<std::size_t>(index)].key);
}

void WireWindowsManager(Program& program, Tabs& tabs) {
  tabs.OnChange = [&program, &tabs] {
    if (TEditor* document = DocumentOfTab(program, tabs.Selected())) ActivateDocument(program, *document);
  };
  tabs.OnCloseTab = [&program](int index) {
    if (TEditor* document = DocumentOfTab(program, index)) CloseDocument(program, *document);
  };
}

void SetToolbarsEnabled(Program& program, bool enabled) {
  const auto& toolbars = program.frame().toolbars;
  for (std::size_t i = kFirstSwitchedToolbar; i < toolbars.size(); ++i) toolbars[i]->SetEnabled(enabled);
}

}  // namespace

Morlan::Morlan(Program& program) : Form("Morlan", "Morlan7 - Edytor HTML - Wersja "), menu(FrameMenuRows()), program_(program) {
  MakeToolbars(*this);
  MakeSymbolButtons(*this);
  WireWindowsManager(program, WindowsManager);
  SSTab1.Add({.key = "files", .text = "Pliki", .tag = ""});
  SSTab1.Select(0);
  CDFObject.SetVisible(false);
  SelEditor.SetToolTip("Powrót do edycji tekstu (Esc)"_pl);
  SelEditor.OnClick = [&program] { SelEditor_Click(program); };
  SelViewer.SetToolTip("Strona w oknie edytora (Shift+F5)");
  SelViewer.OnClick = [&program] { SelViewer_Click(program); };
  Timer1.OnTimer = [&program] { Timer1_Timer(program); };
  safetyTimer.OnTimer = [&program] { KeepChanges(program); };
  TimeCounter.OnTimer = [&program] { TimeCounter_Timer(program); };
}

Morlan::~Morlan() = default;

void EnableToolbars(Program& program) { SetToolbarsEnabled(program, true); }
void DisableToolbars(Program& program) { SetToolbarsEnabled(program, false); }

}  // namespace morlan
