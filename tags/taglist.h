// The tag list: the combo box of the frame with one of five word lists, its file, and the insertion from it.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

class Program;

// What an entry of the list inserts, in upper case: parted at "..", else behind its first quote, else whole.
struct ListedPair {
  std::string open, close;
};
ListedPair PairOfListEntry(std::string_view entry);

// Shows the list of a button of Toolbar10. Pressing the active one again does nothing.
void ChooseTagList(Program& program, std::string_view key);

// Saves the list, the text in the box with it, to the file of the active key and inserts what the box holds.
void InsertFromTagList(Program& program);

void RegisterTagList(Program& program);

}  // namespace morlan
