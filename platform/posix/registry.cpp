#include "platform/posix/registry.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <utility>
#include <vector>

#include "platform/encoding.h"
#include "platform/lettercase.h"
#include "platform/posix/nativeio.h"

namespace morlan {
namespace {

struct Entry {
  std::string key, name, value;
  bool Is(std::string_view otherKey, std::string_view otherName) const {
    return EqualNoCase(key, otherKey) && EqualNoCase(name, otherName);
  }
};

std::string Escaped(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string escaped;
  for (const char character : ToUtf8(text)) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte < 0x20 || byte == '%')
      escaped += {'%', kDigits[byte >> 4], kDigits[byte & 0xF]};
    else
      escaped += character;
  }
  return escaped;
}

std::string Unescaped(std::string_view escaped) {
  std::string utf8;
  for (std::size_t i = 0; i < escaped.size(); ++i) {
    unsigned char byte = 0;
    const bool isEscape = escaped[i] == '%' && i + 2 < escaped.size() &&
                          std::from_chars(escaped.data() + i + 1, escaped.data() + i + 3, byte, 16).ptr == escaped.data() + i + 3;
    utf8 += isEscape ? static_cast<char>(byte) : escaped[i];
    if (isEscape) i += 2;
  }
  return FromUtf8(utf8);
}

// A line without its two tabs is no entry.
std::vector<Entry> EntriesOf(std::string_view file) {
  std::vector<Entry> entries;
  while (!file.empty()) {
    const std::size_t end = std::min(file.find('\n'), file.size());
    const std::string_view line = file.substr(0, end);
    const std::size_t first = line.find('\t');
    const std::size_t second = first == line.npos ? line.npos : line.find('\t', first + 1);
    if (second != line.npos)
      entries.push_back(
          {Unescaped(line.substr(0, first)), Unescaped(line.substr(first + 1, second - first - 1)), Unescaped(line.substr(second + 1))});
    file.remove_prefix(std::min(end + 1, file.size()));
  }
  return entries;
}

std::string FileOf(const std::vector<Entry>& entries) {
  std::string file;
  for (const Entry& entry : entries) file += Escaped(entry.key) + '\t' + Escaped(entry.name) + '\t' + Escaped(entry.value) + '\n';
  return file;
}

// A missing file holds nothing; one that cannot be read is a failure, so that it is not replaced.
std::optional<std::vector<Entry>> Load(const std::string& nativePath) {
  const std::optional<std::string> file = native::Read(nativePath);
  if (!file && errno != ENOENT) return std::nullopt;
  return EntriesOf(file.value_or(""));
}

}  // namespace

FileRegistry::FileRegistry(std::string nativePath) : nativePath_(std::move(nativePath)) {}

bool FileRegistry::SetString(std::string_view key, std::string_view name, std::string_view value) {
  auto entries = Load(nativePath_);
  if (!entries) return false;
  const auto entry = std::find_if(entries->begin(), entries->end(), [&](const Entry& e) { return e.Is(key, name); });
  if (entry == entries->end())
    entries->push_back({std::string(key), std::string(name), std::string(value)});
  else if (entry->value == value)
    return true;
  else
    entry->value = value;
  return native::Replace(nativePath_, FileOf(*entries));
}

std::optional<std::string> FileRegistry::GetString(std::string_view key, std::string_view name) {
  const auto entries = Load(nativePath_);
  if (!entries) return std::nullopt;
  const auto entry = std::find_if(entries->begin(), entries->end(), [&](const Entry& e) { return e.Is(key, name); });
  return entry == entries->end() ? std::nullopt : std::optional(entry->value);
}

}  // namespace morlan
