// Services that keep a record of what they were asked for. Records are UTF-8 lines; texts in them stand as JSON-like
// strings with CR, LF, TAB and quotes escaped.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/frontend.h"
#include "platform/platform.h"

namespace morlan {

using Record = std::vector<std::string>;

// A text of the program as it stands in a record: UTF-8, quoted.
std::string Quoted(std::string_view text);

// Questions are answered from the queues, in order; a question that finds its queue empty fails the test and is
// cancelled. A message with an OK button alone needs no answer.
class RecordingWindows : public Windows {
 public:
  explicit RecordingWindows(Record& record) : record_(record) {}

  std::deque<Answer> answers;
  std::deque<std::optional<std::string>> inputs, files, directories;  // Windows-1250; paths in the program's form
  std::deque<std::optional<Colour>> colours;
  std::deque<std::optional<FontChoice>> fonts;
  std::deque<bool> prints;
  // What the user does in each modal form; the form is hidden behind it if it has not been already.
  std::deque<std::function<void(Form&)>> modals;
  // Runs inside Yield.
  std::function<void()> onYield;
  // Whether Esc has been pressed, asked in the middle of long work; empty for never.
  std::function<bool()> onYieldToEscape;
  bool busyPointer = false;

  void ShowModal(Form& form) override;
  void Show(Form& form) override;
  void ShowInside(Form& form) override;
  Answer Message(const MessageRequest& request) override;
  std::optional<std::string> Input(std::string_view prompt, std::string_view title, std::string_view text) override;
  std::optional<std::string> AskFile(const FileRequest& request) override;
  std::optional<std::string> AskDirectory(std::string_view title, std::string_view directory) override;
  std::optional<Colour> AskColour(Colour colour) override;
  std::optional<FontChoice> AskFont(const FontChoice& font) override;
  bool AskPrint() override;
  void Yield() override;
  bool YieldToEscape() override { return onYieldToEscape && onYieldToEscape(); }
  void ShowBusyPointer(bool busy) override { busyPointer = busy; }
  std::vector<std::string> FontNames() override { return {"Courier", "Sans"}; }
  void SendKeys(std::string_view keys) override;
  void Beep() override {}

 private:
  Record& record_;
};

class RecordingFrontEnd : public FrontEnd {
 public:
  explicit RecordingFrontEnd(Record& record) : record_(record) {}
  void DocumentOpened(TEditor& document) override;
  void DocumentClosed(TEditor& document) override;
  void DocumentActivated(TEditor& document) override;
  void ModeSwitched(bool cdf) override;
  void PopUp(Menu& menu) override;
  void ProgramEnds() override;

  Menu* poppedUp = nullptr;  // the menu of the last PopUp

 private:
  Record& record_;
};

class RecordingProcesses : public Processes {
 public:
  explicit RecordingProcesses(Record& record) : record_(record) {}
  bool Start(std::string_view commandLine, int windowStyle) override;
  bool Open(std::string_view path) override;

 private:
  Record& record_;
};

class RecordingPrinter : public LinePrinter {
 public:
  explicit RecordingPrinter(Record& record) : record_(record) {}
  void Print(std::string_view item) override;
  bool EndDocument() override;

 private:
  Record& record_;
};

class TestClipboard : public Clipboard {
 public:
  std::optional<std::string> text;
  std::optional<std::string> Text() override { return text; }
  void SetText(std::string_view value) override { text = value; }
};

class StoppedClock : public Clock {
 public:
  DateTime now{1998, 3, 7, 12, 30, 5, 6};
  std::uint64_t milliseconds = 0;
  DateTime Now() override { return now; }
  std::uint64_t Milliseconds() override { return milliseconds; }
};

class TestRegistry : public Registry {
 public:
  std::map<std::pair<std::string, std::string>, std::string> values;  // by key and name
  bool SetString(std::string_view key, std::string_view name, std::string_view value) override;
  std::optional<std::string> GetString(std::string_view key, std::string_view name) override;
};

class TestEnvironment : public Environment {
 public:
  std::string windows, userData, temp, commandLine;  // in the program's form
  std::string Variable(std::string_view name) override { return name == "temp" ? temp : std::string(); }
  std::string WindowsDirectory() override { return windows; }
  std::string SystemDirectory() override { return windows; }
  std::string UserDataDirectory() override { return userData; }
  std::string ExecutableDirectory() override { return "c:\\usr\\bin"; }
  std::string CommandLine() override { return commandLine; }
};

}  // namespace morlan
