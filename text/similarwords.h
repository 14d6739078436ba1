// Words of an automaton that a slip of the pen turns into a given one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text/wordautomaton.h"

namespace morlan {

// The nearest words first, at most `most`. A slip is a letter too many, missing, wrong or changed places with its neighbour; letters
// that differ by their mark only ("o" and "ó") or sound alike ("rz" and "ż"), one for two of a kind or the reverse, and a blank that
// is missing behind a small word ("wogóle"), count half. Two slips at most, one and a half in short words. Words of very many letters have
// none.
std::vector<std::string> SimilarWords(const WordAutomaton& words, std::string_view word, std::size_t most);

}  // namespace morlan
