#include "text/mlndictionary.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/text.h"
#include "text/similarwords.h"
#include "text/spellingbits.h"
#include "text/wordcase.h"

namespace morlan {
namespace {

// How much of the text is one part, in characters.
constexpr std::size_t kPart = 16'384;
constexpr std::size_t kMostSimilar = 12;

enum LanguageNumber : std::uint8_t { kAnyLanguage, kPolish, kEnglish };

struct EndingRow {
  LanguageNumber language;
  std::string_view ending;
};
// What may stand behind the apostrophe of a known word: cases of foreign names in Polish, shortened verbs and the possessive in
// English.
constexpr EndingRow kEndings[] = {
    {kPolish, "a"},     {kPolish, "u"},   {kPolish, "i"},   {kPolish, "y"},   {kPolish, "e"},   {kPolish, "ie"},    {kPolish, "owi"},
    {kPolish, "em"},    {kPolish, "m"},   {kPolish, "ego"}, {kPolish, "go"},  {kPolish, "emu"}, {kPolish, "mu"},    {kPolish, "owie"},
    {kPolish, "ów"_pl}, {kPolish, "om"},  {kPolish, "ami"}, {kPolish, "ach"}, {kPolish, "owa"}, {kPolish, "owski"}, {kEnglish, "s"},
    {kEnglish, "d"},    {kEnglish, "ll"}, {kEnglish, "re"}, {kEnglish, "ve"}, {kEnglish, "m"},
};

bool HasDigit(std::string_view word) { return word.find_first_of("0123456789") != std::string_view::npos; }
bool IsNumber(std::string_view word) { return word.find_first_not_of("0123456789") == std::string_view::npos; }

}  // namespace

MlnDictionary::MlnDictionary(Files& files) : files_(files) {}

bool MlnDictionary::OpenDictionaries() {
  automaton_ = WordAutomaton();
  automatonFile_ = files_.Map(File[kAutomaton]);
  if (automatonFile_) automaton_ = WordAutomaton(automatonFile_->Bytes());
  bits_ = files_.Map(File[kBits]);
  userFile_.clear();
  userWords_.clear();
  ReadUserWords();
  return automaton_.IsValid() || bits_;
}

void MlnDictionary::ReadUserWords() {
  auto content = files_.Read(File[kUserWords]).value_or("");
  if (content == userFile_) return;
  userFile_ = std::move(content);
  userWords_.clear();
  for (std::string_view rest = userFile_; !rest.empty();) {
    const std::size_t end = std::min(rest.find_first_of(CrLf), rest.size());
    if (end != 0) userWords_.insert(LowerCase(rest.substr(0, end)));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
}

void MlnDictionary::Start() {
  if (running_) return;
  if (!OpenDictionaries()) {
    if (MlnDictionary_NoDictionary) MlnDictionary_NoDictionary();
    return;
  }
  running_ = true;
  stopped_ = false;
  recent_.Clear();
  CheckWords();
  running_ = false;
  const auto& ended = stopped_ ? MlnDictionary_CheckingStoped : MlnDictionary_CheckingFinished;
  if (ended) ended();
}

void MlnDictionary::CheckWords() {
  WordReader reader(Text);
  Word word;
  std::size_t words = 0, nextPart = kPart;
  const auto tellPart = [&] {
    const double read = Text.empty() ? 1 : static_cast<double>(reader.Offset()) / static_cast<double>(Text.size());
    if (MlnDictionary_NextPartDone) MlnDictionary_NextPartDone(static_cast<int>(100 * read), words);
  };
  while (!stopped_ && reader.Next(word)) {
    ++words;
    CheckWord(word);
    if (stopped_ || reader.Offset() < nextPart) continue;
    tellPart();
    nextPart = reader.Offset() + kPart;
  }
  if (!stopped_) tellPart();
}

// Known, or none that is to be checked.
bool MlnDictionary::IsRight(std::string_view word) const { return IsNumber(word) || IsLeftOut(word) || IsKnown(word); }

void MlnDictionary::CheckWord(const Word& word) {
  const std::string_view letters = word.Letters();
  if (recent_.Has(letters)) return;
  if (IsRight(letters)) return recent_.Add(letters);
  for (std::size_t start = 0; start < letters.size();) {
    const std::size_t end = std::min(letters.find('-', start), letters.size());
    if (!IsRight(letters.substr(start, end - start))) return TellMissSpeld(word, start, end - start);
    start = end + 1;
  }
}

void MlnDictionary::TellMissSpeld(const Word& word, std::size_t first, std::size_t count) {
  const Stretch place = word.PlaceOf(first, count);
  std::string replacement;
  if (MlnDictionary_MissSpeldSelection) MlnDictionary_MissSpeldSelection(place.start + 1, place.length);
  if (MlnDictionary_MissSpeld) MlnDictionary_MissSpeld(word.Letters().substr(first, count), replacement, place.start + 1, place.length);
  ReadUserWords();
}

bool MlnDictionary::IsLeftOut(std::string_view word) const {
  return (IgnoreNumbers && HasDigit(word)) || (IgnoreUpperCase && IsUpper(word));
}

// As the word stands.
bool MlnDictionary::IsHeld(std::string_view word) const {
  if (automaton_.IsValid()) return automaton_.Holds(word);
  return bits_ && BitsHoldWord(bits_->Bytes(), word);
}

bool MlnDictionary::IsHeldInAnyCase(std::string_view word) const {
  if (IsHeld(word)) return true;
  const std::string lowered = LowerCase(word);
  if (userWords_.contains(lowered)) return true;
  if (lowered == word) return false;
  if (IsUpper(word)) return IsHeld(lowered) || IsHeld(WithCapital(lowered));
  return IsLower(word.substr(1)) && IsHeld(lowered);
}

bool MlnDictionary::IsKnownBeforeApostrophe(std::string_view word) const {
  const std::size_t apostrophe = word.rfind('\'');
  if (apostrophe == std::string_view::npos) return false;
  const std::string ending = LowerCase(word.substr(apostrophe + 1));
  const bool isEnding = std::any_of(std::begin(kEndings), std::end(kEndings), [&](const EndingRow& row) {
    return row.ending == ending && (Language == kAnyLanguage || Language == row.language);
  });
  return isEnding && IsHeldInAnyCase(word.substr(0, apostrophe));
}

bool MlnDictionary::IsKnown(std::string_view word) const { return IsHeldInAnyCase(word) || IsKnownBeforeApostrophe(word); }

std::vector<std::string> MlnDictionary::Similar(std::string_view word) const { return SimilarWords(automaton_, word, kMostSimilar); }

}  // namespace morlan
