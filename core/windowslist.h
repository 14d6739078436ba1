// The tab strip of open documents. A tab's key and tag are the document's Caption, its text is the bare file name.
#pragma once

#include "core/defs.h"
#include "platform/forms/controls.h"

namespace morlan {

inline constexpr int kNoMark = 0, kModifiedMark = 1;

Tabs::Tab TabOf(const TEditor& document);
// Adds the document's tab unless it is there, and selects it.
void AddTab(Program& program, const TEditor& document);
void SelectTab(Program& program, const TEditor& document);
void MarkTab(Program& program, const TEditor& document, int image);

}  // namespace morlan
