// Questions, dialogs and modal forms of a scripted session: told in the transcript, answered by the script.
#pragma once

#include <map>
#include <memory>

#include "platform/files.h"
#include "platform/script/scriptwebpage.h"
#include "platform/script/session.h"
#include "platform/windows.h"

namespace morlan {

class ScriptWindows : public Windows {
 public:
  // `files` turns the paths of answers into the program's form.
  ScriptWindows(Session& session, Files& files) : session_(session), files_(files) {}

  void ShowModal(Form& form) override;
  void Show(Form& form) override;
  void ShowInside(Form& form) override;
  // A box with only an OK button goes on by itself. A session that ends meanwhile counts as the most careful answer.
  Answer Message(const MessageRequest& request) override;
  std::optional<std::string> Input(std::string_view prompt, std::string_view title, std::string_view text) override;
  std::optional<std::string> AskFile(const FileRequest& request) override;
  std::optional<std::string> AskDirectory(std::string_view title, std::string_view directory) override;
  std::optional<Colour> AskColour(Colour colour) override;
  std::optional<FontChoice> AskFont(const FontChoice& font) override;
  bool AskPrint() override;

  void Yield() override { session_.timers.TickDue(); }
  bool YieldToEscape() override { return false; }
  void ShowBusyPointer(bool) override {}
  std::vector<std::string> FontNames() override;
  void SendKeys(std::string_view keys) override;
  void Beep() override {}

 private:
  std::optional<std::string> WaitForPath(std::string_view directory);

  Session& session_;
  Files& files_;
  std::map<const Control*, std::unique_ptr<ScriptWebPage>> pages_;
};

}  // namespace morlan
