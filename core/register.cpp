#include "core/register.h"
#include "core/recovery.h"

#include "core/about.h"
#include "core/alwaysview.h"
#include "core/browsers.h"
#include "core/clipboard.h"
#include "core/configuration.h"
#include "core/document.h"
#include "core/documents.h"
#include "core/filepanel.h"
#include "core/lastopened.h"
#include "core/modes.h"
#include "core/morlan.h"
#include "core/newdoc.h"
#include "core/panels.h"
#include "core/paths.h"
#include "core/preview.h"
#include "core/printing.h"
#include "core/recovery.h"

namespace morlan {
namespace {

void ChooseDocument(Program& program) {
  EnableToolbars(program);
  const std::string name = program.platform.windows.AskFile(OpenRequest(program)).value_or("");
  if (name.empty()) return;
  MoveFilePanel(program, PathOf(name));
  RefreshFilePanel(program);
  OpenDocument(program, name);
  if (program.ActiveDocument) program.ActiveDocument->LastDir.SetCaption(PathOf(name));
}

void ShowAbout(Program& program) { program.platform.windows.ShowModal(program.forms.Get<About>()); }

void Undo(Program& program) {
  if (program.ActiveDocument) program.ActiveDocument->UNDO.DoUndo(*program.ActiveDocument);
}

void Cut(Program& program) {
  if (program.ActiveDocument) CutSelection(*program.ActiveDocument);
}

void Copy(Program& program) {
  if (program.ActiveDocument) CopySelection(*program.ActiveDocument);
}

void Paste(Program& program) {
  if (program.ActiveDocument) PasteText(*program.ActiveDocument, ClipboardText(program));
}

void SelectAll(Program& program) {
  if (program.ActiveEditor) program.ActiveEditor->Select(0, program.ActiveEditor->Length());
}

void SwitchWordWrap(Program& program) {
  TEditor* document = program.ActiveDocument;
  if (!document) return;
  const bool wrap = !document->menu.IsChecked("xmn_warp");
  document->menu.SetChecked("xmn_warp", wrap);
  document->EditedText.SetWordWrap(wrap);
}

struct CommandRow {
  std::string_view menu, button;  // the button is one of Toolbar0
  void (*run)(Program& program);
};

constexpr CommandRow kCommands[] = {
    {"xmn_files_new", "new", NewDocument},
    {"xmn_open", "open", ChooseDocument},
    {"xmn_save", "save", SaveDocument},
    {"xmn_saveas", "", SaveDocumentAs},
    {"xmn_close", "Close", CloseActiveDocument},
    {"xmn_closeall", "", CloseAllDocuments},
    {"xmn_preview", "view", PreviewDocument},
    {"mn_internal_view", "", SelViewer_Click},
    {"mn_browsers", "", ShowBrowsers},
    {"mn_alwaysview", "", ShowAlwaysView},
    {"xmn_print", "print", PrintDocument},
    {"xmn_quit", "", [](Program& program) { QuitProgram(program); }},
    {"xmn_undo", "undo", Undo},
    {"xmn_cut", "cut", Cut},
    {"xmn_copy", "copy", Copy},
    {"xmn_paste", "paste", Paste},
    {"xmn_selectall", "", SelectAll},
    {"xmn_warp", "", SwitchWordWrap},
    {"xmn_ModeHtml", "", SetHtmlMode},
    {"xmn_ModeCdf", "", SetCdfMode},
    {"xmn_nextdocument", "", [](Program& program) { ActivateNextDocument(program, 1); }},
    {"xmn_previousdocument", "", [](Program& program) { ActivateNextDocument(program, -1); }},
    {"xmn_configuration", "", ShowConfiguration},
    {"xmn_about", "", ShowAbout},
    {"xmn_recovery", "", ShowRecovery},
};

}  // namespace

void RegisterCore(Program& program) {
  for (const CommandRow& row : kCommands) {
    const auto run = [&program, &row] { row.run(program); };
    program.commands.OnMenu(row.menu, run);
    if (!row.button.empty()) program.commands.OnToolbar("Toolbar0", row.button, run);
  }
  for (std::size_t i = 0; i < kLastOpenedCount; ++i)
    program.commands.OnMenu(LastOpenedRow(i), [&program, i] { OpenLastOpened(program, i); });
  for (const PanelRow& panel : PanelRows()) program.commands.OnMenu(panel.menu, [&program, &panel] { TogglePanel(program, panel); });
  program.forms.OnShow("NewDoc", [&program] { NewDocument(program); });
  program.forms.OnShow("frmBrowser", [&program] { SelViewer_Click(program); });
  program.forms.OnShow("AlwaysView", [&program] { ShowAlwaysView(program); });
  program.forms.OnShow("Browsers", [&program] { ShowBrowsers(program); });
  program.forms.OnShow("configuration", [&program] { ShowConfiguration(program); });
  program.forms.OnShow("Recovery", [&program] { ShowRecovery(program); });
  program.forms.OnShow("about", [&program] { ShowAbout(program); });
}

}  // namespace morlan
