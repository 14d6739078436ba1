// What the commands of macros ask of the program and of the machine.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/windows.h"

namespace morlan {

class Program;
class TEditor;

// The character set in which macros and documents are kept.
inline constexpr std::string_view kMacroCharset = "win1250";

inline constexpr std::string_view kMacroExists = "Makro o podanej nazwie już istnieje !"_pl;
inline constexpr std::string_view kBadMacroName = "Nazwa makra zawiera znaki, których nie może mieć plik."_pl;

// Whether a macro can have that name: it is that of a file in MAKRO\ and nowhere else.
bool IsMacroName(std::string_view name);
// Where a macro of that name lies.
std::string MacroPath(const Program& program, std::string_view name);
// The active document, held alive; null when none is open.
std::shared_ptr<TEditor> DocumentInFront(const Program& program);
// This moment by a pattern.
std::string MomentText(Program& program, std::string_view pattern);
// A file as {insert} writes it: in a PRE element between two remarks, taken out of the named character set. Nothing when the
// file cannot be read.
std::optional<std::string> FileAsMacroText(Program& program, std::string_view fileName, std::string_view charset);
// A message box by its number: the buttons in the lowest four bits (0 Ok to 5 Retry and Cancel), the icon in the next four (16
// stop, 32 question, 48 warning, 64 information).
MessageRequest MessageOfStyle(std::int32_t style);
// The word that {msgbox} leaves for an answer. Yes has none.
std::string_view AnswerWord(Answer answer);
// A comparison of texts, with case; one that is not known never holds.
bool ComparisonHolds(std::string_view first, std::string_view second, std::string_view method);

}  // namespace morlan
