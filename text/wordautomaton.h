// An exact set of words as a minimal automaton without cycles: common beginnings and common ends of words are kept once. It
// is read where it lies, nothing is unpacked.
//
// The file, numbers low byte first:
//   0   8 bytes  "MlnWord1"
//   8   4 bytes  number of arcs
//   12  4 bytes  the first arc of the start
//   16  8 bytes  checksum of all that follows
//   24           the arcs, 4 bytes each
// A place in a word is named by the first of its arcs; its further arcs follow. Arc 0 is not used, and the place 0 has none.
//   bits 0 to 7    the letter
//   bit 8          a word ends behind this letter
//   bit 9          the last arc of its place
//   bits 10 to 31  the place behind this letter
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace morlan {

class WordAutomaton {
 public:
  using Place = std::uint32_t;

  struct Arc {
    std::uint32_t bits;
    static constexpr std::uint32_t kWordEnds = 1u << 8, kLast = 1u << 9;
    static constexpr int kPlaceShift = 10;
    static constexpr std::uint32_t kMost = (1u << (32 - kPlaceShift)) - 1;  // the largest number of an arc

    char Letter() const { return static_cast<char>(bits); }
    bool WordEnds() const { return (bits & kWordEnds) != 0; }
    bool IsLast() const { return (bits & kLast) != 0; }
    Place Next() const { return bits >> kPlaceShift; }
  };

  static constexpr std::string_view kMark = "MlnWord1";
  static constexpr std::size_t kHeaderSize = 24, kArcSize = 4;
  static std::uint64_t ChecksumOf(std::string_view arcs);

  WordAutomaton() = default;  // holds no words
  // The bytes of a file, which must outlive the automaton. Where they are cut short or garbled it is not valid.
  explicit WordAutomaton(std::string_view file);

  bool IsValid() const { return start_ != 0; }
  // Letter for letter, case included. Never for the empty word.
  bool Holds(std::string_view word) const;

  // For walks through the words: from the start along the arcs of each place.
  Place Start() const { return start_; }
  std::optional<Arc> FindArc(Place place, char letter) const;
  // Gives every arc of a place to `visit`.
  template <class Visit>
  void VisitArcs(Place place, Visit visit) const {
    if (place == 0) return;
    for (; place < count_; ++place) {
      const Arc arc = ArcAt(place);
      visit(arc);
      if (arc.IsLast()) return;
    }
  }

 private:
  Arc ArcAt(std::uint32_t number) const;

  const char* arcs_ = nullptr;
  std::uint32_t count_ = 0;
  Place start_ = 0;
};

}  // namespace morlan
