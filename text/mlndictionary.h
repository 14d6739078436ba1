// The spelling control: it walks through a page and raises an event for every word that its dictionaries do not hold.
//
// The exact automaton of file 1 decides; where that file is missing or garbled, the field of bits of file 0 does. A known word may
// stand with a capital first letter or all in capitals. The user's words count in any letter case. Of a word with hyphens
// that is not known as a whole, each part is looked up, and the first that is not known is the word found.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "text/recentwords.h"
#include "text/wordautomaton.h"
#include "text/wordsplitting.h"

namespace morlan {

class MlnDictionary {
 public:
  explicit MlnDictionary(Files& files);
  MlnDictionary(const MlnDictionary&) = delete;
  MlnDictionary& operator=(const MlnDictionary&) = delete;

  enum FileNumber : std::size_t { kBits, kAutomaton, kUserWords };
  std::array<std::string, 3> File;  // paths
  std::string Text;                 // the whole text to check; set before Start
  std::uint8_t Language = 0;        // 1 Polish, 2 English, 0 any other: the endings that may stand behind an apostrophe
  std::ptrdiff_t TextOffset = 0;    // added by the owner to the positions that the events tell
  bool IgnoreNumbers = false;       // leaves out words that contain digits; what is nothing but digits is no word in any case
  bool IgnoreUpperCase = false;     // leaves out words all in capitals

  // Checks the text from its front to its end, and returns then, or when it was stopped. Void while a check runs.
  void Start();
  // Ends the check that runs as soon as the event returns in which this is called.
  void Stop() { stopped_ = true; }

  // Reads the dictionaries anew; Start does so by itself. False when neither of files 0 and 1 can be used.
  bool OpenDictionaries();
  // Whether a word is known to the dictionaries, by the rules above.
  bool IsKnown(std::string_view word) const;
  // Words like this one that the exact dictionary holds, the nearest first, in the letter case of this one.
  std::vector<std::string> Similar(std::string_view word) const;

  // Events. Starts count from 1 in Text, lengths are those that the word has there. The user's file is read again behind the
  // first, so that a word added counts at once.
  std::function<void(const std::string& word, std::string& replacement, std::size_t start, std::size_t length)> MlnDictionary_MissSpeld;
  std::function<void(std::size_t start, std::size_t length)> MlnDictionary_MissSpeldSelection;
  std::function<void(int percent, std::size_t words)> MlnDictionary_NextPartDone;
  std::function<void()> MlnDictionary_CheckingFinished, MlnDictionary_CheckingStoped;
  // There is no dictionary, and nothing was checked.
  std::function<void()> MlnDictionary_NoDictionary;

 private:
  void ReadUserWords();
  void CheckWords();
  void CheckWord(const Word& word);
  bool IsRight(std::string_view word) const;
  void TellMissSpeld(const Word& word, std::size_t first, std::size_t count);
  bool IsLeftOut(std::string_view word) const;
  bool IsHeld(std::string_view word) const;
  bool IsHeldInAnyCase(std::string_view word) const;
  bool IsKnownBeforeApostrophe(std::string_view word) const;

  Files& files_;
  std::unique_ptr<MappedFile> bits_, automatonFile_;
  WordAutomaton automaton_;
  std::string userFile_;
  std::set<std::string, std::less<>> userWords_;  // in lower case
  RecentWords recent_;                            // that were right in this check
  bool running_ = false, stopped_ = false;
};

}  // namespace morlan
