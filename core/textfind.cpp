// Find and FindNoCase. The two rarest characters of the needle are looked for together in blocks that the compiler turns
// into vector code; only where both stand at their places is the needle compared. A needle that costs too many
// comparisons, as "aab" in a run of "a", is finished by a search that never looks back.

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "core/text.h"

namespace morlan {
namespace {

using Byte = unsigned char;
constexpr std::size_t kNotFound = std::string_view::npos;
constexpr std::size_t kBlock = 64;

// Characters of hand-written pages in Polish, the commonest first; what is not named is rare.
constexpr std::string_view kCommonFirst =
    " aeionzrtswcdkymplu\r\n<>/=\"ATRDOEBSHICLNPMFgbjhfv.,-0123456789UGWVKXYJZQq;&:#_x()'?!%\t"
    "ąęćłńóśźż[]{}+*ŚŁŻĆŃÓĘĄŹ"_pl;

constexpr auto MakeCommonness() {
  std::array<std::uint8_t, 256> commonness{};
  for (std::size_t i = 0; i < kCommonFirst.size(); ++i)
    commonness[static_cast<Byte>(kCommonFirst[i])] = static_cast<std::uint8_t>(kCommonFirst.size() - i);
  return commonness;
}
constexpr auto kCommonness = MakeCommonness();

struct ExactCase {
  static char Key(char character) { return character; }
  static char Other(char character) { return character; }
};

struct AnyCase {
  static char Key(char character) { return LowerCharacter(character); }
  static char Other(char character) { return UpperCharacter(character); }
};

// One character of the needle that the blocks are searched for, in its two letter cases.
struct Mark {
  std::size_t offset = 0;
  Byte first = 0, second = 0;
  bool At(const char* place) const { return static_cast<Byte>(place[offset]) == first || static_cast<Byte>(place[offset]) == second; }
};

template <class Case>
Mark RarestMark(std::string_view needle, std::size_t without) {
  const auto commonness = [](char c) { return kCommonness[static_cast<Byte>(c)] + kCommonness[static_cast<Byte>(Case::Other(c))]; };
  std::size_t best = without == 0 ? 1 : 0;
  for (std::size_t i = best + 1; i < needle.size(); ++i)
    if (i != without && commonness(needle[i]) < commonness(needle[best])) best = i;
  return {best, static_cast<Byte>(Case::Key(needle[best])), static_cast<Byte>(Case::Other(needle[best]))};
}

// 1 where both marks stand at their places, else 0.
template <class Case>
Byte HasBoth(Byte left, Byte right, const Mark& a, const Mark& b) {
  if constexpr (std::is_same_v<Case, ExactCase>)
    return static_cast<Byte>((left == a.first) & (right == b.first));
  else
    return static_cast<Byte>(((left == a.first) | (left == a.second)) & ((right == b.first) | (right == b.second)));
}

template <class Case>
bool BlockHasBoth(const char* block, Mark a, Mark b) {
  const auto* left = reinterpret_cast<const Byte*>(block) + a.offset;
  const auto* right = reinterpret_cast<const Byte*>(block) + b.offset;
  Byte any = 0;
  for (std::size_t k = 0; k < kBlock; ++k) any |= HasBoth<Case>(left[k], right[k], a, b);
  return any != 0;
}

// One byte for each place of a block.
using Places = std::array<Byte, kBlock>;

template <class Case>
Places PlacesOfBoth(const char* block, Mark a, Mark b) {
  const auto* left = reinterpret_cast<const Byte*>(block) + a.offset;
  const auto* right = reinterpret_cast<const Byte*>(block) + b.offset;
  Places places;
  for (std::size_t k = 0; k < kBlock; ++k) places[k] = HasBoth<Case>(left[k], right[k], a, b);
  return places;
}

// Knuth, Morris and Pratt's search; `needle` holds keys. Linear whatever the texts are.
template <class Case>
std::size_t FindWithoutLookingBack(std::string_view text, std::string_view needle, std::size_t offset) {
  std::vector<std::size_t> border(needle.size(), 0);
  for (std::size_t i = 1, k = 0; i < needle.size(); ++i) {
    while (k > 0 && needle[i] != needle[k]) k = border[k - 1];
    if (needle[i] == needle[k]) ++k;
    border[i] = k;
  }
  std::size_t matched = 0;
  for (; offset < text.size(); ++offset) {
    const char key = Case::Key(text[offset]);
    while (matched > 0 && key != needle[matched]) matched = border[matched - 1];
    if (key == needle[matched]) ++matched;
    if (matched == needle.size()) return offset + 1 - matched;
  }
  return kNotFound;
}

template <class Case>
class Search {
 public:
  Search(std::string_view text, std::string_view needle) : text_(text), needle_(needle) {
    for (char& character : needle_) character = Case::Key(character);
    a_ = RarestMark<Case>(needle_, kNotFound);
    b_ = needle_.size() == 1 ? a_ : RarestMark<Case>(needle_, a_.offset);
  }

  // The offset of the first hit at or behind an offset.
  std::size_t From(const std::size_t start) {
    const std::size_t last = text_.size() - needle_.size();
    std::size_t offset = start;
    for (; offset + kBlock <= last + 1; offset += kBlock) {
      const char* const block = text_.data() + offset;
      if (!BlockHasBoth<Case>(block, a_, b_)) continue;
      if (const std::size_t hit = InBlock(offset); hit != kNotFound) return hit;
      if (compared_ > kPatience + 2 * (offset - start)) return FindWithoutLookingBack<Case>(text_, needle_, offset + kBlock);
    }
    for (; offset <= last; ++offset)
      if (a_.At(text_.data() + offset) && b_.At(text_.data() + offset) && Matches(offset)) return offset;
    return kNotFound;
  }

 private:
  static constexpr std::size_t kPatience = 4096;  // characters compared in vain that are always granted

  // Whole words of the places are passed over while they are zero.
  std::size_t InBlock(std::size_t offset) {
    const Places places = PlacesOfBoth<Case>(text_.data() + offset, a_, b_);
    for (std::size_t word = 0; word < kBlock; word += sizeof(std::uint64_t)) {
      std::uint64_t any;
      std::memcpy(&any, places.data() + word, sizeof any);
      for (std::size_t k = word; any != 0 && k < word + sizeof any; ++k)
        if (places[k] != 0 && Matches(offset + k)) return offset + k;
    }
    return kNotFound;
  }

  bool Matches(std::size_t offset) {
    for (std::size_t i = 0; i < needle_.size(); ++i) {
      if (Case::Key(text_[offset + i]) == needle_[i]) continue;
      compared_ += i + 1;
      return false;
    }
    return true;
  }

  std::string_view text_;
  std::string needle_;
  Mark a_, b_;
  std::size_t compared_ = 0;
};

template <class Case>
std::size_t PositionOf(std::string_view text, std::string_view needle, std::size_t from) {
  const std::size_t offset = from > 0 ? from - 1 : 0;
  if (offset > text.size() || needle.size() > text.size() - offset) return 0;
  if (needle.empty()) return offset + 1;
  const std::size_t hit = Search<Case>(text, needle).From(offset);
  return hit == kNotFound ? 0 : hit + 1;
}

}  // namespace

std::size_t Find(std::string_view text, std::string_view needle, std::size_t from) { return PositionOf<ExactCase>(text, needle, from); }
std::size_t FindNoCase(std::string_view text, std::string_view needle, std::size_t from) { return PositionOf<AnyCase>(text, needle, from); }

}  // namespace morlan
