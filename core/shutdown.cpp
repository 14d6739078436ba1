#include "core/closing.h"
#include "core/document.h"
#include "core/filepanel.h"
#include "core/frontend.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "core/settings.h"
#include "core/text.h"

namespace morlan {
namespace {

bool AskToEnd(Program& program) {
  return program.platform.windows.Message(
             {.text = std::string("Chcesz zakończyć pracę ?"_pl), .icon = Icon::Question, .buttons = Buttons::YesNo}) == Answer::Yes;
}

void StoreSession(Program& program) {
  Settings settings(program.MainIni);
  int number = 0;
  for (const auto& symbol : program.frame().Chars2) settings.SetText(Setting::UserSymbol, symbol->Caption(), number++);
  settings.SetText(Setting::StartPath, CurrentPanelDirectory(program));
}

}  // namespace

bool QuitProgram(Program& program) {
  if (!UnloadAllDocuments(program)) return false;
  if (!AskToEnd(program)) return false;
  StoreSession(program);
  DeleteTempFiles(program);
  program.frontEnd.ProgramEnds();
  return true;
}

void DeleteTempFiles(Program& program) {
  for (const std::string& file : {program.TempFile, program.TempFileN, program.TempFileE, program.PreviewFile})
    program.platform.files.Delete(file);
}

}  // namespace morlan
