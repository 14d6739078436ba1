// The store over any bytes: the first three lines of the input are item, sub-item and value, the rest is the file.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/inifile.h"
#include "core/text.h"
#include "tests/support/memoryfiles.h"

namespace {

std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

void Require(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::string_view item = TakeLine(input), subItem = TakeLine(input), value = TakeLine(input);
  constexpr std::string_view kStore = "c:\\store.ini";
  morlan::MemoryFiles files;
  morlan::INIFile ini(files);
  ini.Init(kStore);

  const auto start = [&] { files.Write(kStore, input); };
  start();
  ini.GetSubItemValue(item, subItem);
  ini.GetSubItemValueSlow(item, subItem);
  Require(files.Read(kStore) == input);

  ini.SetSubItemValue(item, subItem, value);
  Require(files.Size(kStore) >= input.size());

  start();
  ini.CreateItem(item);
  ini.CreateSubItem(item, subItem);
  ini.RemoveSubItem(item, subItem);

  start();
  ini.SetSubItemValue2(item, subItem, value);
  Require(!files.Size("inifile.tmp"));
  return 0;
}
