// Macros of any bytes. Each runs to its end or to Esc; whatever it asks is answered.
#include <cstdint>
#include <string>

#include "macros/interpreter.h"
#include "macros/macroparameters.h"
#include "tests/support/testprogram.h"

namespace {

void Require(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace morlan;
  static TestProgram test;
  const std::string macro(reinterpret_cast<const char*>(data), size);
  const std::vector<MacroParameter> parameters = MacroParametersOf(macro);
  Require(WithMacroParameters(macro, parameters) == macro);

  int turns = 0;
  test.windows.onYieldToEscape = [&] { return ++turns > 2000; };
  test.windows.answers.assign(8, Answer::No);
  test.windows.inputs.assign(8, "odpowiedź");
  test.windows.files.assign(8, "c:\\plik.txt");
  test.record.clear();
  test.Write("program\\MAKRO\\proba.mac", macro);
  test.OpenText("<P>abc</P>").EditedText.Select(3, 3);
  Require(test.program.runMacro("proba"));
  while (test.program.documents.size() > 1) test.program.documents.erase(test.program.documents.begin());
  test.program.ForgetClosed();
  return 0;
}
