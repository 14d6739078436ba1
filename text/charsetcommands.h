// The menu of character sets: what its entries do, and where the passes over texts are made known.
#pragma once

#include <string_view>

namespace morlan {

class Program;

// Writes the name into the Content-Type of the active document, which from then on is saved in that set.
void SetDocumentCharSet(Program& program, std::string_view name);

void RegisterCharSets(Program& program);

}  // namespace morlan
