#include "text/letterentities.h"

#include <algorithm>
#include <iterator>

namespace morlan {
namespace {

struct NameRow {
  std::string_view name;
  char32_t codePoint;
};
// In the order of their bytes.
constexpr NameRow kNames[] = {
    // clang-format off
    {"AElig", 0x00C6},
    {"Aacute", 0x00C1},
    {"Abreve", 0x0102},
    {"Acirc", 0x00C2},
    {"Agrave", 0x00C0},
    {"Amacr", 0x0100},
    {"Aogon", 0x0104},
    {"Aring", 0x00C5},
    {"Atilde", 0x00C3},
    {"Auml", 0x00C4},
    {"Cacute", 0x0106},
    {"Ccaron", 0x010C},
    {"Ccedil", 0x00C7},
    {"Ccirc", 0x0108},
    {"Cdot", 0x010A},
    {"Dcaron", 0x010E},
    {"Dstrok", 0x0110},
    {"ENG", 0x014A},
    {"ETH", 0x00D0},
    {"Eacute", 0x00C9},
    {"Ecaron", 0x011A},
    {"Ecirc", 0x00CA},
    {"Edot", 0x0116},
    {"Egrave", 0x00C8},
    {"Emacr", 0x0112},
    {"Eogon", 0x0118},
    {"Euml", 0x00CB},
    {"Gbreve", 0x011E},
    {"Gcedil", 0x0122},
    {"Gcirc", 0x011C},
    {"Gdot", 0x0120},
    {"Hcirc", 0x0124},
    {"Hstrok", 0x0126},
    {"IJlig", 0x0132},
    {"Iacute", 0x00CD},
    {"Icirc", 0x00CE},
    {"Idot", 0x0130},
    {"Igrave", 0x00CC},
    {"Imacr", 0x012A},
    {"Iogon", 0x012E},
    {"Itilde", 0x0128},
    {"Iuml", 0x00CF},
    {"Jcirc", 0x0134},
    {"Kcedil", 0x0136},
    {"Lacute", 0x0139},
    {"Lcaron", 0x013D},
    {"Lcedil", 0x013B},
    {"Lmidot", 0x013F},
    {"Lstrok", 0x0141},
    {"Nacute", 0x0143},
    {"Ncaron", 0x0147},
    {"Ncedil", 0x0145},
    {"Ntilde", 0x00D1},
    {"OElig", 0x0152},
    {"Oacute", 0x00D3},
    {"Ocirc", 0x00D4},
    {"Odblac", 0x0150},
    {"Ograve", 0x00D2},
    {"Omacr", 0x014C},
    {"Oslash", 0x00D8},
    {"Otilde", 0x00D5},
    {"Ouml", 0x00D6},
    {"Racute", 0x0154},
    {"Rcaron", 0x0158},
    {"Rcedil", 0x0156},
    {"Sacute", 0x015A},
    {"Scaron", 0x0160},
    {"Scedil", 0x015E},
    {"Scirc", 0x015C},
    {"THORN", 0x00DE},
    {"Tcaron", 0x0164},
    {"Tcedil", 0x0162},
    {"Tstrok", 0x0166},
    {"Uacute", 0x00DA},
    {"Ubreve", 0x016C},
    {"Ucirc", 0x00DB},
    {"Udblac", 0x0170},
    {"Ugrave", 0x00D9},
    {"Umacr", 0x016A},
    {"Uogon", 0x0172},
    {"Uring", 0x016E},
    {"Utilde", 0x0168},
    {"Uuml", 0x00DC},
    {"Wcirc", 0x0174},
    {"Yacute", 0x00DD},
    {"Ycirc", 0x0176},
    {"Yuml", 0x0178},
    {"Zacute", 0x0179},
    {"Zcaron", 0x017D},
    {"Zdot", 0x017B},
    {"aacute", 0x00E1},
    {"abreve", 0x0103},
    {"acirc", 0x00E2},
    {"aelig", 0x00E6},
    {"agrave", 0x00E0},
    {"amacr", 0x0101},
    {"angst", 0x00C5},
    {"aogon", 0x0105},
    {"apos", 0x0027},
    {"aring", 0x00E5},
    {"atilde", 0x00E3},
    {"auml", 0x00E4},
    {"cacute", 0x0107},
    {"ccaron", 0x010D},
    {"ccedil", 0x00E7},
    {"ccirc", 0x0109},
    {"cdot", 0x010B},
    {"dcaron", 0x010F},
    {"dstrok", 0x0111},
    {"eacute", 0x00E9},
    {"ecaron", 0x011B},
    {"ecirc", 0x00EA},
    {"edot", 0x0117},
    {"egrave", 0x00E8},
    {"emacr", 0x0113},
    {"eng", 0x014B},
    {"eogon", 0x0119},
    {"eth", 0x00F0},
    {"euml", 0x00EB},
    {"fnof", 0x0192},
    {"gacute", 0x01F5},
    {"gbreve", 0x011F},
    {"gcirc", 0x011D},
    {"gdot", 0x0121},
    {"hcirc", 0x0125},
    {"hstrok", 0x0127},
    {"iacute", 0x00ED},
    {"icirc", 0x00EE},
    {"igrave", 0x00EC},
    {"ijlig", 0x0133},
    {"imacr", 0x012B},
    {"imath", 0x0131},
    {"imped", 0x01B5},
    {"inodot", 0x0131},
    {"iogon", 0x012F},
    {"itilde", 0x0129},
    {"iuml", 0x00EF},
    {"jcirc", 0x0135},
    {"jmath", 0x0237},
    {"kcedil", 0x0137},
    {"kgreen", 0x0138},
    {"lacute", 0x013A},
    {"lcaron", 0x013E},
    {"lcedil", 0x013C},
    {"lmidot", 0x0140},
    {"lstrok", 0x0142},
    {"nacute", 0x0144},
    {"napos", 0x0149},
    {"ncaron", 0x0148},
    {"ncedil", 0x0146},
    {"ntilde", 0x00F1},
    {"oacute", 0x00F3},
    {"ocirc", 0x00F4},
    {"odblac", 0x0151},
    {"oelig", 0x0153},
    {"ograve", 0x00F2},
    {"omacr", 0x014D},
    {"oslash", 0x00F8},
    {"otilde", 0x00F5},
    {"ouml", 0x00F6},
    {"racute", 0x0155},
    {"rcaron", 0x0159},
    {"rcedil", 0x0157},
    {"rsquo", 0x2019},
    {"sacute", 0x015B},
    {"scaron", 0x0161},
    {"scedil", 0x015F},
    {"scirc", 0x015D},
    {"shy", 0x00AD},
    {"szlig", 0x00DF},
    {"tcaron", 0x0165},
    {"tcedil", 0x0163},
    {"thorn", 0x00FE},
    {"tstrok", 0x0167},
    {"uacute", 0x00FA},
    {"ubreve", 0x016D},
    {"ucirc", 0x00FB},
    {"udblac", 0x0171},
    {"ugrave", 0x00F9},
    {"umacr", 0x016B},
    {"uogon", 0x0173},
    {"uring", 0x016F},
    {"utilde", 0x0169},
    {"uuml", 0x00FC},
    {"wcirc", 0x0175},
    {"yacute", 0x00FD},
    {"ycirc", 0x0177},
    {"yuml", 0x00FF},
    {"zacute", 0x017A},
    {"zcaron", 0x017E},
    {"zdot", 0x017C},
    // clang-format on
};
static_assert(std::is_sorted(std::begin(kNames), std::end(kNames), [](const NameRow& a, const NameRow& b) { return a.name < b.name; }));

constexpr std::size_t kLongestName = 8, kLongestNumber = 8;

constexpr bool IsDigit(char character) { return character >= '0' && character <= '9'; }
constexpr bool IsNameLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') || IsDigit(character);
}

int DigitOf(char character, int base) {
  if (IsDigit(character)) return character - '0';
  const char small = static_cast<char>(character | 0x20);
  return base == 16 && small >= 'a' && small <= 'f' ? small - 'a' + 10 : -1;
}

// The length with the ";" that may stand behind it.
std::size_t WithSemicolon(std::string_view text, std::size_t length) { return length + (length < text.size() && text[length] == ';'); }

std::optional<CharacterReference> ReadNumber(std::string_view text) {
  const bool isHexadecimal = text.size() > 2 && (text[2] | 0x20) == 'x';
  const int base = isHexadecimal ? 16 : 10;
  const std::size_t first = isHexadecimal ? 3 : 2;
  std::size_t end = first;
  char32_t codePoint = 0;
  for (; end < text.size() && end < first + kLongestNumber; ++end) {
    const int digit = DigitOf(text[end], base);
    if (digit < 0) break;
    codePoint = std::min<char32_t>(codePoint * static_cast<char32_t>(base) + static_cast<char32_t>(digit), 0x110000);
  }
  if (end == first) return std::nullopt;
  return CharacterReference{codePoint, WithSemicolon(text, end)};
}

}  // namespace

