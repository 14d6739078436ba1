// The status line and the helpers that every part of the program uses.
#pragma once

#include <string_view>

#include "core/defs.h"
#include "platform/forms/controls.h"

namespace morlan {

void ShowBusy(Program& program, std::string_view message);
void ShowReady(Program& program, std::string_view message = "");
void ShowInPanel(Program& program, std::size_t number, std::string_view text);  // panels from 1
void ShowError(Program& program, std::string_view message);

bool FileExists(Program& program, std::string_view path);
void EnsureDirectory(Program& program, std::string_view path);
bool IsAnyDocumentOpen(const Program& program);
void FocusActiveDocument(Program& program);
bool TextToBool(std::string_view text);  // "true" in any case; all else is false

// List files: one entry a line, CR LF, below ProgramPath ("Listy\Tags.lst").
void LoadComboFromList(Program& program, ComboBox& box, std::string_view listFile);
bool IsInList(Program& program, std::string_view text, std::string_view listFile);
void RememberInList(Program& program, ComboBox& box, std::string_view listFile);
void RememberInList(Program& program, std::string_view text, std::string_view listFile);
void SortComboBox(Program& program, ComboBox& box);
void LoadFontNames(Program& program, ComboBox& box);

}  // namespace morlan
