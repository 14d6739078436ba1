// The life of documents: how they come into being, are saved, listed and closed. Paths are in the program's form.
#pragma once

#include <string>
#include <string_view>

#include "core/defs.h"

namespace morlan {

std::string UniqueHtmlName(Program& program);
std::string UniqueCdfName(Program& program);
void NewEmptyDocument(Program& program);
// The same under a path, where its first save will write it.
void NewDocumentOfName(Program& program, std::string_view caption);
// Brings forward the window that has the path, or opens one. A missing file gets its message.
void OpenDocument(Program& program, std::string_view path);
// The dialog that asks for a file to open.
FileRequest OpenRequest(const Program& program);
// Opens a file's text under another title. False when there is no such file.
bool OpenDocumentAs(Program& program, std::string_view path, std::string_view title);
void SaveDocument(Program& program);
void SaveDocumentAs(Program& program);
void WriteDocumentTo(Program& program, std::string_view path);
void CloseActiveDocument(Program& program);
void CloseAllDocuments(Program& program);
// Unloads one document; false when the user cancels.
bool CloseDocument(Program& program, TEditor& document);
// Makes a document the active one, as a click on its window does.
void ActivateDocument(Program& program, TEditor& document);
void ActivateNextDocument(Program& program, int step);  // 1 or -1, wrapping round
void UpdateWindowsManager(Program& program);
void RememberOpened(Program& program, std::string_view path);
void RefreshLastOpened(Program& program);
std::string DocumentKindOf(Program& program, std::string_view path);  // "channel" or "html"
std::string DecodeDocumentCharSet(Program& program, std::string text, std::string_view path);
std::string EncodeDocumentCharSet(Program& program, std::string text);
TEditor* FindDocument(Program& program, std::string_view caption);  // exact; null when there is none

}  // namespace morlan
