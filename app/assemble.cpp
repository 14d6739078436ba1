#include "app/assemble.h"

#include "core/defs.h"
#include "core/register.h"
#include "macros/register.h"
#include "tags/register.h"
#include "text/register.h"

namespace morlan {

void Assemble(Program& program) {
  RegisterCore(program);
  RegisterTags(program);
  RegisterText(program);
  RegisterMacros(program);
}

}  // namespace morlan
