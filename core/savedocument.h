// Writing documents to files.
#pragma once

#include <string_view>

#include "core/defs.h"

namespace morlan {

enum class SaveOutcome {
  Nothing,  // there is no document, or it is not modified
  Saved,
  Cancelled,  // no name was chosen
  Failed,     // the file is as it was, and the control stays modified
};

// Saves the active document; an untitled one asks for its name.
SaveOutcome SaveActiveDocument(Program& program);
SaveOutcome SaveActiveDocumentAs(Program& program);

// The filter of the "Save as" dialog for a file type; the type's own files go first.
std::string SaveFilter(std::string_view fileType);

}  // namespace morlan
