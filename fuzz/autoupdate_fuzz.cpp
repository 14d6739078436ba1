// Stamps and date patterns over any bytes: a second pass changes nothing, and what lies outside the blocks stays.
#include <cstdint>
#include <string>
#include <string_view>

#include "core/text.h"
#include "tests/support/memoryfiles.h"
#include "text/amountinwords.h"
#include "text/autoupdate.h"
#include "text/dateformat.h"

namespace {

void Require(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace morlan;
  const std::string text(reinterpret_cast<const char*>(data), size);
  MemoryFiles files;
  files.Write("c:\\plik.zip", "12345");
  const StampSource source{files, {.year = 1998, .month = 3, .day = 7, .hour = 9, .minute = 5, .second = 4, .dayOfWeek = 6}, "c:"};

  const std::string once = UpdateBlocks(text, source);
  if (!FindNoCase(text, "<!--/morlan7autoupdate-->")) Require(once == text);
  const std::string twice = UpdateBlocks(once, source);
  Require(twice.size() <= once.size() + text.size() * 8);
  Require(FormatDateTime(source.now, text).size() <= size * 13);
  AmountInWords(text);
  return 0;
}
