#include "text/wordautomatonbuilder.h"

#include <algorithm>
#include <cstring>

#include "text/wordautomaton.h"

namespace morlan {
namespace {

using Arc = WordAutomaton::Arc;

std::size_t HashOf(const std::uint32_t* arc) {
  std::uint64_t hash = 0;
  for (;; ++arc) {
    hash = (hash ^ *arc) * 0x9E3779B97F4A7C15;
    hash ^= hash >> 29;
    if (Arc{*arc}.IsLast()) return hash;
  }
}

template <class Number>
void Put(std::string& file, Number number) {
  char bytes[sizeof number];
  std::memcpy(bytes, &number, sizeof number);
  file.append(bytes, sizeof bytes);
}

}  // namespace

WordAutomatonBuilder::WordAutomatonBuilder() : path_(1), arcs_(1), words_(1), table_(1 << 16) {}

bool WordAutomatonBuilder::Add(std::string_view word) {
  if (word < last_) return false;
  if (word == last_) return true;
  const auto shared = static_cast<std::size_t>(std::mismatch(last_.begin(), last_.end(), word.begin(), word.end()).first - last_.begin());
  FreezePath(shared);
  path_.resize(word.size() + 1);
  for (std::size_t i = shared; i < word.size(); ++i) path_[i].push_back(static_cast<unsigned char>(word[i]));
  path_[word.size() - 1].back() |= Arc::kWordEnds;
  last_ = word;
  return true;
}

void WordAutomatonBuilder::FreezePath(std::size_t letters) {
  for (std::size_t depth = last_.size(); depth > letters; --depth) {
    path_[depth - 1].back() |= Keep(path_[depth]) << Arc::kPlaceShift;
    path_[depth].clear();
  }
}

std::uint32_t WordAutomatonBuilder::WordsBehind(std::uint32_t arc) const { return Arc{arc}.WordEnds() + words_[Arc{arc}.Next()]; }

WordAutomatonBuilder::Arcs WordAutomatonBuilder::Closed(const Arcs& arcs) const {
  Arcs closed = arcs;
  std::stable_sort(closed.begin(), closed.end(), [this](std::uint32_t a, std::uint32_t b) { return WordsBehind(a) > WordsBehind(b); });
  closed.back() |= Arc::kLast;
  return closed;
}

std::uint32_t WordAutomatonBuilder::Keep(const Arcs& arcs) {
  if (arcs.empty() || tooMany_) return 0;
  const Arcs closed = Closed(arcs);
  std::size_t slot = HashOf(closed.data()) % table_.size();
  for (; table_[slot] != 0; slot = (slot + 1) % table_.size())
    if (PlaceHas(table_[slot], closed)) return table_[slot];
  if (arcs_.size() + closed.size() > Arc::kMost) {
    tooMany_ = true;
    return 0;
  }
  const auto place = static_cast<std::uint32_t>(arcs_.size());
  table_[slot] = place;
  arcs_.insert(arcs_.end(), closed.begin(), closed.end());
  words_.resize(arcs_.size());
  for (const std::uint32_t arc : closed) words_[place] += WordsBehind(arc);
  if (++kept_ > table_.size() / 2) GrowTable();
  return place;
}

bool WordAutomatonBuilder::PlaceHas(std::uint32_t place, const Arcs& arcs) const {
  // The mark of the last arc makes places of different lengths differ.
  return arcs_.size() - place >= arcs.size() && std::equal(arcs.begin(), arcs.end(), arcs_.begin() + place);
}

void WordAutomatonBuilder::GrowTable() {
  std::vector<std::uint32_t> larger(table_.size() * 2);
  for (const std::uint32_t place : table_) {
    if (place == 0) continue;
    std::size_t slot = HashOf(&arcs_[place]) % larger.size();
    while (larger[slot] != 0) slot = (slot + 1) % larger.size();
    larger[slot] = place;
  }
  table_ = std::move(larger);
}

std::optional<std::string> WordAutomatonBuilder::Finish() {
  FreezePath(0);
  if (path_[0].empty()) path_[0].push_back(0);  // a start for the file without words
  const std::uint32_t start = Keep(path_[0]);
  if (tooMany_) return std::nullopt;
  const std::string_view arcs(reinterpret_cast<const char*>(arcs_.data()), arcs_.size() * WordAutomaton::kArcSize);
  std::string file(WordAutomaton::kMark);
  Put(file, static_cast<std::uint32_t>(arcs_.size()));
  Put(file, start);
  Put(file, WordAutomaton::ChecksumOf(arcs));
  return file.append(arcs);
}

}  // namespace morlan
