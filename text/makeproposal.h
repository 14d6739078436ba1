// Proposals for a word that no dictionary holds: the slips of Polish spelling, one at a time, undone.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace morlan {

using WordLookup = std::function<bool(std::string_view word)>;

struct Proposals {
  bool wordIsHeld = false;         // the lookup holds the word itself, so that there is nothing to propose
  std::vector<std::string> words;  // in lower case, in the order in which they were found
};

Proposals MakeProposal(std::string_view word, const WordLookup& holds);

}  // namespace morlan
