// Message boxes and the input box, with Polish buttons.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/windows.h"

class QWidget;

namespace morlan {

// Esc answers with the least of the buttons: Cancel, else No, else the last one.
Answer AskMessage(const MessageRequest& request, QWidget* parent);
std::optional<std::string> AskInput(std::string_view prompt, std::string_view title, std::string_view text, QWidget* parent);

}  // namespace morlan
