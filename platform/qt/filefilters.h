// Filters of the file dialogs: from the program's one text to the desktop's list.
#pragma once

#include <QStringList>
#include <string>
#include <string_view>
#include <vector>

namespace morlan {

struct FileFilter {
  std::string description;            // without its patterns
  std::vector<std::string> patterns;  // "*.html"; "*" for all files
};

// "Pliki HTML (*.HTML)|*.html;*.htm|..." in pairs; patterns are parted by ";" or ",". A half pair at the end is left out.
std::vector<FileFilter> ReadFilters(std::string_view filter);
// "Pliki HTML (*.html *.htm)".
QStringList QtFilters(std::string_view filter);

}  // namespace morlan
