// Makes the file of a WordAutomaton from words in the order of their bytes, in one go over them: what of a word's path the next
// word no longer shares is final, and is kept once for all paths that end alike.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace morlan {

class WordAutomatonBuilder {
 public:
  WordAutomatonBuilder();
  // False, and nothing is added, when the word comes before the last one. The same word again and the empty one change nothing.
  bool Add(std::string_view word);
  // The file; nothing when the words need more arcs than a file can number. No word is added behind it.
  std::optional<std::string> Finish();

 private:
  using Arcs = std::vector<std::uint32_t>;
  // Makes the places of the last word's path final that lie behind so many letters.
  void FreezePath(std::size_t letters);
  // The place that has these arcs.
  std::uint32_t Keep(const Arcs& arcs);
  // The arcs of a place as the file has them: those that lead to most words first, since they are sought most.
  Arcs Closed(const Arcs& arcs) const;
  // How many words end on an arc or behind it.
  std::uint32_t WordsBehind(std::uint32_t arc) const;
  bool PlaceHas(std::uint32_t place, const Arcs& arcs) const;
  void GrowTable();

  std::vector<Arcs> path_;  // the open place in front of each letter of the last word, and one behind it
  std::string last_;
  Arcs arcs_;                         // of the final places
  std::vector<std::uint32_t> words_;  // that begin at each final place
  std::vector<std::uint32_t> table_;  // final places by the hash of their arcs; 0 is free
  std::size_t kept_ = 0;
  bool tooMany_ = false;
};

}  // namespace morlan
