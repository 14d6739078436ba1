// Puts the rooms together: each fills the tables of the rooms below it.
#pragma once

namespace morlan {

class Program;

void Assemble(Program& program);

}  // namespace morlan
