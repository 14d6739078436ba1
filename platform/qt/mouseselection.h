// Selecting with the mouse: by characters, by words after a double click, by lines after a triple one.
#pragma once

#include <cstddef>

#include "core/editsurface.h"

namespace morlan {

class MouseSelection {
 public:
  enum class Unit { Character, Word, Line };

  explicit MouseSelection(MlnEditor& editor) : editor_(editor) {}
  // Selects the unit that lies at the offset, or just puts the caret there. Offsets count from 0.
  void Begin(std::size_t offset, Unit unit);
  // Goes on with the selection that is there, as a click with Shift does.
  void Continue(std::size_t offset);
  // From where it began up to and including the unit at the offset.
  void Extend(std::size_t offset);

 private:
  void SelectUnit(std::size_t offset);

  MlnEditor& editor_;
  Unit unit_ = Unit::Character;
  std::size_t firstStart_ = 0, firstEnd_ = 0;  // of the unit in which the selection began
};

}  // namespace morlan
