// The pop-up menu of a right click in the text, with the commands that fit the tag under the caret.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/tagstate.h"

namespace morlan {

class Program;

// An action on what a tag points at.
struct OfferedAction {
  TargetAction action;
  std::string caption;
  std::string target;  // a file's path in the program's form, or a label's name
};

// What fits a tag: nothing at all, the edit entry alone, or that and up to two actions. `name` is in lower case,
// `directory` is the document's.
struct TagOffer {
  bool isKnown = false;
  std::vector<OfferedAction> actions;
};
TagOffer OfferFor(Program& program, std::string_view tag, std::string_view name, std::string_view directory);

// Fills the hook for the mouse buttons, which finds the tag at the caret, sets the pop-up menu up and shows it, and the
// commands of the menu's entries.
void RegisterContextMenu(Program& program);

}  // namespace morlan
