// Where the hints come from that are shown while a tag is typed. An empty entry means that there are none.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace morlan {

class ListBox;

struct HintSource {
  // Fills the list with the attributes of a tag; no rows when the tag is not known.
  std::function<void(ListBox& list, std::string_view tagName)> fillHintList;
  // The same as one text; empty when the tag is not known.
  std::function<std::string(std::string_view tagName)> hintBlockText;
};

}  // namespace morlan
