// The file of tags over any bytes: everything is read, then changed, and what was written is found again.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tags/propertyfile.h"

namespace {

constexpr std::size_t kMostTags = 64;

void Require(bool holds) {
  if (!holds) __builtin_trap();
}

void ReadAll(const morlan::PropertyFile& file) {
  for (std::size_t i = 0; i < std::min(kMostTags, file.Tags().size()); ++i) {
    const morlan::TagRecord& tag = file.Tags()[i];
    file.Params(tag.position);
    file.IsBuiltIn(tag.position);
    file.FindTag(tag.name);
  }
}

// Only then does a change of one tag leave the others alone.
bool TagsLieApart(const morlan::PropertyFile& file) {
  std::vector<std::uint32_t> positions;
  for (const morlan::TagRecord& tag : file.Tags()) positions.push_back(tag.position);
  std::sort(positions.begin(), positions.end());
  for (std::size_t i = 1; i < positions.size(); ++i)
    if (positions[i] - positions[i - 1] < morlan::kTagRecordSize) return false;
  return true;
}

void Change(morlan::PropertyFile& file) {
  const std::uint32_t tag = file.AddTag({"nowy-znacznik", "Opis", 0});
  if (tag == 0 || !TagsLieApart(file)) return;
  Require(file.AddParam(tag, {.name = "a", .kind = morlan::ParamKind::List, .values = {"x", "y"}}) != 0);
  Require(file.AddParam(tag, {.name = "b"}) != 0);
  Require(file.ReplaceParam(tag, "a", {.name = "c", .kind = morlan::ParamKind::List, .values = {"z"}}));
  Require(file.RemoveParam(tag, "b"));
  const morlan::PropertyFile again(file.Bytes());
  const auto params = again.Params(again.FindTag("nowy-znacznik"));
  Require(params && params->size() == 1 && params->front().name == "c" && params->front().values.size() == 1);
  Require(file.RemoveTag(file.FindTag("nowy-znacznik")));
  Require(file.FindTag("nowy-znacznik") == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  morlan::PropertyFile file(bytes);
  ReadAll(file);
  Require(file.Bytes() == bytes);
  Change(file);
  for (std::size_t i = 0; i < kMostTags && !file.Tags().empty(); ++i) {
    const auto params = file.Params(file.Tags().front().position);
    if (params && !params->empty()) {
      morlan::ParamRecord param = params->back();
      file.ReplaceParam(file.Tags().front().position, param.name, param);
      file.RemoveParam(file.Tags().front().position, param.name);
    }
    Require(file.RemoveTag(file.Tags().back().position));
  }
  return 0;
}
