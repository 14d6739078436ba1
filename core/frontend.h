// What the program tells its front end besides the changes of forms and controls.
#pragma once

#include <string_view>

namespace morlan {

class Menu;
class TEditor;

class FrontEnd {
 public:
  virtual ~FrontEnd() = default;
  virtual void DocumentOpened(TEditor& document) = 0;     // a window for it is wanted
  virtual void DocumentClosed(TEditor& document) = 0;     // its window goes; the object lives until the event is over
  virtual void DocumentActivated(TEditor& document) = 0;  // its window comes forward
  virtual void ModeSwitched(bool cdf) = 0;
  virtual void PopUp(Menu& menu) = 0;  // at the mouse or the caret
  virtual void ProgramEnds() = 0;      // the main window goes and the process ends
};

}  // namespace morlan
