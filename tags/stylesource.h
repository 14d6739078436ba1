// Where property sheets take named styles from. An empty entry means that there are none; a later room fills both.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace morlan {

struct StyleSource {
  // The names of the stored styles, without folder and extension.
  std::function<std::vector<std::string>()> styleNames;
  // The bare declarations of a style, as they stand in an attribute STYLE; empty when there is no such style.
  std::function<std::string(std::string_view name)> StyleTextByName;

  bool IsThere() const { return styleNames && StyleTextByName; }
};

}  // namespace morlan
