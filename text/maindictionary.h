// The dictionary files of a language as the program uses them beside the spelling control.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

class Program;

// The paths in SLOWNIKI\ below the program's data, by the extension of the language.
std::string MainDictionaryPath(const Program& program, std::string_view extension);
std::string AutomatonPath(const Program& program, std::string_view extension);
std::string UserDictionaryPath(const Program& program, std::string_view extension);

// Looks a word up in a main dictionary, as it comes; the file is opened and closed. A word that is too long for the numbers of
// such a dictionary is told to the user.
bool MainDictionaryHolds(Program& program, std::string_view path, std::string_view word);

// Adds a word, in lower case, to the user's file, which is made where it is missing.
void AddUserWord(Program& program, std::string_view path, std::string_view word);

}  // namespace morlan
