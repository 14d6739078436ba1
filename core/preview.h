// The preview of a page: its present text is written beside the document under a fixed name and shown by a browser, or
// inside the main window. The document itself is not saved.
#pragma once

#include <string>
#include <string_view>

#include "core/defs.h"

namespace morlan {

// In the browser that the settings name; nothing happens while no document is open.
void PreviewDocument(Program& program);
// In the browser with that path; "domyślna" in any letter case, and an empty path, are the desktop's own.
void PreviewInBrowser(Program& program, std::string_view browser);

// The page inside the main window, in the place of the documents, and back to editing.
void SelViewer_Click(Program& program);
void SelEditor_Click(Program& program);

}  // namespace morlan
