// A macro's loop of 100,000 turns, read and inserted.
#include <benchmark/benchmark.h>

#include "bench/benchprogram.h"
#include "core/text.h"
#include "macros/interpreter.h"
#include "macros/macrofacts.h"

namespace morlan {
namespace {

constexpr std::string_view kEmpty = "{for name=\"i\" from=\"1\" to=\"100000\"}\r\n{next}";
constexpr std::string_view kPrinting = "{for name=\"i\" from=\"1\" to=\"100000\"}\r\n{print text=\"%%i\"} {next}";
constexpr std::string_view kDeciding =
    "{for name=\"i\" from=\"1\" to=\"100000\"}\r\n{if text1=\"%%i\" text2=\"5\" method=\">\"}a{else}b{endif}{var name=\"n\" "
    "type=\"num\"}{print text=\"%%i\"}{/var}{next}";

void Run(benchmark::State& state, std::string_view macro) {
  BenchProgram bench("<HTML></HTML>");
  Program& program = bench.program();
  const std::string folder = program.platform.environment.UserDataDirectory();
  program.ProgramPath = folder + "\\";
  Files& files = program.platform.files;
  files.CreateDirectory(folder);
  files.CreateDirectory(folder + "\\MAKRO");
  if (!files.Write(MacroPath(program, "bench"), macro)) state.SkipWithError("the macro cannot be written");
  for (auto _ : state) {
    bench.document().EditedText.SetText("<HTML></HTML>");
    if (!program.runMacro("bench")) state.SkipWithError("the macro does not run");
  }
}
BENCHMARK_CAPTURE(Run, Empty, kEmpty)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Run, Printing, kPrinting)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Run, Deciding, kDeciding)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan
