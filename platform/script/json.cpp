#include "platform/script/json.h"

#include <cstdint>

#include "platform/encoding.h"

namespace morlan {
namespace {

struct EscapeRow {
  char letter, meaning;
};
constexpr EscapeRow kEscapes[] = {{'"', '"'}, {'\\', '\\'}, {'b', '\b'}, {'f', '\f'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}};

char EscapeLetterOf(char character) {
  for (const EscapeRow& row : kEscapes)
    if (row.meaning == character) return row.letter;
  return 0;
}

std::string UnicodeEscape(char32_t codePoint) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string escape = "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) escape += kDigits[codePoint >> shift & 0xF];
  return escape;
}

bool IsControl(char32_t codePoint) { return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0); }

void AppendUtf8(std::string& utf8, char32_t codePoint) {
  if (codePoint < 0x80) {
    utf8 += static_cast<char>(codePoint);
    return;
  }
  const int more = codePoint < 0x800 ? 1 : codePoint < 0x10000 ? 2 : 3;
  constexpr unsigned kLead[] = {0, 0xC0, 0xE0, 0xF0};
  utf8 += static_cast<char>(kLead[more] | codePoint >> (6 * more));
  for (int shift = 6 * (more - 1); shift >= 0; shift -= 6) utf8 += static_cast<char>(0x80 | (codePoint >> shift & 0x3F));
}

// The four digits of "\u0105"; nothing when they are not there.
std::optional<char32_t> ReadFourDigits(std::string_view line, std::size_t offset) {
  if (offset + 4 > line.size()) return std::nullopt;
  char32_t value = 0;
  for (const char digit : line.substr(offset, 4)) {
    const char lower = static_cast<char>(digit | 0x20);
    if (digit >= '0' && digit <= '9')
      value = value * 16 + static_cast<char32_t>(digit - '0');
    else if (lower >= 'a' && lower <= 'f')
      value = value * 16 + static_cast<char32_t>(lower - 'a' + 10);
    else
      return std::nullopt;
  }
  return value;
}

// A "\u" escape behind its letter; a pair of surrogates is one character.
std::optional<char32_t> ReadUnicodeEscape(std::string_view line, std::size_t& offset) {
  const auto first = ReadFourDigits(line, offset);
  if (!first || (*first >= 0xDC00 && *first < 0xE000)) return std::nullopt;
  offset += 4;
  if (*first < 0xD800 || *first >= 0xE000) return first;
  if (line.substr(offset, 2) != "\\u") return std::nullopt;
  const auto second = ReadFourDigits(line, offset + 2);
  if (!second || *second < 0xDC00 || *second >= 0xE000) return std::nullopt;
  offset += 6;
  return 0x10000 + ((*first - 0xD800) << 10) + (*second - 0xDC00);
}

// The escape whose backslash was just read.
bool ReadEscape(std::string_view line, std::size_t& offset, std::string& utf8) {
  if (offset >= line.size()) return false;
  const char letter = line[offset++];
  if (letter == 'u') {
    const auto codePoint = ReadUnicodeEscape(line, offset);
    if (codePoint) AppendUtf8(utf8, *codePoint);
    return codePoint.has_value();
  }
  if (letter == '/') {
    utf8 += '/';
    return true;
  }
  for (const EscapeRow& row : kEscapes)
    if (row.letter == letter) {
      utf8 += row.meaning;
      return true;
    }
  return false;
}

}  // namespace

std::string JsonString(std::string_view text) { return JsonStringOfUtf8(ToUtf8(text)); }

std::string JsonStringOfUtf8(std::string_view utf8) {
  std::string json = "\"";
  json.reserve(utf8.size() + utf8.size() / 16 + 2);
  for (std::size_t i = 0; i < utf8.size();) {
    const DecodedCodePoint decoded = DecodeUtf8At(utf8, i);
    const char letter = decoded.length == 1 ? EscapeLetterOf(utf8[i]) : '\0';
    if (letter)
      json.append({'\\', letter});
    else if (IsControl(decoded.value))
      json += UnicodeEscape(decoded.value);
    else if (decoded.valid)
      json += utf8.substr(i, decoded.length);
    else
      json += '?';
    i += decoded.length;
  }
  return json += '"';
}

std::optional<std::string> ReadJsonString(std::string_view line, std::size_t& offset) {
  std::string utf8;
  for (++offset; offset < line.size();) {
    const char character = line[offset++];
    if (character == '"') return utf8;
    if (character != '\\')
      utf8 += character;
    else if (!ReadEscape(line, offset, utf8))
      return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace morlan
