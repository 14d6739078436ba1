// The readers of tags over any bytes: the first line of the input is a name, the rest is a tag and a text.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "tags/colours.h"
#include "tags/metatags.h"
#include "tags/tagscan.h"

namespace {

void Require(bool holds) {
  if (!holds) __builtin_trap();
}

void ReadTag(std::string_view tag, std::string_view name) {
  using namespace morlan;
  Require(GetTagName(tag).size() <= tag.size());
  ColorNameToValue(GetTagParam(tag, name));
  Require(GetTagTextParam(tag, name).size() <= tag.size() + 4);
  Require(GetTagLinkParam(tag, name).size() <= tag.size() + 4);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t lineEnd = std::min(input.find('\n'), input.size());
  const std::string_view name = input.substr(0, lineEnd), text = input.substr(std::min(lineEnd + 1, input.size()));
  ReadTag(text, name);
  const morlan::FoundTag found = morlan::FindTagAt(text, lineEnd);
  Require(found.start == 0 || found.text.starts_with('<'));
  ReadTag(found.text, name);

  morlan::GetMetaContentOfText(text, name);
  morlan::GetUpperCaseMetaContent(text, name);
  const std::string once = morlan::SetMetaInText(std::string(text), "NAME", name, "x");
  Require(once.find("<META NAME=") != std::string::npos);
  return 0;
}
