#include "platform/encoding.h"

namespace morlan {

std::string FromUtf8(std::string_view utf8, Unmappable unmappable) {
  std::string text;
  text.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const DecodedCodePoint decoded = DecodeUtf8At(utf8, i);
    i += decoded.length;
    const int byte = decoded.valid ? ByteOf(decoded.value) : -1;
    if (byte >= 0)
      text += static_cast<char>(byte);
    else if (decoded.valid && unmappable == Unmappable::NumericReference)
      text += "&#" + std::to_string(static_cast<std::uint32_t>(decoded.value)) + ";";
    else
      text += '?';
  }
  return text;
}

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size() + text.size() / 8);
  for (const char character : text) {
    const char32_t codePoint = CodePointOf(static_cast<unsigned char>(character));
    if (codePoint < 0x80) {
      utf8 += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
      utf8 += static_cast<char>(0xC0 | codePoint >> 6);
      utf8 += static_cast<char>(0x80 | (codePoint & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | codePoint >> 12);
      utf8 += static_cast<char>(0x80 | (codePoint >> 6 & 0x3F));
      utf8 += static_cast<char>(0x80 | (codePoint & 0x3F));
    }
  }
  return utf8;
}

}  // namespace morlan
