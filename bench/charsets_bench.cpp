// The exchange of letters between character sets, beside the system's converter and a copy of the same bytes.
#include <benchmark/benchmark.h>
#include <iconv.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

#include "bench/pages.h"
#include "text/charsets.h"
#include "text/documentcharset.h"
#include "text/lettertables.h"

namespace morlan {
namespace {

constexpr std::size_t kPageSize = 10'000'000;

const std::string& Page() {
  static const std::string page = GeneratedPage(kPageSize);
  return page;
}

// Running prose without a tag: every eleventh character is a national letter.
const std::string& Prose() {
  static const std::string prose = [] {
    constexpr std::string_view kSentence =
        "W Szczebrzeszynie chrząszcz brzmi w trzcinie, a za rzeką żyją gęsi, które śpiewają pieśni o łące i o życiu na wsi. "_pl;
    std::string text;
    while (text.size() < kPageSize) text += kSentence;
    return text;
  }();
  return prose;
}

const CharSetFile& Sets() {
  static const CharSetFile file = [] {
    std::ifstream stream(MORLAN7_TREE "/CharSets.Def", std::ios::binary);
    return CharSetFile(std::string(std::istreambuf_iterator<char>(stream), {}));
  }();
  return file;
}

CharSetCodes Codes(std::string_view name) { return Sets().CharSetByName(name).value_or(CharSetRecord()).codes; }

void Report(benchmark::State& state, std::size_t bytes) { state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes)); }

void Copy(benchmark::State& state) {
  std::string copy(Page().size(), '\0');
  for (auto _ : state) {
    std::memcpy(copy.data(), Page().data(), copy.size());
    benchmark::ClobberMemory();
  }
  Report(state, copy.size());
}
BENCHMARK(Copy)->Unit(benchmark::kMillisecond);

// There and back in one text, so that no copy is measured; half of the work is one direction.
void ExchangeLetters(benchmark::State& state) {
  std::string text = Page();
  const ByteTable there = ChainedTable(Codes(kBaseCharSet), Codes("iso-8859-2")),
                  back = ChainedTable(Codes("iso-8859-2"), Codes(kBaseCharSet));
  for (auto _ : state) text = Substituted(Substituted(std::move(text), there), back);
  Report(state, 2 * text.size());
}
BENCHMARK(ExchangeLetters)->Unit(benchmark::kMillisecond);

void LettersIntoUtf8(benchmark::State& state, const std::string& text) {
  for (auto _ : state) benchmark::DoNotOptimize(LettersToUtf8(text));
  Report(state, text.size());
}
BENCHMARK_CAPTURE(LettersIntoUtf8, page, Page())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LettersIntoUtf8, prose, Prose())->Unit(benchmark::kMillisecond);

// With the copy that leaves the source whole.
void LettersOutOfUtf8(benchmark::State& state, const std::string& text) {
  const std::string utf8 = LettersToUtf8(text);
  for (auto _ : state) benchmark::DoNotOptimize(LettersFromUtf8(utf8));
  Report(state, utf8.size());
}
BENCHMARK_CAPTURE(LettersOutOfUtf8, page, Page())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LettersOutOfUtf8, prose, Prose())->Unit(benchmark::kMillisecond);

void SymbolsBothWays(benchmark::State& state) {
  const CharSetCodes codes = Codes(kBaseCharSet);
  for (auto _ : state) benchmark::DoNotOptimize(SymbolsToCharacters(LettersToSymbols(Page(), codes)));
  Report(state, 2 * Page().size());
}
BENCHMARK(SymbolsBothWays)->Unit(benchmark::kMillisecond);

// All that a page goes through when it is opened, the comparison with its bytes included.
void OpenPage(benchmark::State& state, const std::string& charset) {
  const std::string head = "<HTML><HEAD><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;CHARSET=" + charset + "\"></HEAD>";
  const std::string bytes = EncodeText(Sets(), head + Prose(), Symbols::No);
  for (auto _ : state) benchmark::DoNotOptimize(DecodeText(Sets(), bytes));
  Report(state, bytes.size());
}
BENCHMARK_CAPTURE(OpenPage, windows, std::string("windows-1250"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenPage, latin2, std::string("iso-8859-2"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(OpenPage, utf8, std::string("utf-8"))->Unit(benchmark::kMillisecond);

void SystemConverter(benchmark::State& state, const char* target, const char* source) {
  std::string text = Prose(), result(2 * text.size(), '\0');
  if (std::string_view(source) == "UTF-8") text = LettersToUtf8(text);
  const iconv_t handle = iconv_open(target, source);
  for (auto _ : state) {
    char *from = text.data(), *to = result.data();
    std::size_t left = text.size(), room = result.size();
    if (iconv(handle, &from, &left, &to, &room) != 0) return state.SkipWithError("not converted");
  }
  iconv_close(handle);
  Report(state, text.size());
}
BENCHMARK_CAPTURE(SystemConverter, latin2, "ISO-8859-2", "CP1250")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SystemConverter, to_utf8, "UTF-8", "CP1250")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SystemConverter, from_utf8, "CP1250", "UTF-8")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan
