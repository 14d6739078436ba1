#include "core/filetag.h"

#include <algorithm>
#include <vector>

#include "core/text.h"

namespace morlan {
namespace {

enum class FileKind { Picture, Sound };

struct ExtensionRow {
  std::string_view extension;
  FileKind kind;
};
constexpr ExtensionRow kExtensions[] = {
    {"gif", FileKind::Picture}, {"jpg", FileKind::Picture},  {"jpeg", FileKind::Picture}, {"png", FileKind::Picture},
    {"bmp", FileKind::Picture}, {"webp", FileKind::Picture}, {"svg", FileKind::Picture},  {"mid", FileKind::Sound},
    {"midi", FileKind::Sound},  {"wav", FileKind::Sound},    {"au", FileKind::Sound},     {"aif", FileKind::Sound},
    {"aiff", FileKind::Sound},  {"mp3", FileKind::Sound},    {"ogg", FileKind::Sound},
};

std::vector<std::string_view> PartsOf(std::string_view path) {
  std::vector<std::string_view> parts;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
    if (end != 0) parts.push_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return parts;
}

std::string LastExtension(std::string_view path) {
  const std::size_t dot = path.find_last_of(".\\/");
  return dot == std::string_view::npos || path[dot] != '.' ? "" : LowerCase(path.substr(dot + 1));
}

}  // namespace

std::string RelativeLink(std::string_view path, std::string_view directory) {
  const std::vector<std::string_view> target = PartsOf(path), base = PartsOf(directory);
  std::size_t common = 0;
  while (common + 1 < target.size() && common < base.size() && EqualNoCase(target[common], base[common])) ++common;
  std::string link;
  if (common != 0)
    for (std::size_t i = common; i < base.size(); ++i) link += "../";
  for (std::size_t i = common; i < target.size(); ++i) {
    if (i != common) link += '/';
    link += target[i];
  }
  return link;
}

TagPair TagForFile(std::string_view path, std::string_view directory) {
  const std::string link = RelativeLink(path, directory), extension = LastExtension(path);
  const auto found =
      std::find_if(std::begin(kExtensions), std::end(kExtensions), [&](const ExtensionRow& row) { return row.extension == extension; });
  if (found == std::end(kExtensions)) return {Concat({"<A HREF=", Quote, link, Quote, ">"}), "</A>"};
  return {Concat({found->kind == FileKind::Picture ? "<IMG SRC=" : "<EMBED SRC=", Quote, link, Quote, ">"}), ""};
}

}  // namespace morlan
