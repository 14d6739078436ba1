// The desktop as the program sees it: modal forms, questions, the common dialogs, and the main window's own signs of life.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/colour.h"
#include "platform/fontchoice.h"
#include "platform/forms/form.h"

namespace morlan {

enum class Icon { None, Stop, Question, Warning, Information };
enum class Buttons { Ok, YesNo, YesNoCancel, OkCancel, RetryCancel, AbortRetryIgnore };
enum class Answer { Ok, Cancel, Yes, No, Abort, Retry, Ignore };

struct MessageRequest {
  std::string text;
  std::string title = "Morlan7";
  Icon icon = Icon::None;
  Buttons buttons = Buttons::Ok;
};

struct FileRequest {
  enum class Mode { Open, Save };
  Mode mode = Mode::Open;
  std::string title;
  std::string filter;  // "Opis|*.a,*.b|Opis|*.c": description and patterns in turn, patterns parted by ";"
  std::string directory;
  std::string fileName;
  std::string extension;  // what the caller adds to a name without a dot, such as ".html"; the overwrite prompt reckons with it
  bool overwritePrompt = false;
};

class Windows {
 public:
  virtual ~Windows() = default;

  // Shows a form and returns when it is hidden.
  virtual void ShowModal(Form& form) = 0;
  // Shows a form beside the main window and returns at once.
  virtual void Show(Form& form) = 0;
  // Shows a form inside the main window, in the place of the documents, until it is hidden, and returns at once.
  virtual void ShowInside(Form& form) = 0;
  virtual Answer Message(const MessageRequest& request) = 0;
  virtual std::optional<std::string> Input(std::string_view prompt, std::string_view title, std::string_view text) = 0;
  // The chosen path in the program's form; nothing when cancelled.
  virtual std::optional<std::string> AskFile(const FileRequest& request) = 0;
  virtual std::optional<std::string> AskDirectory(std::string_view title, std::string_view directory) = 0;
  virtual std::optional<Colour> AskColour(Colour colour) = 0;
  virtual std::optional<FontChoice> AskFont(const FontChoice& font) = 0;
  virtual bool AskPrint() = 0;

  // Lets waiting events be handled, then returns.
  virtual void Yield() = 0;
  // The same in the middle of long work: what the user does meanwhile is dropped, but Esc is told. True when it was pressed.
  virtual bool YieldToEscape() = 0;
  virtual void ShowBusyPointer(bool busy) = 0;
  virtual std::vector<std::string> FontNames() = 0;
  virtual void SendKeys(std::string_view keys) = 0;
  virtual void Beep() = 0;
};

}  // namespace morlan
