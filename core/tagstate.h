// What the tag engine remembers between commands, global to the program under its own names.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/colour.h"

namespace morlan {

class PropertySheets;

// What can be done with the place that a tag points at.
enum class TargetAction { PlaySound, PreviewPicture, MakeImageMap, JumpToLabel, OpenFile, PreviewPage };

struct TagState {
  // Colouring.
  bool UseColorize = false;
  Colour GlobalColor = 0, TagsColor = 0, LinksColor = 0, CommentsColor = 0;
  bool ColorizeRunning = false;  // a whole-document run goes on
  bool ColorizeEnabled = true;   // false during a run
  bool ColoursChanged = false;   // set by the settings dialog for RecolourAll

  // The last insertion, for the repeat command.
  std::string LastTagName, LastOpenText, LastCloseText;

  // The tag under the caret as the context menu found it: from its "<" up to the first ">" at or behind the caret,
  // without that, and the position of its "<" from 1. Valid until the document changes.
  std::string CurrentTagText;
  std::size_t CurrentTagStart = 0;

  // Editors of tags by their names ("EditImage"), supplied by the rooms that have them.
  std::map<std::string, std::function<void()>, std::less<>> tagEditors;
  // The actions on what a tag points at, supplied likewise: they take a file's path in the program's form, or the name of
  // a label without its "#".
  std::map<TargetAction, std::function<void(const std::string& target)>> targetActions;

  // What is known of tags and their attributes, read when it is first asked for.
  std::shared_ptr<PropertySheets> propertySheets;
};

}  // namespace morlan
