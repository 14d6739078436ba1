#include "platform/script/scripthost.h"

#include "core/defs.h"
#include "core/morlan.h"

namespace morlan {

ScriptHost::ScriptHost(const Machine& machine, std::istream& script, std::ostream& transcript, std::optional<DateTime> stoppedAt)
    : session(script, transcript, machine.clock, stoppedAt, machine.processes),
      machine_(machine),
      windows_(session, machine.files),
      frontEnd_(session) {}

Platform ScriptHost::platform() {
  return {machine_.files, machine_.environment, machine_.registry, session.processes,
          session.clock,  session.clipboard,    session.printer,   windows_};
}

bool ScriptHost::Run(Program& program) {
  session.Attach(program);
  frontEnd_.WatchStatus(program);
  StartUp(program);
  program.frame().splashShown = true;  // nobody would see it
  ActivateFrame(program);
  return session.Run();
}

}  // namespace morlan
