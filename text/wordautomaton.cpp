#include "text/wordautomaton.h"

#include <bit>
#include <cstring>

namespace morlan {
namespace {

static_assert(std::endian::native == std::endian::little, "the arcs are read where they lie");

template <class Number>
Number NumberAt(const char* bytes) {
  Number number;
  std::memcpy(&number, bytes, sizeof number);
  return number;
}

}  // namespace

std::uint64_t WordAutomaton::ChecksumOf(std::string_view arcs) {
  // Four sums beside each other keep the multiplications from waiting for one another.
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
  std::uint64_t sums[4] = {1, 2, 3, 4};
  std::size_t offset = 0;
  for (; offset + 32 <= arcs.size(); offset += 32)
    for (std::size_t lane = 0; lane < 4; ++lane)
      sums[lane] = (std::rotl(sums[lane], 23) ^ NumberAt<std::uint64_t>(arcs.data() + offset + 8 * lane)) * kFactor;
  std::uint64_t sum = arcs.size();
  for (; offset < arcs.size(); ++offset) sum = (std::rotl(sum, 23) ^ static_cast<unsigned char>(arcs[offset])) * kFactor;
  for (const std::uint64_t lane : sums) sum = (std::rotl(sum, 23) ^ lane) * kFactor;
  return sum;
}

WordAutomaton::WordAutomaton(std::string_view file) {
  if (file.size() < kHeaderSize || !file.starts_with(kMark)) return;
  const auto count = NumberAt<std::uint32_t>(file.data() + 8), start = NumberAt<std::uint32_t>(file.data() + 12);
  const std::string_view arcs = file.substr(kHeaderSize);
  const bool sound = arcs.size() % kArcSize == 0 && arcs.size() / kArcSize == count && start < count;
  if (!sound || ChecksumOf(arcs) != NumberAt<std::uint64_t>(file.data() + 16)) return;
  arcs_ = arcs.data();
  count_ = count;
  start_ = start;
}

WordAutomaton::Arc WordAutomaton::ArcAt(std::uint32_t number) const {
  return {NumberAt<std::uint32_t>(arcs_ + std::size_t{number} * kArcSize)};
}

std::optional<WordAutomaton::Arc> WordAutomaton::FindArc(Place place, char letter) const {
  if (place == 0) return std::nullopt;
  for (; place < count_; ++place) {
    const Arc arc = ArcAt(place);
    if (arc.Letter() == letter) return arc;
    if (arc.IsLast()) break;
  }
  return std::nullopt;
}

bool WordAutomaton::Holds(std::string_view word) const {
  Place place = start_;
  bool wordEnds = false;
  for (const char letter : word) {
    const auto arc = FindArc(place, letter);
    if (!arc) return false;
    wordEnds = arc->WordEnds();
    place = arc->Next();
  }
  return wordEnds;
}

}  // namespace morlan
