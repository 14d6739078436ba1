#include "tests/support/recordingplatform.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "core/document.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::array<const char*, 5> kIcons = {"none", "stop", "question", "warning", "information"};
constexpr std::array<const char*, 6> kButtons = {"ok", "yesno", "yesnocancel", "okcancel", "retrycancel", "abortretryignore"};

template <class Value>
Value Take(std::deque<Value>& queue, const std::string& question, Value otherwise) {
  if (queue.empty()) {
    ADD_FAILURE() << "no answer waits for: " << question;
    return otherwise;
  }
  Value value = std::move(queue.front());
  queue.pop_front();
  return value;
}

std::string HexOf(Colour colour) {
  char text[8];
  std::snprintf(text, sizeof text, "%02X%02X%02X", RedOf(colour), GreenOf(colour), BlueOf(colour));
  return text;
}

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : ToUtf8(text)) {
    if (c == '"' || c == '\\') quoted += '\\';
    if (c == '\r')
      quoted += "\\r";
    else if (c == '\n')
      quoted += "\\n";
    else if (c == '\t')
      quoted += "\\t";
    else
      quoted += c;
  }
  return quoted + "\"";
}

void RecordingWindows::ShowModal(Form& form) {
  record_.push_back("modal " + form.Name() + " " + Quoted(form.Caption()));
  form.BecomeVisible();
  const auto act = Take<std::function<void(Form&)>>(modals, record_.back(), [](Form&) {});
  act(form);
  form.Hide();
  record_.push_back("closed " + form.Name());
}

void RecordingWindows::Show(Form& form) {
  record_.push_back("show " + form.Name());
  form.BecomeVisible();
}

void RecordingWindows::ShowInside(Form& form) {
  record_.push_back("inside " + form.Name());
  form.BecomeVisible();
}

Answer RecordingWindows::Message(const MessageRequest& request) {
  record_.push_back("message " + Quoted(request.text) + " " + Quoted(request.title) + " " + kIcons[static_cast<std::size_t>(request.icon)] +
                    " " + kButtons[static_cast<std::size_t>(request.buttons)]);
  if (request.buttons == Buttons::Ok) return Answer::Ok;
  return Take(answers, record_.back(), Answer::Cancel);
}

std::optional<std::string> RecordingWindows::Input(std::string_view prompt, std::string_view title, std::string_view text) {
  record_.push_back("input " + Quoted(prompt) + " " + Quoted(title) + " " + Quoted(text));
  return Take<std::optional<std::string>>(inputs, record_.back(), std::nullopt);
}

std::optional<std::string> RecordingWindows::AskFile(const FileRequest& request) {
  record_.push_back(std::string("filedialog ") + (request.mode == FileRequest::Mode::Open ? "open " : "save ") + Quoted(request.title) +
                    " " + Quoted(request.filter) + " " + Quoted(request.directory));
  return Take<std::optional<std::string>>(files, record_.back(), std::nullopt);
}

std::optional<std::string> RecordingWindows::AskDirectory(std::string_view title, std::string_view directory) {
  record_.push_back("directorydialog " + Quoted(title) + " " + Quoted(directory));
  return Take<std::optional<std::string>>(directories, record_.back(), std::nullopt);
}

std::optional<Colour> RecordingWindows::AskColour(Colour colour) {
  record_.push_back("colourdialog " + HexOf(colour));
  return Take<std::optional<Colour>>(colours, record_.back(), std::nullopt);
}

std::optional<FontChoice> RecordingWindows::AskFont(const FontChoice& font) {
  record_.push_back("fontdialog " + font.name);
  return Take<std::optional<FontChoice>>(fonts, record_.back(), std::nullopt);
}

bool RecordingWindows::AskPrint() {
  record_.push_back("printdialog");
  return Take(prints, record_.back(), false);
}

void RecordingWindows::Yield() {
  if (onYield) onYield();
}

void RecordingWindows::SendKeys(std::string_view keys) { record_.push_back("sendkeys " + Quoted(keys)); }

void RecordingFrontEnd::DocumentOpened(TEditor& document) { record_.push_back("opened " + Quoted(document.Caption())); }
void RecordingFrontEnd::DocumentClosed(TEditor& document) { record_.push_back("closed " + Quoted(document.Caption())); }
void RecordingFrontEnd::DocumentActivated(TEditor& document) { record_.push_back("activated " + Quoted(document.Caption())); }
void RecordingFrontEnd::ModeSwitched(bool cdf) { record_.push_back(cdf ? "switch cdf" : "switch html"); }
void RecordingFrontEnd::PopUp(Menu& menu) {
  record_.push_back("popup");
  poppedUp = &menu;
}
void RecordingFrontEnd::ProgramEnds() { record_.push_back("ends"); }

bool RecordingProcesses::Start(std::string_view commandLine, int windowStyle) {
  record_.push_back("start " + Quoted(commandLine) + " " + std::to_string(windowStyle));
  return true;
}
bool RecordingProcesses::Open(std::string_view path) {
  record_.push_back("shell " + Quoted(path));
  return true;
}

void RecordingPrinter::Print(std::string_view item) { record_.push_back("print " + Quoted(item)); }
bool RecordingPrinter::EndDocument() {
  record_.push_back("print end");
  return true;
}

bool TestRegistry::SetString(std::string_view key, std::string_view name, std::string_view value) {
  values[{std::string(key), std::string(name)}] = value;
  return true;
}

std::optional<std::string> TestRegistry::GetString(std::string_view key, std::string_view name) {
  const auto found = values.find({std::string(key), std::string(name)});
  return found == values.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace morlan
