// The spelling control over a Polish text in memory, and its first answer behind the opening of the dictionary.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "platform/posix/files.h"
#include "text/mlndictionary.h"
#include "text/wordautomaton.h"

namespace morlan {
namespace {

constexpr std::size_t kTextWords = 1'000'000, kEveryNth = 43;

std::string Path(const char* name) { return PosixFiles().FromNative(std::string(MORLAN7_TREE "/SLOWNIKI/") + name); }

void CollectWords(const WordAutomaton& words, WordAutomaton::Place place, std::string& walked, std::size_t& seen,
                  std::vector<std::string>& found) {
  words.VisitArcs(place, [&](WordAutomaton::Arc arc) {
    walked += arc.Letter();
    if (arc.WordEnds() && ++seen % kEveryNth == 0) found.push_back(walked);
    CollectWords(words, arc.Next(), walked, seen, found);
    walked.pop_back();
  });
}

// Words of the whole dictionary in paragraphs, a few of them often and most of them seldom, as in any text.
std::string RunningText() {
  PosixFiles files;
  const auto file = files.Map(Path("morlan7i.pol"));
  if (!file) return {};
  std::vector<std::string> words;
  std::string walked;
  std::size_t seen = 0;
  const WordAutomaton automaton(file->Bytes());
  CollectWords(automaton, automaton.Start(), walked, seen, words);
  if (words.empty()) return {};
  std::uint64_t dice = 19980307;
  const auto roll = [&] {
    dice = dice * 6364136223846793005u + 1442695040888963407u;
    return static_cast<double>(dice >> 11) / 9007199254740992.0;
  };
  for (std::size_t i = words.size(); i > 1; --i) std::swap(words[i - 1], words[static_cast<std::size_t>(roll() * static_cast<double>(i))]);
  std::string text;
  for (std::size_t i = 0; i < kTextWords; ++i) {
    // The n-th word comes about 1/n of the times.
    text += words[static_cast<std::size_t>(std::pow(static_cast<double>(words.size()), roll())) - 1];
    text += i % 60 == 59 ? "</P>\r\n<P>" : i % 11 == 10 ? ", " : " ";
  }
  return text;
}

void SetFiles(MlnDictionary& control) { control.File = {Path("morlan7s.pol"), Path("morlan7i.pol"), Path("morlan7u.pol")}; }

void Copy(benchmark::State& state) {
  const std::string text = RunningText();
  std::string copy(text.size(), '\0');
  for (auto _ : state) {
    std::memcpy(copy.data(), text.data(), copy.size());
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kTextWords));
}
BENCHMARK(Copy)->Unit(benchmark::kMillisecond);

void CheckText(benchmark::State& state) {
  PosixFiles files;
  MlnDictionary control(files);
  SetFiles(control);
  control.Text = RunningText();
  std::size_t checked = 0, wrong = 0;
  control.MlnDictionary_NextPartDone = [&](int, std::size_t words) { checked = words; };
  control.MlnDictionary_MissSpeldSelection = [&](std::size_t, std::size_t) { ++wrong; };
  for (auto _ : state) control.Start();
  if (checked != kTextWords || wrong != 0) state.SkipWithError("the text was not checked as a whole, or words of the list are unknown");
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(checked));
}
BENCHMARK(CheckText)->Unit(benchmark::kMillisecond);

void OpenToFirstAnswer(benchmark::State& state) {
  PosixFiles files;
  for (auto _ : state) {
    MlnDictionary control(files);
    SetFiles(control);
    if (!control.OpenDictionaries() || !control.IsKnown("strona") || control.IsKnown("stronna")) state.SkipWithError("wrong answer");
  }
}
BENCHMARK(OpenToFirstAnswer)->Unit(benchmark::kMillisecond);

void Similar(benchmark::State& state) {
  PosixFiles files;
  MlnDictionary control(files);
  SetFiles(control);
  control.OpenDictionaries();
  for (auto _ : state) benchmark::DoNotOptimize(control.Similar("niezapomniannego"));
}
BENCHMARK(Similar)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan
