#include "text/spellingbits.h"

#include <array>

namespace morlan {
namespace {

constexpr std::uint16_t kPolynomial = 0xA001;
constexpr std::uint64_t kFirstNumber = 65'540, kNumbersPerLength = 150'000;

// What eight steps make of the low byte of the value.
constexpr std::array<std::uint16_t, 256> kEightSteps = [] {
  std::array<std::uint16_t, 256> steps{};
  for (unsigned byte = 0; byte < steps.size(); ++byte) {
    unsigned value = byte;
    for (int step = 0; step < 8; ++step) value = value & 1 ? value >> 1 ^ kPolynomial : value >> 1;
    steps[byte] = static_cast<std::uint16_t>(value);
  }
  return steps;
}();

constexpr unsigned BitOf(std::uint64_t number) { return 1u << number % 8; }

}  // namespace

std::uint16_t WordChecksum(std::string_view word) {
  std::uint16_t value = 0;
  for (const char letter : word)
    value = static_cast<std::uint16_t>(value >> 8 ^ kEightSteps[(value ^ static_cast<unsigned char>(letter)) & 0xFF]);
  return value;
}

std::uint64_t WordNumber(std::string_view word) {
  return word.empty() ? 0 : WordChecksum(word) + kFirstNumber + (word.size() - 1) * kNumbersPerLength;
}

bool BitsHoldWord(std::string_view bits, std::string_view word) {
  const std::uint64_t number = WordNumber(word);
  return !word.empty() && number / 8 < bits.size() && (static_cast<unsigned char>(bits[number / 8]) & BitOf(number)) != 0;
}

std::string EmptyWordBits() { return std::string(kLargestWordNumber / 8 + 1, '\0'); }

void SetWordBit(std::string& bits, std::string_view word) {
  const std::uint64_t number = WordNumber(word);
  if (word.empty() || number > kLargestWordNumber || number / 8 >= bits.size()) return;
  bits[number / 8] = static_cast<char>(static_cast<unsigned char>(bits[number / 8]) | BitOf(number));
}

}  // namespace morlan
