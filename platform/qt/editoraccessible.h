// The text view for assistive technology: its text, caret and selection.
#pragma once

namespace morlan {

// Makes text views known to the desktop's accessibility framework; later calls change nothing.
void RegisterEditorAccessibility();

}  // namespace morlan
