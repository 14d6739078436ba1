#include "core/timers.h"

#include "core/defs.h"
#include "core/document.h"
#include "core/documents.h"
#include "core/status.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::int16_t kLineInfoTicks = 2;

}  // namespace

void Timer1_Timer(Program& program) {
  if (++program.LineInfoCounter < kLineInfoTicks) return;
  if (program.ActiveDocument) program.ActiveDocument->ShowLineInfo();
  program.LineInfoCounter = 0;
}

void TimeCounter_Timer(Program& program) {
  ++program.AutoSaveCounter;
  if (program.AutoSaveInterval <= 0 || program.AutoSaveCounter < program.AutoSaveInterval) return;
  program.AutoSaveCounter = 0;
  if (!program.ActiveDocument || !program.ActiveDocument->IsModified()) return;
  ShowBusy(program, "Autozapis...");
  SaveDocument(program);
  ShowReady(program);
}

}  // namespace morlan
