// Printing the active document as plain lines, without any layout.
#pragma once

namespace morlan {

class Program;

void PrintDocument(Program& program);

}  // namespace morlan
