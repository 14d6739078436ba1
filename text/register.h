// Makes the text services known to the rooms below them: their passes over the text and their commands.
#pragma once

namespace morlan {

class Program;

void RegisterText(Program& program);

}  // namespace morlan
