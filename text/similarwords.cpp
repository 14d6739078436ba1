#include "text/similarwords.h"

#include <algorithm>
#include <map>

#include "platform/encoding.h"
#include "text/wordcase.h"

namespace morlan {
namespace {

// What one slip costs, and the most that the slips of a word may.
constexpr int kHalfSlip = 1, kSlip = 2, kMostSlips = 4, kMostInShortWord = 3;
constexpr std::size_t kLongestWord = 40;
// Nearly every word of fewer letters is two slips away from any other.
constexpr std::size_t kLongestShortWord = 4;
// Looking stops behind so many letters, so that no dictionary can hold the window up.
constexpr int kMostSteps = 2'000'000;

// Words that people write together with the next one.
constexpr std::string_view kSmallWords[] = {"w",   "z",   "na",  "po",  "do",  "od",    "za",   "co",
                                            "nie", "bez", "dla", "nad", "pod", "przed", "przez"};

struct AlikeRow {
  std::string_view written, meant;
};
constexpr AlikeRow kAlike[] = {
    {"rz", "ż"_pl},   {"ż"_pl, "rz"},   {"ch", "h"},    {"h", "ch"},    {"u", "ó"_pl},  {"ó"_pl, "u"},  {"om", "ą"_pl}, {"on", "ą"_pl},
    {"ą"_pl, "om"},   {"ą"_pl, "on"},   {"em", "ę"_pl}, {"en", "ę"_pl}, {"ę"_pl, "em"}, {"ę"_pl, "en"}, {"a", "ą"_pl},  {"c", "ć"_pl},
    {"e", "ę"_pl},    {"l", "ł"_pl},    {"n", "ń"_pl},  {"o", "ó"_pl},  {"s", "ś"_pl},  {"z", "ź"_pl},  {"z", "ż"_pl},  {"ą"_pl, "a"},
    {"ć"_pl, "c"},    {"ę"_pl, "e"},    {"ł"_pl, "l"},  {"ń"_pl, "n"},  {"ó"_pl, "o"},  {"ś"_pl, "s"},  {"ź"_pl, "z"},  {"ż"_pl, "z"},
    {"ź"_pl, "ż"_pl}, {"ż"_pl, "ź"_pl}, {"ci", "ć"_pl}, {"ć"_pl, "ci"}, {"si", "ś"_pl}, {"ś"_pl, "si"}, {"zi", "ź"_pl}, {"ź"_pl, "zi"},
    {"ni", "ń"_pl},   {"ń"_pl, "ni"},   {"i", "j"},     {"j", "i"},     {"i", "y"},     {"y", "i"},     {"sz", "rz"},   {"rz", "sz"},
    {"d", "t"},       {"t", "d"},       {"b", "p"},     {"p", "b"},     {"w", "f"},     {"f", "w"},     {"g", "k"},     {"k", "g"},
    {"z", "s"},       {"s", "z"},
};

using Costs = std::map<std::string, int>;

class Search {
 public:
  Search(const WordAutomaton& words, std::string_view word, int most) : words_(words), word_(word), most_(most) {}

  Costs Run() {
    Walk({words_.Start(), false, 0, 0});
    return std::move(found_);
  }

 private:
  struct At {
    WordAutomaton::Place place;
    bool wordEnds;       // what was walked is a word
    std::size_t offset;  // of the letter that is to be met next
    int cost;
  };

  void Walk(const At& at) {
    if (++steps_ > kMostSteps) return;
    const bool atEnd = at.offset == word_.size();
    if (atEnd && at.wordEnds) Keep(at.cost);
    if (!atEnd) Follow(at, word_.substr(at.offset, 1), 1, 0);
    if (at.cost + kHalfSlip <= most_) TryAlike(at);
    if (at.cost + kSlip <= most_) TrySlips(at);
  }

  void Keep(int cost) {
    const auto [entry, isNew] = found_.try_emplace(walked_, cost);
    if (!isNew) entry->second = std::min(entry->second, cost);
  }

