// The dictionary files and a page of any bytes: the first byte tells how many of the rest, in sixty-fourths, are the exact
// dictionary; half of what follows is the field of bits, the rest the page.
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "tests/support/memoryfiles.h"
#include "text/mlndictionary.h"

namespace {

void Require(bool holds) {
  if (!holds) __builtin_trap();
}

// Gives the file the marks of a sound one, so that its arcs are walked.
std::string Mended(std::string_view bytes) {
  using morlan::WordAutomaton;
  std::string file(bytes);
  if (file.size() <= WordAutomaton::kHeaderSize) return file;
  file.resize(file.size() / WordAutomaton::kArcSize * WordAutomaton::kArcSize);
  std::memcpy(file.data(), WordAutomaton::kMark.data(), WordAutomaton::kMark.size());
  const std::string_view arcs = std::string_view(file).substr(WordAutomaton::kHeaderSize);
  const auto count = static_cast<std::uint32_t>(arcs.size() / WordAutomaton::kArcSize);
  const std::uint64_t sum = WordAutomaton::ChecksumOf(arcs);
  std::memcpy(file.data() + 8, &count, sizeof count);
  std::memcpy(file.data() + 16, &sum, sizeof sum);
  return file;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace morlan;
  if (size == 0) return 0;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::string_view automaton = bytes.substr(0, bytes.size() * (data[0] % 64) / 64), rest = bytes.substr(automaton.size());
  MemoryFiles files;
  files.Write("c:\\i", data[0] < 128 ? Mended(automaton) : std::string(automaton));
  files.Write("c:\\s", rest.substr(0, rest.size() / 2));
  files.Write("c:\\u", automaton);
  MlnDictionary control(files);
  control.File = {"c:\\s", "c:\\i", "c:\\u"};
  control.Text = rest.substr(rest.size() / 2);
  std::size_t behind = 0;
  control.MlnDictionary_MissSpeld = [&](const std::string& word, std::string&, std::size_t start, std::size_t length) {
    Require(!word.empty() && start > behind && length >= word.size() && start - 1 + length <= control.Text.size());
    behind = start - 1 + length;
    if (control.Similar(word).size() > 12) __builtin_trap();
  };
  control.Start();
  return 0;
}
