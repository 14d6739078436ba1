// The command that checks the spelling of the active document.
#pragma once

namespace morlan {

class Program;

// Asks for the document's language where its META tag names none; without one nothing starts.
void mn_checkspeeling_Click(Program& program);

}  // namespace morlan