  // Walks along letters that stand for the next ones of the word.
  void Follow(const At& at, std::string_view letters, std::size_t met, int cost) {
    At next{at.place, at.wordEnds, at.offset + met, at.cost + cost};
    for (const char letter : letters) {
      const auto arc = words_.FindArc(next.place, letter);
      if (!arc) return;
      next.place = arc->Next();
      next.wordEnds = arc->WordEnds();
    }
    walked_ += letters;
    Walk(next);
    walked_.resize(walked_.size() - letters.size());
  }

  void TryAlike(const At& at) {
    const std::string_view rest = word_.substr(at.offset);
    for (const AlikeRow& row : kAlike)
      if (rest.starts_with(row.written)) Follow(at, row.meant, row.written.size(), kHalfSlip);
    const bool isDoubled = at.offset > 0 && !rest.empty() && rest[0] == word_[at.offset - 1];
    if (isDoubled) Walk({at.place, at.wordEnds, at.offset + 1, at.cost + kHalfSlip});
    if (!rest.empty()) Follow(at, std::string{rest[0], rest[0]}, 1, kHalfSlip);
  }

  void TrySlips(const At& at) {
    const std::string_view rest = word_.substr(at.offset);
    if (!rest.empty()) Walk({at.place, at.wordEnds, at.offset + 1, at.cost + kSlip});
    if (rest.size() > 1 && rest[0] != rest[1]) {
      const char swapped[] = {rest[1], rest[0]};
      Follow(at, {swapped, 2}, 2, kSlip);
    }
    words_.VisitArcs(at.place, [&](WordAutomaton::Arc arc) {
      walked_ += arc.Letter();
      if (!rest.empty() && rest[0] != arc.Letter()) Walk({arc.Next(), arc.WordEnds(), at.offset + 1, at.cost + kSlip});
      Walk({arc.Next(), arc.WordEnds(), at.offset, at.cost + kSlip});
      walked_.pop_back();
    });
  }

  const WordAutomaton& words_;
  std::string_view word_;
  int most_, steps_ = 0;
  std::string walked_;
  Costs found_;
};

// The words of the automaton within so many slips, and small words that ran into the next.
Costs Near(const WordAutomaton& words, std::string_view word, int most) {
  Costs found = Search(words, word, most).Run();
  for (const std::string_view small : kSmallWords)
    if (word.starts_with(small) && words.Holds(word.substr(small.size())))
      found.try_emplace(std::string(small) + ' ' + std::string(word.substr(small.size())), kHalfSlip);
  // A name is seldom meant by a word in small letters.
  if (IsLower(word))
    for (auto& [similar, cost] : found) cost += IsLower(similar) ? 0 : kSlip;
  return found;
}

// The same for a word with capitals: names as they are, and other words in the letter case of this one.
Costs NearInCase(const WordAutomaton& words, std::string_view word, int most) {
  Costs found = Near(words, word, most);
  if (IsLower(word)) return found;
  std::erase_if(found, [](const auto& entry) { return IsLower(entry.first); });
  for (const auto& [lowered, cost] : Near(words, LowerCase(word), most)) {
    const std::string cased = IsUpper(word) ? UpperCase(lowered) : IsLower(word.substr(1)) ? WithCapital(lowered) : lowered;
    const auto [entry, isNew] = found.try_emplace(cased, cost);
    if (!isNew) entry->second = std::min(entry->second, cost);
  }
  return found;
}

}  // namespace

std::vector<std::string> SimilarWords(const WordAutomaton& words, std::string_view word, std::size_t most) {
  if (word.empty() || word.size() > kLongestWord) return {};
  // One slip first: more are looked for only where that finds nothing.
  Costs found = NearInCase(words, word, kSlip);
  if (found.empty()) found = NearInCase(words, word, word.size() > kLongestShortWord ? kMostSlips : kMostInShortWord);
  found.erase(std::string(word));
  std::vector<std::pair<std::string, int>> nearest(found.begin(), found.end());
  std::stable_sort(nearest.begin(), nearest.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
  std::vector<std::string> similar;
  for (std::size_t i = 0; i < std::min(most, nearest.size()); ++i) similar.push_back(nearest[i].first);
  return similar;
}

}  // namespace morlan
