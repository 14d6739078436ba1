// The words that a text used lately, for a quick yes: most running words of a text are few words that come again and again.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace morlan {

class RecentWords {
 public:
  RecentWords() : slots_(kSlots) {}

  // False also for a word that was added but has had to make room.
  bool Has(std::string_view word) const {
    if (word.empty() || word.size() > kLongest) return false;
    const Slot& slot = slots_[SlotOf(word)];
    return slot.length == word.size() && std::memcmp(slot.letters.data(), word.data(), word.size()) == 0;
  }
  // Words that are too long are not kept.
  void Add(std::string_view word) {
    if (word.empty() || word.size() > kLongest) return;
    Slot& slot = slots_[SlotOf(word)];
    slot.length = static_cast<std::uint8_t>(word.size());
    std::memcpy(slot.letters.data(), word.data(), word.size());
  }
  void Clear() { slots_.assign(kSlots, Slot()); }

 private:
  static constexpr std::size_t kSlots = 8192, kLongest = 31;
  struct Slot {
    std::uint8_t length = 0;
    std::array<char, kLongest> letters{};
  };

  static std::size_t SlotOf(std::string_view word) {
    std::uint64_t hash = word.size();
    for (; word.size() >= sizeof hash; word.remove_prefix(sizeof hash)) hash = Mixed(hash, word.substr(0, sizeof hash));
    return Mixed(hash, word) >> 32 & (kSlots - 1);
  }
  static std::uint64_t Mixed(std::uint64_t hash, std::string_view letters) {
    std::uint64_t number = 0;
    std::memcpy(&number, letters.data(), letters.size());
    hash = (hash ^ number) * 0x9E3779B97F4A7C15;
    return hash ^ hash >> 32;
  }

  std::vector<Slot> slots_;
};

}  // namespace morlan
