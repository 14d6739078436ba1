#include "macros/register.h"

#include <memory>

#include "core/defs.h"
#include "macros/interpreter.h"
#include "macros/toolbar16.h"

namespace morlan {

void RegisterMacros(Program& program) {
  const auto interpreter = std::make_shared<MacroInterpreter>(program);
  program.runMacro = [interpreter](std::string_view name) { return interpreter->RunMacro(name); };
  RegisterToolbar16(program);
}

}  // namespace morlan
