// The words of a page as its readers see them. Letters may be written as character references; soft hyphens are none. Addresses,
// file names, identifiers and words with letters that Windows-1250 lacks are left out, and so are the pieces of a word that a
// tag parts.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text/pagetext.h"

namespace morlan {

class Word {
 public:
  // Letters, digits and, between them, apostrophes (always "'") and hyphens. There is at least one letter.
  const std::string& Letters() const { return letters_; }
  // Where the page has the word, or some of its letters, counted from 0.
  Stretch Place() const { return PlaceOf(0, letters_.size()); }
  Stretch PlaceOf(std::size_t first, std::size_t count) const { return {places_[first], places_[first + count] - places_[first]}; }

 private:
  friend class WordReader;
  std::string letters_;
  std::vector<std::size_t> places_;  // of each letter, and of the end
};

class WordReader {
 public:
  // The page must outlive the reader.
  explicit WordReader(std::string_view page);
  // The next word; false when there is none any more.
  bool Next(Word& word);
  // How far the page was read, from 0.
  std::size_t Offset() const { return offset_; }

 private:
  enum class Sign : unsigned char { Other, Letter, Digit, Apostrophe, Hyphen, Nothing, Foreign };
  struct SignAt {
    Sign sign = Sign::Other;
    char letter = 0;
    std::size_t length = 1;
  };
  struct Token {
    bool hasLetter = false, isForeign = false;
  };

  static Sign SignOf(char32_t codePoint);
  SignAt ReadSign(std::size_t offset) const;
  SignAt ReadReference(std::size_t offset) const;
  static bool IsPart(Sign sign) { return sign == Sign::Letter || sign == Sign::Digit || sign == Sign::Foreign; }
  bool JoinsParts(const SignAt& sign) const;
  bool NextInStretch(Word& word);
  Token ReadToken(Word& word);
  bool SkipAddress(std::size_t start);
  bool GoesOnAcrossTag(Stretch word) const;
  bool IsLetterAt(std::size_t offset) const;

  std::string_view page_;
  PageText text_;
  Stretch stretch_;
  std::size_t offset_ = 0;
};

}  // namespace morlan
