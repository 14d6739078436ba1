#include "platform/script/scriptwords.h"

#include <charconv>
#include <cstdio>
#include <vector>

#include "core/paths.h"

namespace morlan {
namespace {

template <class Number>
std::optional<Number> ReadWhole(std::string_view word) {
  Number value{};
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (word.empty() || error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return value;
}

bool HasDrive(std::string_view path) { return path.size() >= 2 && path[1] == ':'; }

std::string WithoutDots(std::string_view path) {
  const std::string_view drive = HasDrive(path) ? path.substr(0, 2) : std::string_view();
  std::vector<std::string_view> parts;
  for (std::size_t i = drive.size(); i < path.size();) {
    const std::size_t end = std::min(path.find('\\', i), path.size());
    const std::string_view part = path.substr(i, end - i);
    if (part == ".." && !parts.empty())
      parts.pop_back();
    else if (!part.empty() && part != "." && part != "..")
      parts.push_back(part);
    i = end + 1;
  }
  std::string whole(drive);
  for (const std::string_view part : parts) whole.append("\\").append(part);
  return parts.empty() ? whole + "\\" : whole;
}

}  // namespace

std::optional<std::size_t> ReadCount(std::string_view word) { return ReadWhole<std::size_t>(word); }
std::optional<int> ReadInteger(std::string_view word) { return ReadWhole<int>(word); }

std::optional<double> ReadFontSize(std::string_view word) {
  const auto size = ReadWhole<double>(word);
  return size && *size > 0 && *size < 1000 ? size : std::nullopt;
}

std::string FontSizeWord(double size) {
  char word[32];
  const auto [end, error] = std::to_chars(word, word + sizeof word, size);
  return error == std::errc() ? std::string(word, end) : "0";
}

std::string ColourWord(Colour colour) {
  char word[8];
  std::snprintf(word, sizeof word, "%02X%02X%02X", RedOf(colour), GreenOf(colour), BlueOf(colour));
  return word;
}

std::optional<Colour> ReadColour(std::string_view word) {
  if (word.starts_with('#')) word.remove_prefix(1);
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value, 16);
  if (word.size() != 6 || error != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return RgbColour(static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value));
}

std::string ReadPath(Files& files, std::string_view word, std::string_view directory) {
  std::string path = files.FromNative(word);
  if (HasDrive(path)) return WithoutDots(path);
  const std::string base = directory.empty() ? files.CurrentDirectory() : std::string(directory);
  if (path.starts_with('\\')) return WithoutDots(base.substr(0, HasDrive(base) ? 2 : 0) + path);
  return WithoutDots(WithBackslash(base) + path);
}

}  // namespace morlan
