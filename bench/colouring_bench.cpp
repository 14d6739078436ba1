// Colouring of whole pages and behind single keys, and the META reader, on generated pages.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "bench/pages.h"
#include "core/editsurface.h"
#include "tags/colourscan.h"
#include "tags/editedcolouring.h"
#include "tags/metatags.h"

namespace morlan {
namespace {

constexpr ColourStyles kColours = {1, 2, 3, MlnEditor::kBold};
constexpr std::string_view kTyped = "wyraz <b>x</b> ";

void CountBytes(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(bytes));
}

std::string PageOfMegabytes(std::int64_t megabytes) { return GeneratedPage(static_cast<std::size_t>(megabytes) << 20); }

void ColourPage(benchmark::State& state) {
  const std::string page = PageOfMegabytes(state.range(0));
  std::vector<std::uint8_t> styles(page.size());
  for (auto _ : state) {
    std::fill(styles.begin(), styles.end(), MlnEditor::kPlain);
    PaintText(page, kColours, styles.data());
    benchmark::DoNotOptimize(styles.data());
  }
  CountBytes(state, page.size());
  state.counters["tags/KB"] = 1024.0 * static_cast<double>(std::count(page.begin(), page.end(), '<')) / static_cast<double>(page.size());
}
BENCHMARK(ColourPage)->Arg(1)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

void CopyPage(benchmark::State& state) {
  const std::string page = PageOfMegabytes(state.range(0));
  std::vector<char> copy(page.size());
  for (auto _ : state) {
    std::memcpy(copy.data(), page.data(), page.size());
    benchmark::DoNotOptimize(copy.data());
  }
  CountBytes(state, page.size());
}
BENCHMARK(CopyPage)->Arg(1)->Arg(10)->Arg(50)->Unit(benchmark::kMillisecond);

// One typed character in the middle, without the events of a document.
void TypeInto(benchmark::State& state, std::string page) {
  MlnEditor editor;
  std::vector<MlnEditor::Style> styles(page.size());
  PaintText(page, kColours, styles.data());
  editor.SetText(std::move(page));
  editor.SetStyles(0, styles);
  editor.Select(editor.Length() / 2, 0);
  std::size_t typed = 0;
  for (auto _ : state) {
    editor.SetSelText(kTyped.substr(typed++ % kTyped.size(), 1));
    ColourEdited(editor, kColours, editor.EditedFrom(), editor.EditedTo());
  }
}

void KeyInPage(benchmark::State& state) { TypeInto(state, PageOfMegabytes(10)); }
BENCHMARK(KeyInPage)->Unit(benchmark::kMicrosecond);

void KeyInLine(benchmark::State& state) {
  std::string line = PageOfMegabytes(1);
  std::erase_if(line, [](char character) { return character == '\r' || character == '\n'; });
  TypeInto(state, std::move(line));
}
BENCHMARK(KeyInLine)->Unit(benchmark::kMicrosecond);

void KeyInComment(benchmark::State& state) { TypeInto(state, "<!-- " + std::string(1 << 20, 'x') + " -->"); }
BENCHMARK(KeyInComment)->Unit(benchmark::kMicrosecond);

void ReadMissingMeta(benchmark::State& state) {
  const std::string page = PageOfMegabytes(10);
  for (auto _ : state) benchmark::DoNotOptimize(GetMetaContentOfText(page, "Author"));
  CountBytes(state, page.size());
}
BENCHMARK(ReadMissingMeta)->Unit(benchmark::kMillisecond);

void SetMissingMeta(benchmark::State& state) {
  std::string page = PageOfMegabytes(10);
  for (auto _ : state) {
    const std::size_t before = page.size();
    page = SetMetaInText(std::move(page), "NAME", "Author", "Ala");
    page.erase(page.find("\r\n <META NAME"), page.size() - before);
  }
  CountBytes(state, page.size());
}
BENCHMARK(SetMissingMeta)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan
