// Rewriting a tag in the middle of a large page: the text, its colours, the undo record and the repaint.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "bench/desktop/runningprogram.h"
#include "bench/pages.h"
#include "core/editsurface.h"
#include "core/text.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

// The tag behind the middle of the page becomes the one under the caret.
void FindTagInMiddle(Program& program) {
  MlnEditor& editor = *program.ActiveEditor;
  const std::size_t start = Find(editor.Text(), "<", editor.Length() / 2);
  editor.Select(start, 0);
  const FoundTag found = FindTagAt(editor.Text(), editor.SelStart());
  program.tagState.CurrentTagStart = found.start;
  program.tagState.CurrentTagText = found.text;
}

// Paints what is due now, where the event loop would wait for the screen's next frame.
void Paint(QWidget& window) {
  QCoreApplication::sendPostedEvents();
  QEvent request(QEvent::UpdateRequest);
  QApplication::sendEvent(&window, &request);
}

void RewriteInPage(benchmark::State& state) {
  RunningProgram running;
  const std::string path = running.Folder() + "/strona.html";
  std::ofstream(path, std::ios::binary) << GeneratedPage(static_cast<std::size_t>(state.range(0)) << 20);
  running.Open(path);
  Program& program = running.program();
  FindTagInMiddle(program);
  std::vector<double> times;
  for (auto _ : state) {
    const auto before = std::chrono::steady_clock::now();
    RewriteTag(program, times.size() % 2 ? "<IMG SRC=\"a.gif\" WIDTH=100>" : "<IMG SRC=\"obrazy/b.gif\" ALT=\"b\">");
    Paint(running.Window());
    times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - before).count());
  }
  state.counters["worst_ms"] = *std::max_element(times.begin(), times.end());
}
BENCHMARK(RewriteInPage)->Arg(1)->Arg(10)->Iterations(50)->Unit(benchmark::kMillisecond);

void Memcpy(benchmark::State& state) {
  const std::string page = GeneratedPage(static_cast<std::size_t>(state.range(0)) << 20);
  std::string copy(page.size(), '\0');
  for (auto _ : state) {
    std::memcpy(copy.data(), page.data(), page.size());
    benchmark::DoNotOptimize(copy.data());
  }
}
BENCHMARK(Memcpy)->Arg(10)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  morlan::PrepareToolkit();
  QApplication application(count, arguments);
  morlan::SetUpToolkit();
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
