// The desktop front end as a whole: its services, its windows, and the order in which they come up and go.
#pragma once

#include "platform/platform.h"
#include "platform/qt/qtclipboard.h"
#include "platform/qt/qtfrontend.h"
#include "platform/qt/qtprinter.h"
#include "platform/qt/qtwindows.h"
#include "platform/qt/termination.h"
#include "platform/qt/theme.h"
#include "platform/qt/windowplaces.h"

namespace morlan {

// The services of the machine that are the same for all front ends.
struct MachineServices {
  Files& files;
  Environment& environment;
  Registry& registry;
  Processes& processes;
  Clock& clock;
};

class Desktop {
 public:
  // There must be a QApplication already.
  explicit Desktop(const MachineServices& machine);

  Platform platform();
  QtFrontEnd& frontEnd() { return frontEnd_; }
  QtPrinter& printer() { return printer_; }

  // The start-up of an assembled program, and its main window.
  void Start(Program& program);
  // The windows go; the program may go then.
  void Finish();

 private:
  MachineServices machine_;
  QtClipboard clipboard_;
  QtPrinter printer_;
  WindowPlaces places_;
  Theme theme_;
  QtWindows windows_;
  QtFrontEnd frontEnd_;
  Termination termination_;
};

// Settings of the process and of the toolkit that must be made before there is a QApplication, and behind it.
void PrepareToolkit();
void SetUpToolkit();

}  // namespace morlan
