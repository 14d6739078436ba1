// The file panel: the drive, the directories and the files of one directory. Paths are in the program's form.
#pragma once

#include <string>
#include <string_view>

#include "core/defs.h"

namespace morlan {

// Fills the list of file types and shows the current directory, without reading it yet.
void SetUpFilePanel(Program& program);
// Goes to a directory; one that does not exist, or the empty path, changes nothing.
void MoveFilePanel(Program& program, std::string_view directory);
// The panel's directory, without a trailing "\" unless it is the root of the drive.
std::string CurrentPanelDirectory(const Program& program);
// Reads the directory again.
void RefreshFilePanel(Program& program);
// Reads the directory if it has not been read and the panel is seen.
void ListFilePanelIfWanted(Program& program);
// The path of the file selected in Filelist; empty when there is none.
std::string SelectedPanelFile(const Program& program);

// A pattern of "*" (any characters) and "?" (one) against a whole name, without regard to case; "*.*" matches every name.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace morlan
