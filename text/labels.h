// The places of a page that a link can lead to.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace morlan {

struct PageLabel {
  std::string name;
  std::size_t offset;  // of the tag's "<", from 0
  std::size_t length;  // of the tag, with its ">"
};

// Every tag behind the word "body" that holds "name=" and has a name to it, in the order of the text. Form fields and
// other named tags are among them.
std::vector<PageLabel> LabelsOf(std::string_view text);

}  // namespace morlan
