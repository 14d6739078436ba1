// A thousand look-ups in a store of 20 KB on disk, beside a copy of the same bytes.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "core/inifile.h"
#include "core/text.h"
#include "platform/posix/filenames.h"
#include "platform/posix/files.h"

namespace morlan {
namespace {

constexpr int kLookUps = 1000;
constexpr int kItems = 40, kSubItems = 20;

std::string SubItemName(int item, int subItem) { return "Ustawienie" + std::to_string(item * kSubItems + subItem); }

std::string StoreText() {
  std::string text;
  for (int item = 0; item < kItems; ++item) {
    text += "\r\n[Grupa" + std::to_string(item) + "]\r\n";
    for (int subItem = 0; subItem < kSubItems; ++subItem) text += Concat({SubItemName(item, subItem), "=wartość\r\n"_pl});
  }
  return text;
}

class Store {
 public:
  Store() : text(StoreText()), ini(files) {
    std::string name = (std::filesystem::temp_directory_path() / "morlan7-bench-XXXXXX").string();
    folder_ = ::mkdtemp(name.data());
    const std::string path = PathFromNative(folder_.string()) + "\\sklep.ini";
    files.Write(path, text);
    ini.Init(path);
  }
  ~Store() { std::filesystem::remove_all(folder_); }
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  PosixFiles files;
  const std::string text;
  INIFile ini;

 private:
  std::filesystem::path folder_;
};

void Report(benchmark::State& state, const Store& store) {
  state.SetBytesProcessed(state.iterations() * kLookUps * static_cast<std::int64_t>(store.text.size()));
  state.SetLabel(std::to_string(store.text.size()) + " bytes");
}

void Copy(benchmark::State& state) {
  const Store store;
  std::string copy = store.text;
  for (auto _ : state) {
    for (int i = 0; i < kLookUps; ++i) {
      std::memcpy(copy.data(), store.text.data(), copy.size());
      benchmark::ClobberMemory();
    }
  }
  Report(state, store);
}
BENCHMARK(Copy)->Unit(benchmark::kMillisecond);

void GetSubItemValue(benchmark::State& state) {
  Store store;
  for (auto _ : state) {
    for (int i = 0; i < kLookUps; ++i) {
      const int item = i % kItems, subItem = i % kSubItems;
      const std::string value = store.ini.GetSubItemValue("grupa" + std::to_string(item), SubItemName(item, subItem));
      if (value.empty()) return state.SkipWithError("a value is missing");
      benchmark::DoNotOptimize(value.data());
    }
  }
  Report(state, store);
}
BENCHMARK(GetSubItemValue)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan
