#include "platform/posix/filenames.h"

#include <charconv>

#include "platform/encoding.h"

namespace morlan {
namespace {

constexpr char kEscape = "¤"_pl[0];
constexpr std::size_t kEscapeLength = 3;

constexpr bool IsControl(unsigned char byte) { return byte < 0x20 || byte == 0x7F; }
constexpr bool NeedsEscape(unsigned char byte) { return byte >= 0x80 || byte == '\\' || IsControl(byte); }

void AppendEscaped(std::string& name, std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (const char character : bytes) {
    const auto byte = static_cast<unsigned char>(character);
    name += {kEscape, kDigits[byte >> 4], kDigits[byte & 0xF]};
  }
}

// The byte of the escape at the front of a text, or -1. Only what needs an escape has one: no "/" comes out of it, nor NUL.
int EscapedByte(std::string_view text) {
  if (text.size() < kEscapeLength || text[0] != kEscape) return -1;
  unsigned char byte = 0;
  const char* const end = text.data() + kEscapeLength;
  const auto [stop, error] = std::from_chars(text.data() + 1, end, byte, 16);
  return error == std::errc() && stop == end && byte != 0 && NeedsEscape(byte) ? byte : -1;
}

// Takes over each character for which `keeps` answers true and that Windows-1250 has, and escapes the bytes of the others.
template <class Keeps>
std::string Escaped(std::string_view utf8, Keeps keeps) {
  std::string text;
  text.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const DecodedCodePoint decoded = DecodeUtf8At(utf8, i);
    const int byte = decoded.valid ? ByteOf(decoded.value) : -1;
    if (byte >= 0 && keeps(static_cast<unsigned char>(byte)))
      text += static_cast<char>(byte);
    else
      AppendEscaped(text, utf8.substr(i, decoded.length));
    i += decoded.length;
  }
  return text;
}

}  // namespace

std::string NameFromNative(std::string_view nativeName) {
  return Escaped(nativeName, [](unsigned char byte) { return byte < 0x80 ? !NeedsEscape(byte) : static_cast<char>(byte) != kEscape; });
}

std::string PathFromNative(std::string_view absoluteNative) {
  std::string path(kDrive);
  while (!absoluteNative.empty()) {
    const std::size_t slash = absoluteNative.find('/');
    path += NameFromNative(absoluteNative.substr(0, slash));
    if (slash == std::string_view::npos) break;
    if (!path.ends_with('\\')) path += '\\';
    absoluteNative.remove_prefix(slash + 1);
  }
  return path;
}

std::string ProgramFormFromUtf8(std::string_view utf8) {
  return Escaped(utf8, [](unsigned char byte) { return !IsControl(byte); });
}

std::string NameToNative(std::string_view name) {
  std::string nativeName;
  nativeName.reserve(name.size() + name.size() / 8);
  while (!name.empty()) {
    const int byte = EscapedByte(name);
    if (byte >= 0)
      nativeName += static_cast<char>(byte);
    else
      nativeName += ToUtf8(name.substr(0, 1));
    name.remove_prefix(byte >= 0 ? kEscapeLength : 1);
  }
  return nativeName;
}

}  // namespace morlan
