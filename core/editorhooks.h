// What the text of a document asks of the rooms above: commands that live there, called from keys and the mouse. An
// empty entry means that nothing offers the service.
#pragma once

#include <functional>
#include <string_view>

#include "platform/keys.h"

namespace morlan {

class TEditor;

struct EditorHooks {
  std::function<void(TEditor&, MouseButton)> mouseDown;
  std::function<void(TEditor&)> showQuickMenu;
  // The property sheet of the tag under the caret; false when there is none for it.
  std::function<bool(TEditor&)> openPropertySheet;
  // Puts the pair round the selection of the active document and remembers it for the repeat command.
  std::function<void(std::string_view open, std::string_view close)> insertPair;
  std::function<void()> repeatLastInsertion;
};

}  // namespace morlan
