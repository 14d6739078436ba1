// Makes the macro language and its toolbar known to the program's tables.
#pragma once

namespace morlan {

class Program;

void RegisterMacros(Program& program);

}  // namespace morlan
