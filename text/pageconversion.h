// Pages that are given another character set, one at a time and without a window.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/charsets.h"

namespace morlan {

class Files;
class Program;

struct ConvertedPage {
  std::string bytes;
  bool isWhole = true;     // every letter is what it was
  bool isRefused = false;  // it names no set and holds UTF-8, which would be taken for letters: nothing was converted
};
// The page as it is written in the set of that name, which its Content-Type then tells. Its stamps are brought up to date.
ConvertedPage ConvertPage(Program& program, const CharSetFile& file, std::string bytes, std::string_view path, std::string_view target);

enum class Subdirectories { No, Yes };
// The pages (.html, .htm, .shtml) that a source names: "@" and a project's name or path, a directory, or one file.
std::vector<std::string> PagesOfSource(Program& program, std::string_view source, Subdirectories subdirectories);

}  // namespace morlan
