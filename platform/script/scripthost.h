// Puts a scripted session under a program: everything that the program needs of a desktop.
#pragma once

#include "platform/platform.h"
#include "platform/script/scriptfrontend.h"
#include "platform/script/scriptwindows.h"
#include "platform/script/session.h"

namespace morlan {

// What a session uses of the machine itself.
struct Machine {
  Files& files;
  Environment& environment;
  Registry& registry;
  Clock& clock;
  Processes* processes = nullptr;  // null: outside programs are only told of
};

class ScriptHost {
 public:
  // With a moment in `stoppedAt` the clock stands still there.
  ScriptHost(const Machine& machine, std::istream& script, std::ostream& transcript, std::optional<DateTime> stoppedAt);

  Platform platform();
  FrontEnd& frontEnd() { return frontEnd_; }

  // Runs the start-up sequence of a program that is put together, then the script. True when all was carried out.
  bool Run(Program& program);

  Session session;

 private:
  const Machine machine_;
  ScriptWindows windows_;
  ScriptFrontEnd frontEnd_;
};

}  // namespace morlan
