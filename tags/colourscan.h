// What colouring paints in a text: tags, the attribute values in them, comments, and the script keywords in comments. It
// is no lexer: it jumps from "<" to "<". Offsets count from 0.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

namespace morlan {

// One byte a character, as the edit surface keeps them.
struct ColourStyles {
  std::uint8_t tag, value, comment, keyword;
};

// A tag from its "<" to its ">", or a comment from its "<" to the "-" of its "->". The ">" of a comment is not painted.
struct ColourToken {
  std::size_t begin = 0;
  std::size_t end = 0;  // behind the last painted character; the search for the next token goes on here
  bool isComment = false;
};

enum class TokenSearch {
  Found,
  NoMore,    // no "<" is left
  Unclosed,  // a "<" without its end: `begin` tells its place, and nothing more is painted
};

// Whether the "<" at `begin` opens a comment: "<--" and "<!-" do, anything else is a tag.
template <class Text>
bool OpensComment(const Text& text, std::size_t begin) {
  if (text.size() - begin < 3 || text[begin + 2] != '-') return false;
  return text[begin + 1] == '!' || text[begin + 1] == '-';
}

// The offset of the first "->" at or behind the "<" at `begin`.
template <class Text>
std::size_t FindCommentEnd(const Text& text, std::size_t begin) {
  for (std::size_t mark = text.find('>', begin + 1); mark != Text::npos; mark = text.find('>', mark + 1))
    if (text[mark - 1] == '-') return mark - 1;
  return Text::npos;
}

// The first token at or behind `from`. Text is a std::string_view, or whatever has its size, operator[] and find.
template <class Text>
TokenSearch FindToken(const Text& text, std::size_t from, ColourToken& token) {
  token.begin = text.find('<', from);
  if (token.begin == Text::npos) return TokenSearch::NoMore;
  token.isComment = OpensComment(text, token.begin);
  const std::size_t last = token.isComment ? FindCommentEnd(text, token.begin) : text.find('>', token.begin);
  if (last == Text::npos) return TokenSearch::Unclosed;
  token.end = last + 1;
  return TokenSearch::Found;
}

// Paints one token. `text` is the token's own text, `styles` the place of its first character.
void PaintToken(std::string_view text, bool isComment, const ColourStyles& colours, std::uint8_t* styles);

// Paints the keywords of a run; each takes the blank behind it with it.
void PaintKeywords(std::string_view run, std::uint8_t style, std::uint8_t* styles);

// Paints a whole text into `styles`, which holds one byte a character; what lies between tokens is left as it is.
// `report` hears of the percentage done when it has moved by more than 5, from 0 on.
void PaintText(std::string_view text, const ColourStyles& colours, std::uint8_t* styles,
               const std::function<void(int percent)>& report = {});

}  // namespace morlan
