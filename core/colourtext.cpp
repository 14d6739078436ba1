#include "core/colourtext.h"

#include <algorithm>

#include "platform/lettercase.h"

namespace morlan {
namespace {

constexpr std::size_t kDigitCount = 6;

// The two characters at an offset, as far as the text reaches.
std::string_view PairAt(std::string_view digits, std::size_t offset) {
  return offset < digits.size() ? digits.substr(offset, 2) : std::string_view();
}

bool IsHexDigit(char character) {
  const char upper = UpperCharacter(character);
  return (upper >= '0' && upper <= '9') || (upper >= 'A' && upper <= 'F');
}

}  // namespace

int HexDigitValue(char character) {
  const auto code = static_cast<unsigned char>(UpperCharacter(character));
  return code >= 'A' ? code - 'A' + 10 : code - '0';
}

bool IsHexColour(std::string_view text) { return text.size() == kDigitCount && std::all_of(text.begin(), text.end(), IsHexDigit); }

std::uint8_t HexPairToByte(std::string_view pair) {
  int value = 0;
  for (std::size_t i = 0; i < 2; ++i) value = value * 16 + (i < pair.size() ? HexDigitValue(pair[i]) : 0);
  return static_cast<std::uint8_t>(value);
}

Colour HexToRgb(std::string_view digits) {
  return RgbColour(HexPairToByte(PairAt(digits, 0)), HexPairToByte(PairAt(digits, 2)), HexPairToByte(PairAt(digits, 4)));
}

std::string ColorToHex(Colour colour) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (const std::uint8_t part : {RedOf(colour), GreenOf(colour), BlueOf(colour)}) {
    text += kDigits[part >> 4];
    text += kDigits[part & 15];
  }
  return text;
}

}  // namespace morlan
