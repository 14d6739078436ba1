// The hints of a tag with the shipped file of tags on disk, as on a key that changes the tag's name: list and block.
#include <benchmark/benchmark.h>

#include "bench/benchprogram.h"
#include "core/keyboard.h"
#include "platform/posix/profile.h"
#include "tags/propertyhints.h"
#include "tags/propertysheets.h"

namespace morlan {
namespace {

// A program over the shipped data.
class Sheets {
 public:
  Sheets() : program_("<input>") {
    PosixFiles files;
    if (const auto shipped = FindShippedData()) program().ProgramPath = files.FromNative(*shipped) + "\\";
    bytes_ = files.Size(program().ProgramPath + "Morlan7.tpf").value_or(0);
  }
  bool Ready() { return bytes_ != 0 && HasPropertySheet(program(), "input"); }
  Program& program() { return program_.document().program(); }
  TEditor& document() { return program_.document(); }
  std::uint64_t Bytes() const { return bytes_; }

 private:
  BenchProgram program_;
  std::uint64_t bytes_ = 0;
};

void FillList(benchmark::State& state) {
  Sheets sheets;
  if (!sheets.Ready()) return state.SkipWithError("the shipped file of tags is missing");
  ListBox& list = sheets.document().FastHelpC;
  for (auto _ : state) {
    list.Clear();
    FillHintList(sheets.program(), list, "input");
    benchmark::DoNotOptimize(list.ListCount());
  }
  state.SetLabel(std::to_string(list.ListCount()) + " rows of " + std::to_string(sheets.Bytes()) + " bytes");
}
BENCHMARK(FillList)->Unit(benchmark::kMicrosecond);

void MakeBlock(benchmark::State& state) {
  Sheets sheets;
  if (!sheets.Ready()) return state.SkipWithError("the shipped file of tags is missing");
  for (auto _ : state) {
    const std::string block = HintBlockText(sheets.program(), "input");
    benchmark::DoNotOptimize(block.data());
  }
}
BENCHMARK(MakeBlock)->Unit(benchmark::kMicrosecond);

// The first hint of all reads the file.
void ReadFile(benchmark::State& state) {
  Sheets sheets;
  if (!sheets.Ready()) return state.SkipWithError("the shipped file of tags is missing");
  for (auto _ : state) {
    SheetsOf(sheets.program()).ReadAnew();
    benchmark::DoNotOptimize(FindTagRecord(sheets.program(), "input"));
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(sheets.Bytes()));
}
BENCHMARK(ReadFile)->Unit(benchmark::kMicrosecond);

// A blank behind a tag's name, typed and taken back, with everything that a key does.
void TypeKey(benchmark::State& state) {
  Sheets sheets;
  if (!sheets.Ready()) return state.SkipWithError("the shipped file of tags is missing");
  TEditor& document = sheets.document();
  document.EditedText.Select(6, 0);
  for (auto _ : state) {
    document.FastHelpC.Tag.clear();
    PressKey(document, {key::kSpace, shift::kNone, ' '});
    PressKey(document, {key::kBackspace, shift::kNone, 0});
  }
  if (!document.FastHelpC.Visible()) state.SkipWithError("no list came up");
}
BENCHMARK(TypeKey)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace morlan
