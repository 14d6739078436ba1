// The readable form of the file of character sets, from which the shipped one is built. It is UTF-8, line by line:
//
//   # a comment
//   litery | ę Ę ó ...              the letters in their order, once and in front of all sets
//   NAME | EA CA -- ... | INFO      a set: its codes as two hexadecimal digits, "--" where it lacks the letter
//
// There are as many codes as letters, and at most two more for the spare places.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "text/charsetfile.h"

namespace morlan {

// One file of the source; its name serves the messages alone.
struct CharSetSourceText {
  std::string name, utf8;
};

struct CompiledCharSets {
  CharSetFile file;                 // the sets in the order of the source
  std::vector<std::string> faults;  // "NAME:LINE: what is wrong", in UTF-8; empty when all is well
};

// All texts together are one source. A text that does not fit its field is a fault, never cut.
CompiledCharSets CompileCharSets(const std::vector<CharSetSourceText>& source);

// The source, in UTF-8, that gives the same sets again. Nothing where a name or a description could not be told from it.
std::optional<std::string> CharSetSourceOf(const CharSetFile& file);

}  // namespace morlan
