#include "text/projectfiles.h"

#include <map>

#include "core/paths.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kItem = "[files]";
constexpr std::string_view kFileName = "filename";

bool IsWholePath(std::string_view name) { return name.starts_with('\\') || (name.size() > 1 && name[1] == ':'); }

struct Project {
  std::int32_t count = 0;
  std::string directory;
  std::map<std::int32_t, std::string> names;

  void Take(std::string_view key, std::string_view value) {
    const std::string lower = LowerCase(key);
    if (lower == "filecount") count = LeadingInteger(value);
    if (lower == "basedir") directory = value;
    if (lower.starts_with(kFileName)) names.try_emplace(LeadingInteger(std::string_view(lower).substr(kFileName.size())), value);
  }
};

Project ReadProject(std::string_view store) {
  Project project;
  bool within = false;
  while (!store.empty()) {
    const std::size_t end = store.find_first_of("\r\n");
    const std::string_view line = store.substr(0, end);
    const std::size_t equals = line.find('=');
    if (line.starts_with('['))
      within = EqualNoCase(Trim(line), kItem);
    else if (within && equals != std::string_view::npos)
      project.Take(line.substr(0, equals), line.substr(equals + 1));
    if (end == std::string_view::npos) break;
    store.remove_prefix(end + 1);
  }
  return project;
}

}  // namespace

std::vector<std::string> ProjectFiles(std::string_view store) {
  const Project project = ReadProject(store);
  std::vector<std::string> files;
  for (const auto& [number, name] : project.names) {
    if (number < 1 || number > project.count || name.empty()) continue;
    const bool stands = IsWholePath(name) || project.directory.empty();
    files.push_back(stands ? name : Concat({WithBackslash(project.directory), name}));
  }
  return files;
}

}  // namespace morlan
