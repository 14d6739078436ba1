// The tag that a file becomes when it is dropped on a text.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

struct TagPair {
  std::string open, close;
};

// A picture becomes an image, a sound is embedded, anything else becomes a link. The file is named relative to the
// directory, with "/" between the parts.
TagPair TagForFile(std::string_view path, std::string_view directory);

// The way from a directory to a file, "../" for each step up; the whole path where the drives differ. Letter case does
// not tell directories apart.
std::string RelativeLink(std::string_view path, std::string_view directory);

}  // namespace morlan
