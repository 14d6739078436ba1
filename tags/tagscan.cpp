#include "tags/tagscan.h"

#include <algorithm>

#include "core/text.h"

namespace morlan {
namespace {

constexpr std::size_t kDeepestAttribute = 500;
constexpr std::size_t kMissingDelimiter = 65535;
constexpr unsigned char kFirstLetter = 'A';

// The readers append a blank to the tag. This is the tag with it, without a copy.
class TerminatedTag {
 public:
  explicit TerminatedTag(std::string_view tag) : tag_(tag) {}
  std::size_t Length() const { return tag_.size() + 1; }
  char At(std::size_t position) const { return position <= tag_.size() && position != 0 ? tag_[position - 1] : ' '; }
  bool IsLetterAt(std::size_t position) const { return static_cast<unsigned char>(At(position)) >= kFirstLetter; }
  // From one position up to, not including, another; the appended blank is no part of a value.
  std::string_view Between(std::size_t from, std::size_t to) const {
    from = std::min(from - 1, tag_.size());
    to = std::min(to - 1, tag_.size());
    return from < to ? tag_.substr(from, to - from) : std::string_view();
  }
  // A key at or behind a position and not behind the 500th; 0 when there is none. The key may take the appended blank in.
  std::size_t FindKey(std::string_view key, std::size_t from) const {
    return FindNoCase(tag_.substr(0, kDeepestAttribute + key.size() - 1), key, from);
  }

 private:
  std::string_view tag_;
};

bool IsMark(char character) { return character == '"' || character == '>'; }

std::string_view WithoutQuotes(std::string_view value) {
  if (value.starts_with('"')) value.remove_prefix(1);
  if (value.ends_with('"')) value.remove_suffix(1);
  return value;
}

// Where a short value that begins behind its name stops.
std::size_t EndOfShortValue(const TerminatedTag& tag, std::size_t position) {
  bool inQuotes = false;
  for (; position <= tag.Length(); ++position) {
    const char character = tag.At(position);
    if (character == '>' || character == (inQuotes ? '"' : ' ')) return position;
    if (character == '"') inQuotes = true;
  }
  return position;
}

// The character behind the name is taken to be "=" unseen. Where it is none, a "=" ahead of the stop shows the place.
std::size_t StartOfShortValue(const TerminatedTag& tag, std::size_t behindName, std::size_t stop) {
  if (tag.At(behindName) != '=')
    for (std::size_t position = behindName; position < stop; ++position)
      if (tag.At(position) == '=') return position + 1;
  return behindName + 1;
}

}  // namespace

std::string GetTagName(std::string_view tag) {
  if (tag.size() < 2) return {};
  const std::size_t end = std::min({tag.find(' ', 1), tag.find('>', 1), kMissingDelimiter - 1, tag.size()});
  return std::string(tag.substr(1, end - 1));
}

std::string GetTagParam(std::string_view tagText, std::string_view name) {
  const TerminatedTag tag(tagText);
  const std::string key = EqualNoCase(name, "charset") ? std::string(name) : Concat({" ", name});
  std::size_t hit = tag.FindKey(key, 1);
  while (hit != 0 && tag.IsLetterAt(hit + key.size())) hit = tag.FindKey(key, hit + 1);
  if (hit == 0) return {};
  const std::size_t behindName = hit + key.size();
  const std::size_t stop = EndOfShortValue(tag, behindName);
  if (stop == behindName) return "true";
  std::string_view value = WithoutQuotes(tag.Between(StartOfShortValue(tag, behindName, stop), stop));
  if (value.starts_with('#')) value.remove_prefix(1);
  return std::string(value);
}

std::string GetTagTextParam(std::string_view tag, std::string_view name) {
  const std::string key = Concat({" ", name});
  const std::size_t hit = FindNoCase(tag, key);
  if (hit == 0) return {};
  const std::string_view rest = tag.substr(hit - 1 + key.size());
  if (rest.empty()) return "true";
  const auto left = std::find_if(rest.begin(), rest.end(), IsMark);
  if (left == rest.end()) return {};
  return std::string(left + 1, std::find_if(left + 1, rest.end(), IsMark));
}

std::string GetTagLinkParam(std::string_view tagText, std::string_view name) {
  const TerminatedTag tag(tagText);
  const auto stands = [&](std::size_t hit) { return !tag.IsLetterAt(hit - 1) && !tag.IsLetterAt(hit + name.size()); };
  std::size_t hit = tag.FindKey(name, 1);
  while (hit != 0 && !stands(hit)) hit = tag.FindKey(name, hit + 1);
  if (hit == 0) return {};
  const std::size_t behindName = hit + name.size();
  if (behindName >= tag.Length()) return "true";
  std::size_t stop = behindName;
  for (int marks = 0; stop <= tag.Length(); ++stop)
    if (IsMark(tag.At(stop)) && ++marks == 2) break;
  return std::string(WithoutQuotes(tag.Between(behindName + 1, stop)));
}

FoundTag FindTagAt(std::string_view text, std::size_t selStart) {
  const std::size_t position = std::min(selStart, text.size());
  if (position == 0) return {};
  const std::size_t open = text.rfind('<', position - 1);
  const std::size_t close = text.find('>', position - 1);
  if (open == std::string_view::npos || close == std::string_view::npos) return {};
  return {open + 1, text.substr(open, close - open)};
}

}  // namespace morlan
