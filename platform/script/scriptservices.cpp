#include "platform/script/scriptservices.h"

#include "platform/encoding.h"
#include "platform/script/json.h"

namespace morlan {

bool ScriptProcesses::Start(std::string_view commandLine, int windowStyle) {
  transcript_.Line({"start", JsonString(commandLine), std::to_string(windowStyle)});
  return !real_ || real_->Start(commandLine, windowStyle);
}

bool ScriptProcesses::Open(std::string_view path) {
  transcript_.Line({"shell", JsonString(path)});
  return !real_ || real_->Open(path);
}

std::optional<std::string> ScriptClipboard::Text() {
  return utf8_ ? std::optional(FromUtf8(*utf8_, Unmappable::NumericReference)) : std::nullopt;
}

// The program takes a text and gives it back to leave only its plain form: that must not lose letters.
void ScriptClipboard::SetText(std::string_view text) {
  if (Text() != text) utf8_ = ToUtf8(text);
}

void ScriptPrinter::Print(std::string_view item) { transcript_.Line({"print", JsonString(item)}); }

}  // namespace morlan
