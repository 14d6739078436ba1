// Everything that a front end hands to the program, in one bundle.
#pragma once

#include "platform/files.h"
#include "platform/services.h"
#include "platform/windows.h"

namespace morlan {

struct Platform {
  Files& files;
  Environment& environment;
  Registry& registry;
  Processes& processes;
  Clock& clock;
  Clipboard& clipboard;
  LinePrinter& printer;
  Windows& windows;
};

}  // namespace morlan
