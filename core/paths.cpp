#include "core/paths.h"

#include "core/text.h"

namespace morlan {

std::string PathOf(std::string_view path) {
  const std::size_t backslash = path.rfind('\\');
  return std::string(backslash == path.npos ? "" : path.substr(0, backslash));
}

std::string FileNameOf(std::string_view path) {
  const std::size_t backslash = path.rfind('\\');
  return std::string(backslash == path.npos ? path : path.substr(backslash + 1));
}

std::string ExtensionOf(std::string_view path) {
  const std::size_t point = path.find('.');
  return std::string(point == path.npos ? "" : path.substr(point + 1));
}

std::string StripExtension(std::string_view name) { return std::string(name.substr(0, name.rfind('.'))); }

std::string WithBackslash(std::string_view path) { return Concat({path, path.ends_with('\\') ? "" : "\\"}); }

}  // namespace morlan
