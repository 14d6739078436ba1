// The files of a small dictionary for tests.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "text/spellingbits.h"
#include "text/wordautomatonbuilder.h"

namespace morlan {

inline std::string BitsOf(const std::vector<std::string_view>& words) {
  std::string bits = EmptyWordBits();
  for (const std::string_view word : words) SetWordBit(bits, word);
  return bits;
}

inline std::string AutomatonOf(std::vector<std::string_view> words) {
  std::sort(words.begin(), words.end());
  WordAutomatonBuilder builder;
  for (const std::string_view word : words) builder.Add(word);
  return builder.Finish().value_or("");
}

}  // namespace morlan
