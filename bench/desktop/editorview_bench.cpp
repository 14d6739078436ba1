// A key press in the text view of the desktop program, from the event to the repainted rows.
#include <benchmark/benchmark.h>
#include <time.h>

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QString>
#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "bench/benchprogram.h"
#include "bench/pages.h"
#include "platform/qt/editorview.h"

namespace morlan {
namespace {

constexpr std::size_t kMegabyte = 1'000'000;

std::size_t Megabytes(const benchmark::State& state) { return static_cast<std::size_t>(state.range(0)) * kMegabyte; }

// Processor time of the whole process, in milliseconds.
double ProcessTime() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

class ShownView {
 public:
  explicit ShownView(TEditor& document) : view_(document) {
    view_.resize(1200, 800);
    view_.show();
    view_.activateWindow();
    view_.setFocus();
    QApplication::processEvents();
    Paint();
  }
  void Press(int key, const QString& text) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&view_, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&view_, &up);
    QApplication::sendPostedEvents();
    Paint();
  }

 private:
  // Paints what is due now, where the event loop would wait for the screen's next frame.
  void Paint() {
    QEvent request(QEvent::UpdateRequest);
    QApplication::sendEvent(view_.window(), &request);
  }
  EditorWidget view_;
};

void TellMedian(benchmark::State& state, std::vector<double> milliseconds) {
  const auto middle = milliseconds.begin() + static_cast<std::ptrdiff_t>(milliseconds.size() / 2);
  std::nth_element(milliseconds.begin(), middle, milliseconds.end());
  state.counters["median_cpu_ms"] = *middle;
}

enum class Wrap { Off, On };

void PressKeys(benchmark::State& state, std::string text, Wrap wrap, int key, const QString& typed) {
  BenchProgram program(std::move(text));
  program.document().EditedText.SetWordWrap(wrap == Wrap::On);
  ShownView view(program.document());
  program.document().EditedText.Select(program.document().EditedText.Length() / 2, 0);
  QApplication::processEvents();
  std::vector<double> times;
  for (auto _ : state) {
    const double before = ProcessTime();
    view.Press(key, typed);
    times.push_back(ProcessTime() - before);
    benchmark::ClobberMemory();
  }
  TellMedian(state, std::move(times));
}

void KeyInPage(benchmark::State& state) { PressKeys(state, GeneratedPage(Megabytes(state)), Wrap::Off, Qt::Key_A, QStringLiteral("a")); }
void KeyInWrappedPage(benchmark::State& state) {
  PressKeys(state, GeneratedPage(Megabytes(state)), Wrap::On, Qt::Key_A, QStringLiteral("a"));
}
void KeyInOneLine(benchmark::State& state) { PressKeys(state, OneLine(Megabytes(state)), Wrap::Off, Qt::Key_A, QStringLiteral("a")); }
void KeyInOneWrappedLine(benchmark::State& state) { PressKeys(state, OneLine(Megabytes(state)), Wrap::On, Qt::Key_A, QStringLiteral("a")); }
void EnterInPage(benchmark::State& state) {
  PressKeys(state, GeneratedPage(Megabytes(state)), Wrap::Off, Qt::Key_Return, QStringLiteral("\r"));
}
void ScrollByKey(benchmark::State& state) { PressKeys(state, GeneratedPage(Megabytes(state)), Wrap::Off, Qt::Key_Down, {}); }

BENCHMARK(KeyInPage)->Arg(1)->Arg(10)->Arg(50)->Iterations(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeyInWrappedPage)->Arg(10)->Iterations(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeyInOneLine)->Arg(1)->Arg(10)->Iterations(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(KeyInOneWrappedLine)->Arg(1)->Iterations(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(EnterInPage)->Arg(10)->Iterations(200)->Unit(benchmark::kMicrosecond);
BENCHMARK(ScrollByKey)->Arg(10)->Iterations(200)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  benchmark::Initialize(&count, arguments);
  QApplication application(count, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
