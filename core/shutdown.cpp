#include "core/closing.h"
#include "core/document.h"
#include "core/filepanel.h"
#include "core/frontend.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "core/text.h"

namespace morlan {
namespace {

bool AskToEnd(Program& program) {
  return program.platform.windows.Message(
             {.text = std::string("Chcesz zakończyć pracę ?"_pl), .icon = Icon::Question, .buttons = Buttons::YesNo}) == Answer::Yes;
}

void StoreSession(Program& program) {
  for (std::size_t i = 0; i < program.frame().Chars2.size(); ++i)
    program.MainIni.SetSubItemValue("UserSymbols", Concat({"Symbol", NumberText(static_cast<std::int64_t>(i))}),
                                    program.frame().Chars2[i]->Caption());
  program.MainIni.SetSubItemValue("ProgramAccess", "StartPath", CurrentPanelDirectory(program));
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