std::optional<CharacterReference> ReadCharacterReference(std::string_view text) {
  if (text.size() < 3 || text[0] != '&') return std::nullopt;
  if (text[1] == '#') return ReadNumber(text);
  std::size_t end = 1;
  while (end < text.size() && end <= kLongestName && IsNameLetter(text[end])) ++end;
  const std::string_view name = text.substr(1, end - 1);
  const auto row =
      std::lower_bound(std::begin(kNames), std::end(kNames), name, [](const NameRow& a, std::string_view b) { return a.name < b; });
  if (row == std::end(kNames) || row->name != name) return std::nullopt;
  return CharacterReference{row->codePoint, WithSemicolon(text, end)};
}

bool IsLetter(char32_t codePoint) {
  if (codePoint < 0x80) return (codePoint >= 'a' && codePoint <= 'z') || (codePoint >= 'A' && codePoint <= 'Z');
  if (codePoint < 0x250) return codePoint >= 0xC0 && codePoint != 0xD7 && codePoint != 0xF7;
  const bool isModifier = codePoint >= 0x2B0 && codePoint < 0x300;
  const bool isEastern = codePoint >= 0x3040 && codePoint < 0xE000;
  return (codePoint < 0x2000 && !isModifier) || isEastern;
}

}  // namespace morlan
