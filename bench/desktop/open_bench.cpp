// Opening a page in the desktop program: reading, the passes of the text, colouring, and the first paint.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <unistd.h>

#include <QApplication>
#include <cstring>
#include <fstream>
#include <string>

#include "bench/desktop/runningprogram.h"
#include "bench/pages.h"
#include "platform/qt/desktop.h"

namespace morlan {
namespace {

// Bytes of memory that the process holds.
double ResidentBytes() {
  std::ifstream file("/proc/self/statm");
  double all = 0, resident = 0;
  file >> all >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

void BM_OpenPage(benchmark::State& state) {
  const auto bytes = static_cast<std::size_t>(state.range(0)) << 20;
  const std::string page = GeneratedPage(bytes);
  RunningProgram program;
  const std::string path = program.Folder() + "/strona.html";
  std::ofstream(path, std::ios::binary) << page;
  const double before = ResidentBytes();
  double most = before;
  for (auto _ : state) {
    program.Open(path);
    state.PauseTiming();
    most = std::max(most, ResidentBytes());
    program.Close();
    state.ResumeTiming();
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(page.size()) * state.iterations());
  state.counters["bytes_per_character"] = (most - before) / static_cast<double>(page.size());
}
BENCHMARK(BM_OpenPage)->Arg(1)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

void BM_Memcpy(benchmark::State& state) {
  const std::string page = GeneratedPage(static_cast<std::size_t>(state.range(0)) << 20);
  std::string copy(page.size(), '\0');
  for (auto _ : state) {
    std::memcpy(copy.data(), page.data(), page.size());
    benchmark::DoNotOptimize(copy.data());
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(page.size()) * state.iterations());
}
BENCHMARK(BM_Memcpy)->Arg(10)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) {
  if (!getenv("DISPLAY") && !getenv("WAYLAND_DISPLAY")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  morlan::PrepareToolkit();
  QApplication application(count, arguments);
  morlan::SetUpToolkit();
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
}
