// Makes the core's own commands and forms known to the program's tables.
#pragma once

namespace morlan {

class Program;

void RegisterCore(Program& program);

}  // namespace morlan
