// What happens when the main window, or one document in it, comes forward.
#include "core/about.h"
#include "core/document.h"
#include "core/documents.h"
#include "core/filepanel.h"
#include "core/lastopened.h"
#include "core/modes.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "core/status.h"
#include "core/windowslist.h"

namespace morlan {

void ActivateFrame(Program& program) {
  FocusActiveDocument(program);
  if (FileExists(program, program.platform.environment.CommandLine())) program.frame().splashShown = true;
  if (!program.frame().splashShown) {
    program.frame().splashShown = true;
    program.platform.windows.ShowModal(program.forms.Get<About>());
  }
  UpdateWindowsManager(program);
  // What others put on the clipboard in richer forms stays there as plain text alone.
  if (const auto text = program.platform.clipboard.Text()) program.platform.clipboard.SetText(*text);
  FocusActiveDocument(program);
}

void TEditor::Form_Activate() {
  program_.ActiveDocument = this;
  program_.ActiveEditor = &EditedText;
  SelectTab(program_, *this);
  if (program_.passes.markCharset) program_.passes.markCharset(*this);
  if (FileType.Caption() == "cdf")
    SetCdfMode(program_);
  else
    SetHtmlMode(program_);
  ShowLastOpened(program_, menu);
  ShowSize();
  EditedText.SetWordWrap(menu.IsChecked("xmn_warp"));
  SetupDirs();
}

void TEditor::SetupDirs() { MoveFilePanel(program_, PathOf(Caption())); }

}  // namespace morlan
