#include "text/wordsplitting.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "core/text.h"
#include "text/letterentities.h"

namespace morlan {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
// What is longer is data.
constexpr std::size_t kLongestWord = 200, kLongestAddress = 300, kLongestReference = 32;
constexpr std::string_view kEndsOfAddress = " \t\r\n\f<>\"'()[]{}\xA0";

// The last parts of host names and of file names.
constexpr std::string_view kNameEndings[] = {"asp",   "avi", "bmp", "cdf", "cfm", "cgi",  "com", "css",  "doc",  "edu", "eu",
                                             "exe",   "gif", "gov", "gz",  "htm", "html", "ini", "info", "jpeg", "jpg", "js",
                                             "mac",   "mid", "mil", "mp3", "net", "org",  "pdf", "php",  "pl",   "png", "rar",
                                             "shtml", "svg", "tar", "txt", "wav", "xls",  "xml", "zip"};

constexpr bool IsAsciiLetterOrDigit(char character) {
  const char small = static_cast<char>(character | 0x20);
  return (small >= 'a' && small <= 'z') || (character >= '0' && character <= '9');
}

// The length of a reference such as "&nbsp;" at the front of a text; 1 where the "&" is a sign by itself.
std::size_t LengthOfNamedSign(std::string_view text) {
  std::size_t end = 1;
  while (end < text.size() && end <= kLongestReference && IsAsciiLetterOrDigit(text[end])) ++end;
  return end > 1 && end < text.size() && text[end] == ';' ? end + 1 : 1;
}

// Whether a name such as "www.example.com" or "strona.html", with what may follow it, is that of a host or a file.
bool IsHostOrFile(std::string_view name) {
  if (StartsWithNoCase(name, "www.")) return true;
  name = name.substr(0, name.find_first_of("/?#:"));
  while (!name.empty() && !IsAsciiLetterOrDigit(name.back())) name.remove_suffix(1);
  const std::size_t dot = name.rfind('.');
  const std::string ending = dot == kNone ? std::string() : LowerCase(name.substr(dot + 1));
  return std::find(std::begin(kNameEndings), std::end(kNameEndings), ending) != std::end(kNameEndings);
}

}  // namespace

WordReader::WordReader(std::string_view page) : page_(page), text_(page) {}

bool WordReader::Next(Word& word) {
  while (!NextInStretch(word)) {
    if (!text_.Next(stretch_)) {
      offset_ = page_.size();
      return false;
    }
    offset_ = stretch_.start;
  }
  return true;
}

WordReader::Sign WordReader::SignOf(char32_t codePoint) {
  if (codePoint >= '0' && codePoint <= '9') return Sign::Digit;
  if (codePoint == '\'' || codePoint == 0x2019) return Sign::Apostrophe;
  if (codePoint == '-') return Sign::Hyphen;
  if (codePoint == 0xAD) return Sign::Nothing;
  if (codePoint == '_') return Sign::Foreign;  // makes an identifier
  if (!IsLetter(codePoint)) return Sign::Other;
  return ByteOf(codePoint) < 0 ? Sign::Foreign : Sign::Letter;
}

WordReader::SignAt WordReader::ReadSign(std::size_t offset) const {
  static const auto signs = [] {
    std::array<Sign, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) table[byte] = SignOf(CodePointOf(static_cast<unsigned char>(byte)));
    return table;
  }();
  const char byte = page_[offset];
  if (byte == '&') return ReadReference(offset);
  const Sign sign = signs[static_cast<unsigned char>(byte)];
  return {sign, sign == Sign::Apostrophe ? '\'' : byte, 1};
}

WordReader::SignAt WordReader::ReadReference(std::size_t offset) const {
  const std::string_view rest = page_.substr(offset, stretch_.End() - offset);
  const auto reference = ReadCharacterReference(rest);
  if (!reference) return {Sign::Other, 0, LengthOfNamedSign(rest)};
  const Sign sign = SignOf(reference->codePoint);
  const char letter = sign == Sign::Apostrophe ? '\'' : static_cast<char>(std::max(0, ByteOf(reference->codePoint)));
  return {sign, letter, reference->length};
}

bool WordReader::NextInStretch(Word& word) {
  while (offset_ < stretch_.End()) {
    const SignAt sign = ReadSign(offset_);
    if (!IsPart(sign.sign)) {
      offset_ += sign.length;
      continue;
    }
    const std::size_t start = offset_;
    const Token token = ReadToken(word);
    const bool isWord = token.hasLetter && !token.isForeign && word.letters_.size() <= kLongestWord;
    if (!SkipAddress(start) && isWord && !GoesOnAcrossTag(word.Place())) return true;
  }
  return false;
}

// An apostrophe or a hyphen that stands between letters.
bool WordReader::JoinsParts(const SignAt& sign) const {
  if (sign.sign != Sign::Apostrophe && sign.sign != Sign::Hyphen) return false;
  const std::size_t behind = offset_ + sign.length;
  return behind < stretch_.End() && IsPart(ReadSign(behind).sign);
}

WordReader::Token WordReader::ReadToken(Word& word) {
  word.letters_.clear();
  word.places_.clear();
  Token token;
  while (offset_ < stretch_.End()) {
    const SignAt sign = ReadSign(offset_);
    if (!IsPart(sign.sign) && sign.sign != Sign::Nothing && !JoinsParts(sign)) break;
    if (sign.sign != Sign::Nothing) {
      word.letters_ += sign.letter;
      word.places_.push_back(offset_);
    }
    token.hasLetter = token.hasLetter || sign.sign == Sign::Letter;
    token.isForeign = token.isForeign || sign.sign == Sign::Foreign;
    offset_ += sign.length;
  }
  word.places_.push_back(offset_);
  return token;
}

// Looks whether what was read from `start` on is the front of an address or of a file's name, and skips all of that.
bool WordReader::SkipAddress(std::size_t start) {
  const std::string_view rest = page_.substr(offset_, stretch_.End() - offset_);
  const bool isCertain = rest.starts_with('@') || rest.starts_with("://") || rest.starts_with(":\\") || rest.starts_with('\\');
  const bool isPossible = rest.size() > 1 && rest[0] == '.' && IsAsciiLetterOrDigit(rest[1]);
  if (!isCertain && !isPossible) return false;
  const std::string_view name = page_.substr(start, stretch_.End() - start);
  const std::size_t end = std::min(name.find_first_of(kEndsOfAddress), name.size());
  if (!isCertain && end <= kLongestAddress && name.substr(0, end).find('@') == kNone && !IsHostOrFile(name.substr(0, end))) return false;
  offset_ = std::max(offset_, start + end);
  return true;
}

bool WordReader::IsLetterAt(std::size_t offset) const {
  return offset < page_.size() && IsLetter(CodePointOf(static_cast<unsigned char>(page_[offset])));
}

bool WordReader::GoesOnAcrossTag(Stretch word) const {
  const Stretch tag = text_.TagInFront();
  if (tag.length != 0 && tag.End() == word.start && tag.start > 0 && IsLetterAt(tag.start - 1) && IsTagWithinWords(page_, tag.start))
    return true;
  if (!IsTagWithinWords(page_, word.End())) return false;
  const std::size_t close = page_.find('>', word.End());
  return close != kNone && IsLetterAt(close + 1);
}

}  // namespace morlan
