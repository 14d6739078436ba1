#include "text/makeproposal.h"

#include <span>

#include "platform/encoding.h"
#include "platform/lettercase.h"

namespace morlan {
namespace {

struct SlipRow {
  std::string_view written, meant;
};

// One letter at a time is looked for in the first pass, two in the second. The tables differ on purpose: "ł" is never taken for
// an "l".
constexpr SlipRow kOneLetter[] = {
    {"ż"_pl, "rz"}, {"h", "ch"},    {"ć"_pl, "ci"}, {"u", "ó"_pl},  {"ó"_pl, "u"},
    {"l", "ł"_pl},  {"ś"_pl, "si"}, {"ź"_pl, "zi"}, {"ń"_pl, "ni"},
};
constexpr SlipRow kTwoLetters[] = {
    {"rz", "ż"_pl}, {"ch", "h"}, {"ci", "ć"_pl}, {"si", "ś"_pl}, {"zi", "ź"_pl}, {"ni", "ń"_pl},
};

void TrySlips(std::string_view word, std::span<const SlipRow> slips, const WordLookup& holds, std::vector<std::string>& found) {
  const std::size_t length = slips.front().written.size();
  for (std::size_t i = 0; i + length <= word.size(); ++i)
    for (const SlipRow& slip : slips) {
      if (word.substr(i, length) != slip.written) continue;
      std::string candidate(word);
      candidate.replace(i, length, slip.meant);
      if (holds(candidate)) found.push_back(std::move(candidate));
    }
}

}  // namespace

Proposals MakeProposal(std::string_view word, const WordLookup& holds) {
  const std::string lowered = LowerCase(word);
  if (holds(lowered)) return {.wordIsHeld = true, .words = {}};
  Proposals proposals;
  TrySlips(lowered, kOneLetter, holds, proposals.words);
  TrySlips(lowered, kTwoLetters, holds, proposals.words);
  return proposals;
}

}  // namespace morlan
