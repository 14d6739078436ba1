// Windows-1250, the encoding of every text inside the program, and its conversion to and from the world's UTF-8.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace morlan {

// Unicode code points of the bytes 0x80 to 0xFF. The five bytes that Windows-1250 leaves free stand for the control
// characters of the same number, so that any byte survives the way to Unicode and back.
inline constexpr std::array<char16_t, 128> kWindows1250High = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039, 0x015A, 0x0164, 0x017D, 0x0179,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0098, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A,
    0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C,
    0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E,
    0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, 0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F,
    0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

// The code point of one byte.
constexpr char32_t CodePointOf(unsigned char byte) { return byte < 0x80 ? byte : kWindows1250High[byte - 0x80]; }

// The byte of a code point, or -1 where Windows-1250 lacks it.
constexpr int ByteOf(char32_t codePoint) {
  if (codePoint < 0x80) return static_cast<int>(codePoint);
  for (std::size_t i = 0; i < kWindows1250High.size(); ++i)
    if (kWindows1250High[i] == codePoint) return static_cast<int>(i + 0x80);
  return -1;
}

struct DecodedCodePoint {
  char32_t value;
  std::size_t length;  // bytes read, at least 1
  bool valid;
};

// Reads one code point of UTF-8 at an offset from 0 below the text's length. A malformed sequence is one invalid byte.
constexpr DecodedCodePoint DecodeUtf8At(std::string_view utf8, std::size_t offset) {
  const auto byteAt = [&](std::size_t i) { return i < utf8.size() ? static_cast<unsigned char>(utf8[i]) : 0u; };
  const unsigned first = byteAt(offset);
  if (first < 0x80) return {first, 1, true};
  const std::size_t length = first >= 0xF0 && first < 0xF5 ? 4 : first >= 0xE0 && first < 0xF0 ? 3 : first >= 0xC2 && first < 0xE0 ? 2 : 0;
  if (length == 0) return {first, 1, false};
  char32_t value = length == 4 ? first & 0x07 : length == 3 ? first & 0x0F : first & 0x1F;
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned next = byteAt(offset + i);
    if ((next & 0xC0) != 0x80) return {first, 1, false};
    value = value << 6 | (next & 0x3F);
  }
  constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = value >= 0xD800 && value < 0xE000;
  if (value < kSmallest[length] || value > 0x10FFFF || surrogate) return {first, 1, false};
  return {value, length, true};
}

// What becomes of a character that Windows-1250 lacks.
enum class Unmappable { QuestionMark, NumericReference };

// UTF-8 to Windows-1250. A malformed byte becomes "?".
std::string FromUtf8(std::string_view utf8, Unmappable unmappable = Unmappable::QuestionMark);

// Windows-1250 to UTF-8; never fails.
std::string ToUtf8(std::string_view text);

// A string literal in UTF-8, held in a form that a template can take.
template <std::size_t Size>
struct Utf8Literal {
  char bytes[Size];
  consteval Utf8Literal(const char (&literal)[Size]) {
    for (std::size_t i = 0; i < Size; ++i) bytes[i] = literal[i];
  }
  constexpr std::string_view View() const { return {bytes, Size - 1}; }
};

// The Windows-1250 form of a literal; a character that the encoding lacks stops the compiler.
template <std::size_t Size>
struct PolishLiteral {
  char bytes[Size] = {};
  std::size_t length = 0;
  consteval explicit PolishLiteral(Utf8Literal<Size> literal) {
    const std::string_view utf8 = literal.View();
    for (std::size_t i = 0; i < utf8.size();) {
      const DecodedCodePoint decoded = DecodeUtf8At(utf8, i);
      const int byte = decoded.valid ? ByteOf(decoded.value) : -1;
      if (byte < 0) throw "the literal holds a character that Windows-1250 lacks";
      bytes[length++] = static_cast<char>(byte);
      i += decoded.length;
    }
  }
};

template <Utf8Literal Literal>
inline constexpr PolishLiteral kPolishLiteral{Literal};

// "Zapisać zmiany ?"_pl: the text in Windows-1250, converted by the compiler.
template <Utf8Literal Literal>
constexpr std::string_view operator""_pl() {
  return {kPolishLiteral<Literal>.bytes, kPolishLiteral<Literal>.length};
}

}  // namespace morlan
