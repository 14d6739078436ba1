// A key press in the middle of long texts, model and colouring without a view, and the setting of whole texts beside a
// copy of the same bytes.
#include <benchmark/benchmark.h>

#include <cstring>
#include <string>
#include <utility>

#include "bench/benchprogram.h"
#include "bench/pages.h"
#include "core/document.h"
#include "core/keyboard.h"

namespace morlan {
namespace {

constexpr std::size_t kMegabyte = 1'000'000;

// One iteration is one key: a character and its deletion in turn, half of them inside a tag.
void PressKeys(benchmark::State& state, std::string text) {
  BenchProgram program(std::move(text));
  MlnEditor& editor = program.document().EditedText;
  const std::size_t tag = editor.Text().find('<', editor.Length() / 2);
  const std::size_t places[] = {tag + 2, editor.Text().find('>', tag) + 1};
  std::size_t key = 0;
  for (auto _ : state) {
    if (key % 100 == 0) editor.Select(places[key / 100 % 2], 0);
    const KeyPress press = key % 2 == 0 ? KeyPress{.code = 'A', .character = 'a'} : KeyPress{.code = key::kBackspace};
    PressKey(program.document(), press);
    ++key;
  }
}

void KeyInPage(benchmark::State& state) { PressKeys(state, GeneratedPage(static_cast<std::size_t>(state.range(0)) * kMegabyte)); }
BENCHMARK(KeyInPage)->Arg(1)->Arg(10)->Arg(50)->Unit(benchmark::kMicrosecond);

void KeyInOneLine(benchmark::State& state) { PressKeys(state, OneLine(static_cast<std::size_t>(state.range(0)) * kMegabyte)); }
BENCHMARK(KeyInOneLine)->Arg(1)->Arg(10)->Unit(benchmark::kMicrosecond);

// A key behind a command that read the whole text, which closed the gap.
void KeyBehindText(benchmark::State& state) {
  BenchProgram program(GeneratedPage(static_cast<std::size_t>(state.range(0)) * kMegabyte));
  MlnEditor& editor = program.document().EditedText;
  editor.Select(editor.Length() / 2, 0);
  for (auto _ : state) {
    benchmark::DoNotOptimize(editor.Text().data());
    PressKey(program.document(), {.code = 'A', .character = 'a'});
  }
}
BENCHMARK(KeyBehindText)->Arg(10)->Unit(benchmark::kMicrosecond);

void SetWholeText(benchmark::State& state) {
  const std::string page = GeneratedPage(static_cast<std::size_t>(state.range(0)) * kMegabyte);
  MlnEditor editor;
  for (auto _ : state) {
    state.PauseTiming();
    std::string text = page;
    state.ResumeTiming();
    editor.SetText(std::move(text));
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(page.size()));
}
BENCHMARK(SetWholeText)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

void Copy(benchmark::State& state) {
  const std::string page = GeneratedPage(static_cast<std::size_t>(state.range(0)) * kMegabyte);
  std::string copy(page.size(), '\0');
  for (auto _ : state) {
    std::memcpy(copy.data(), page.data(), page.size());
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(page.size()));
}
BENCHMARK(Copy)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan
