// The pass over stamps in a page without any and in one with many, beside a copy of the same bytes.
#include "text/autoupdate.h"

#include <benchmark/benchmark.h>

#include <cstring>

#include "bench/pages.h"
#include "core/text.h"
#include "platform/posix/files.h"

namespace morlan {
namespace {

constexpr std::size_t kPageSize = 10'000'000;

std::string PageWithStamps(std::size_t count) {
  std::string page = GeneratedPage(kPageSize);
  const std::string stamp = Stamp(" TYPE=DATE FORMAT=DD/MM/YYYY", "01/01/1998");
  for (std::size_t i = count; i > 0; --i) page.insert(page.size() / count * (i - 1), stamp);
  return page;
}

void Copy(benchmark::State& state) {
  const std::string page = GeneratedPage(kPageSize);
  std::string copy(page.size(), '\0');
  for (auto _ : state) {
    std::memcpy(copy.data(), page.data(), copy.size());
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(page.size()));
}
BENCHMARK(Copy)->Unit(benchmark::kMillisecond);

void Update(benchmark::State& state) {
  PosixFiles files;
  const StampSource source{files, {}, "c:"};
  std::string page = PageWithStamps(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) page = UpdateBlocks(std::move(page), source);
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(page.size()));
}
BENCHMARK(Update)->Arg(0)->Arg(1)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan
