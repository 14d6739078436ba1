// The dialogs that ask for a file or a directory.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/windows.h"

class QWidget;

namespace morlan {

std::optional<std::string> AskForFile(const FileRequest& request, Files& files, QWidget* parent);
std::optional<std::string> AskForDirectory(std::string_view title, std::string_view directory, Files& files, QWidget* parent);

}  // namespace morlan
