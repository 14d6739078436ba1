// How documents go away: with the question about unsaved changes, one by one or all at once.
#pragma once

#include "core/defs.h"

namespace morlan {

// Takes a document out of the program, without bringing another forward. False when the user cancels.
bool UnloadDocument(Program& program, TEditor& document);
// Every document in the order of the tabs; false when one of them refuses, which ends the round.
bool UnloadAllDocuments(Program& program);
// The untitled document of the start, while it is empty, gives way to `newcomer`.
void CloseUnusedEmptyDocument(Program& program, const TEditor& newcomer);

}  // namespace morlan
