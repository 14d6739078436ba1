// Find and FindNoCase to the end of a page that lacks the text, beside a copy of the same bytes.
#include <benchmark/benchmark.h>

#include <cstring>

#include "bench/pages.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::size_t kPageSize = 50'000'000;

// What a person might look for; none of them stands in the page.
constexpr std::string_view kNeedles[] = {"nie ma takiego zdania", "<TABLEAU", "Gżegżółka"_pl, "@#"};

const std::string& Page() {
  static const std::string page = GeneratedPage(kPageSize);
  return page;
}

void Report(benchmark::State& state) { state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(Page().size())); }

void Copy(benchmark::State& state) {
  std::string copy(Page().size(), '\0');
  for (auto _ : state) {
    std::memcpy(copy.data(), Page().data(), copy.size());
    benchmark::ClobberMemory();
  }
  Report(state);
}
BENCHMARK(Copy)->Unit(benchmark::kMillisecond);

template <auto Search>
void ToTheEnd(benchmark::State& state) {
  const std::string_view needle = kNeedles[state.range(0)];
  if (Search(Page(), needle, 1) != 0) state.SkipWithError("the page holds the text");
  for (auto _ : state) benchmark::DoNotOptimize(Search(Page(), needle, 1));
  state.SetLabel(ToUtf8(needle));
  Report(state);
}
BENCHMARK(ToTheEnd<Find>)->Name("Find")->DenseRange(0, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(ToTheEnd<FindNoCase>)->Name("FindNoCase")->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan
