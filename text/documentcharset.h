// The character set of a document on its way in and out of its file, as its META tag names it.
#pragma once

#include <string>
#include <string_view>

#include "text/charsets.h"

namespace morlan {

class Program;
class TEditor;

// What a page says about its character set.
struct DeclaredCharSet {
  enum class Kind {
    None,     // there is no Content-Type: it is not even asked about
    Unknown,  // a name that is like no other, or none
    Utf8,
    Table,  // a record of the file
  };
  Kind kind = Kind::None;
  std::string_view menu;  // the entry that is ticked for it; empty for none
  CharSetRecord record;   // of a table
};
// By the name behind "charset=", in any letter case. The record is the one whose name is most alike, and alike enough; of equal
// ones the first.
DeclaredCharSet CharSetOfName(const CharSetFile& file, std::string_view name);
// By the page's Content-Type in any spelling.
DeclaredCharSet CharSetOfText(const CharSetFile& file, std::string_view text);

struct DecodedText {
  std::string text;
  std::string charset{kBaseCharSet};  // the name of the set, that of the base for a page that names none
  std::string_view menu;
  bool symbols = false;   // there were letters written as symbols
  bool comesBack = true;  // writing the text would give the same bytes again
};
// Bytes of a file to the text that is edited, and back. Symbols are written where they are wanted; UTF-8 has no need of them.
DecodedText DecodeText(const CharSetFile& file, std::string bytes, const TellStatus& tell = {});
enum class Symbols { No, Yes };
std::string EncodeText(const CharSetFile& file, std::string text, Symbols symbols, const TellStatus& tell = {});

// Said of a page that would not be written as it was read.
inline constexpr std::string_view kForeignCharacters = "Plik zawiera znaki spoza zestawu; zapis może je zmienić"_pl;

// The passes of the active document: reading sets CurrentCharset, ticks the entries of its menu and leaves a notice where the
// bytes would not come back; writing follows its text and its menu.
std::string DecodeCharSet(Program& program, std::string bytes);
std::string EncodeCharSet(Program& program, std::string text);

// Unticks the five entries of which one can be ticked.
void ClearCharSetMenu(TEditor& document);
// Ticks the one entry of the document's menu that fits its Content-Type; none when no known character set is named.
void MarkCharSet(Program& program, TEditor& document);

}  // namespace morlan
