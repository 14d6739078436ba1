// A font as a dialog asks for it and the settings keep it.
#pragma once

#include <string>

namespace morlan {

struct FontChoice {
  std::string name;
  double size = 10;  // points
  bool bold = false, italic = false, underline = false, strikeThrough = false;
  bool operator==(const FontChoice&) const = default;
};

}  // namespace morlan
