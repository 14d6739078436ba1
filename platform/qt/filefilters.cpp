#include "platform/qt/filefilters.h"

#include "core/text.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

std::vector<std::string_view> Split(std::string_view text, std::string_view separators) {
  std::vector<std::string_view> pieces;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of(separators);
    pieces.push_back(text.substr(0, end));
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  }
  return pieces;
}

// Programs have no ending of their own on this machine.
bool MeansAnyFile(std::string_view pattern) { return pattern == "*.*" || EqualNoCase(pattern, "*.exe"); }

std::vector<std::string> ReadPatterns(std::string_view text) {
  std::vector<std::string> patterns;
  for (const std::string_view piece : Split(text, ";,")) {
    const std::string_view pattern = Trim(piece);
    if (!pattern.empty()) patterns.emplace_back(MeansAnyFile(pattern) ? "*" : pattern);
  }
  return patterns;
}

}  // namespace

std::vector<FileFilter> ReadFilters(std::string_view filter) {
  std::vector<FileFilter> filters;
  const std::vector<std::string_view> pieces = Split(filter, "|");
  for (std::size_t i = 0; i + 1 < pieces.size(); i += 2)
    filters.push_back({std::string(Trim(pieces[i].substr(0, pieces[i].rfind('(')))), ReadPatterns(pieces[i + 1])});
  return filters;
}

QStringList QtFilters(std::string_view filter) {
  QStringList list;
  for (const FileFilter& one : ReadFilters(filter)) {
    QStringList patterns;
    for (const std::string& pattern : one.patterns) patterns += ToQt(pattern);
    list += QStringLiteral("%1 (%2)").arg(ToQt(one.description), patterns.join(QLatin1Char(' ')));
  }
  return list;
}

}  // namespace morlan
