// A set of words as a field of bits, one bit for a number that the word's letters and its length give. Words that share a number
// are told apart by nothing. Byte n holds the bits of the numbers 8n (the lowest) to 8n + 7.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace morlan {

inline constexpr std::uint64_t kLargestWordNumber = 6'000'000;

// The reflected CRC-16 of the polynomial 0xA001 over the word's bytes, from 0.
std::uint16_t WordChecksum(std::string_view word);

// Every length of a word has a region of 150,000 numbers of its own. Words above 40 letters have numbers beyond the largest.
// An empty word has none; its number is 0.
std::uint64_t WordNumber(std::string_view word);

// False beyond the end of the field and for the empty word. The word is looked up as it comes, letter case included.
bool BitsHoldWord(std::string_view bits, std::string_view word);

// A field with room for all numbers up to the largest and no word in it.
std::string EmptyWordBits();
// Words beyond the field are left out.
void SetWordBit(std::string& bits, std::string_view word);

}  // namespace morlan
