// The languages that have dictionaries: the item Languages of the main store.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morlan {

class INIFile;
class Program;
class RowControl;

std::vector<std::string> LanguageNames(INIFile& store);
// Stores one more language. The extension of its dictionaries is made of the first three letters of the name.
void AddLanguage(INIFile& store, std::string_view name);
// The command of a button "Nowy": asks for a name and stores it, unless the list has it already. The list gets the row. The files
// of the dictionary are not made.
void AskForLanguage(Program& program, RowControl& list);

}  // namespace morlan
