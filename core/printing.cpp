#include "core/printing.h"

#include "core/defs.h"
#include "core/document.h"
#include "core/text.h"

namespace morlan {

void PrintDocument(Program& program) {
  if (!program.ActiveDocument) return;
  const std::string name = program.ActiveDocument->Caption();
  const Answer answer = program.platform.windows.Message(
      {.text = Concat({"Drukować plik "_pl, name, " ?"}), .title = "Drukuj", .icon = Icon::Question, .buttons = Buttons::YesNo});
  if (answer != Answer::Yes || !program.ActiveEditor) return;
  program.PrintHeader[2] = Concat({"FileName:", name});
  for (const std::string& line : program.PrintHeader)
    if (!line.empty()) program.platform.printer.Print(line);
  program.platform.printer.Print(program.ActiveEditor->Text());
  program.platform.printer.EndDocument();
}

}  // namespace morlan
