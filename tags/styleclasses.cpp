#include "tags/styleclasses.h"

#include <algorithm>
#include <unordered_set>

#include "core/text.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

constexpr std::string_view kStyleStart = "<style", kStyleEnd = "</style>", kLinkStart = "<link";

// Texts in the order in which they came first.
class OnceEach {
 public:
  void Add(std::string_view name) {
    if (!name.empty() && seen_.emplace(name).second) names.emplace_back(name);
  }
  std::vector<std::string> names;

 private:
  std::unordered_set<std::string> seen_;
};

}  // namespace

std::vector<std::string> ClassesInSheet(std::string_view sheet, std::string_view tagName) {
  OnceEach classes;
  if (tagName.empty()) return {};
  const std::string lower = LowerCase(sheet), key = Concat({LowerCase(tagName), "."});
  for (std::size_t hit = lower.find(key); hit != std::string::npos; hit = lower.find(key, hit + key.size())) {
    const std::size_t start = hit + key.size();
    const std::size_t end = std::min(lower.find_first_of(" {\t\r\n", start), lower.size());
    classes.Add(sheet.substr(start, end - start));
  }
  return classes.names;
}

std::vector<std::string> ClassesInPage(std::string_view page, std::string_view tagName) {
  const std::size_t start = FindNoCase(page, kStyleStart);
  const std::size_t end = start == 0 ? 0 : FindNoCase(page, kStyleEnd, start);
  return end == 0 ? std::vector<std::string>() : ClassesInSheet(page.substr(start - 1, end - start), tagName);
}

std::vector<std::string> ClassesInFile(std::string_view content, std::string_view tagName) {
  return FindNoCase(content, kStyleStart) == 0 ? ClassesInSheet(content, tagName) : ClassesInPage(content, tagName);
}

std::vector<std::string> LinkedSheets(std::string_view page) {
  OnceEach links;
  for (std::size_t start = FindNoCase(page, kLinkStart); start != 0;) {
    const std::size_t end = Find(page, ">", start);
    if (end == 0) break;
    const std::string_view tag = page.substr(start - 1, end - start);
    if (EqualNoCase(GetTagParam(tag, "rel"), "stylesheet")) links.Add(GetTagParam(tag, "href"));
    start = FindNoCase(page, kLinkStart, end);
  }
  return links.names;
}

}  // namespace morlan
