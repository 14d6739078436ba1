// The conversions between character sets as commands run them: with their messages in the status line.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "text/charsetfile.h"
#include "text/lettertables.h"

namespace morlan {

class Program;

// Takes a message of the status line; the empty one is that of a program that is ready. An empty function is silent.
using TellStatus = std::function<void(std::string_view message)>;
TellStatus StatusLine(Program& program);

// Sets are named as in the file; one that it lacks has no letters, and nothing is converted. The target "ascii", in any letter
// case, leaves the text as it stands.
std::string ConvertCharSet(const CharSetFile& file, std::string text, std::string_view source, std::string_view target,
                           const TellStatus& tell = {});
// The letters of a set, by their codes, as "&#" and the code.
std::string ConvertToSymbols(std::string text, const CharSetCodes& codes, const TellStatus& tell = {});
ReadSymbols ConvertFromSymbols(std::string text, const TellStatus& tell = {});

enum class Utf8Direction { ToUtf8, FromUtf8 };
std::string ConvertUtf8(std::string text, Utf8Direction direction, const TellStatus& tell = {});

// The file of the program; empty when it cannot be read.
CharSetFile LoadCharSets(Program& program);
// Puts a record into it; false when it cannot be written.
bool SaveCharSet(Program& program, const CharSetRecord& record);

}  // namespace morlan
