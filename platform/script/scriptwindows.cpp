#include "platform/script/scriptwindows.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "platform/encoding.h"
#include "platform/script/json.h"
#include "platform/script/scriptwords.h"

namespace morlan {
namespace {

constexpr std::string_view kIconWords[] = {"none", "stop", "question", "warning", "information"};
constexpr std::string_view kAnswerWords[] = {"ok", "cancel", "yes", "no", "abort", "retry", "ignore"};

struct ButtonsRow {
  std::string_view word;
  std::array<Answer, 3> answers;
  std::size_t count;
  Answer mostCareful;
};
constexpr ButtonsRow kButtons[] = {
    {"ok", {Answer::Ok}, 1, Answer::Ok},
    {"yesno", {Answer::Yes, Answer::No}, 2, Answer::No},
    {"yesnocancel", {Answer::Yes, Answer::No, Answer::Cancel}, 3, Answer::Cancel},
    {"okcancel", {Answer::Ok, Answer::Cancel}, 2, Answer::Cancel},
    {"retrycancel", {Answer::Retry, Answer::Cancel}, 2, Answer::Cancel},
    {"abortretryignore", {Answer::Abort, Answer::Retry, Answer::Ignore}, 3, Answer::Abort},
};

// A screen has fonts; without one the program offers those that pages and editors can count on.
constexpr std::string_view kFontNames[] = {"Courier New", "DejaVu Sans", "DejaVu Sans Mono", "DejaVu Serif", "Monospace", "Sans", "Serif"};

bool IsCancel(const Words& words) { return words.size() == 2 && words[1] == "cancel"; }
bool IsPair(const Words& words, std::string_view kind) { return words.size() == 3 && words[1] == kind; }

Fault TakeFont(const Words& words, FontChoice& font) {
  const auto size = words.size() >= 4 && words[1] == "font" ? ReadFontSize(words[3]) : std::nullopt;
  if (!size) return "the answer must be \"font NAME SIZE\" or \"cancel\"";
  font = FontChoice();
  font.name = FromUtf8(words[2]);
  font.size = *size;
  struct StyleRow {
    std::string_view word;
    bool& flag;
  };
  const StyleRow styles[] = {{"bold", font.bold}, {"italic", font.italic}, {"underline", font.underline}, {"strike", font.strikeThrough}};
  for (std::size_t i = 4; i < words.size(); ++i) {
    const auto* style = std::find_if(std::begin(styles), std::end(styles), [&](const StyleRow& row) { return row.word == words[i]; });
    if (style == std::end(styles)) return "no such style of a font: " + words[i];
    style->flag = true;
  }
  return std::nullopt;
}

}  // namespace

void ScriptWindows::ShowModal(Form& form) {
  if (session_.forms.IsModal(form)) return;
  session_.timers.Adopt(form);
  session_.forms.OpenModal(form);
  session_.WaitWhileModal(form);
}

void ScriptWindows::Show(Form& form) {
  session_.timers.Adopt(form);
  session_.forms.Open(form);
}

void ScriptWindows::ShowInside(Form& form) {
  for (Control* control : form.Controls()) {
    auto* browser = dynamic_cast<WebBrowser*>(control);
    if (browser && !pages_[browser]) pages_[browser] = std::make_unique<ScriptWebPage>(session_.transcript, *browser);
  }
  Show(form);
}

Answer ScriptWindows::Message(const MessageRequest& request) {
  const ButtonsRow& buttons = kButtons[static_cast<std::size_t>(request.buttons)];
  session_.transcript.Line(
      {"message", JsonString(request.text), JsonString(request.title), kIconWords[static_cast<std::size_t>(request.icon)], buttons.word});
  if (request.buttons == Buttons::Ok) return Answer::Ok;
  Answer given = buttons.mostCareful;
  session_.WaitForAnswer([&](const Words& words) -> Fault {
    for (std::size_t i = 0; words.size() == 2 && i < buttons.count; ++i)
      if (words[1] == kAnswerWords[static_cast<std::size_t>(buttons.answers[i])]) {
        given = buttons.answers[i];
        return std::nullopt;
      }
    return "the question does not offer that answer";
  });
  return given;
}

std::optional<std::string> ScriptWindows::Input(std::string_view prompt, std::string_view title, std::string_view text) {
  session_.transcript.Line({"input", JsonString(prompt), JsonString(title), JsonString(text)});
  std::optional<std::string> given;
  session_.WaitForAnswer([&](const Words& words) -> Fault {
    if (IsCancel(words)) return std::nullopt;
    if (!IsPair(words, "text")) return "the answer must be \"text STRING\" or \"cancel\"";
    given = FromUtf8(words[2]);
    return std::nullopt;
  });
  return given;
}

std::optional<std::string> ScriptWindows::WaitForPath(std::string_view directory) {
  std::optional<std::string> given;
  session_.WaitForAnswer([&](const Words& words) -> Fault {
    if (IsCancel(words)) return std::nullopt;
    if (!IsPair(words, "file")) return "the answer must be \"file PATH\" or \"cancel\"";
    given = ReadPath(files_, words[2], directory);
    return std::nullopt;
  });
  return given;
}

std::optional<std::string> ScriptWindows::AskFile(const FileRequest& request) {
  session_.transcript.Line({"filedialog", request.mode == FileRequest::Mode::Open ? "open" : "save", JsonString(request.title),
                            JsonString(request.filter), JsonString(request.directory)});
  return WaitForPath(request.directory);
}

std::optional<std::string> ScriptWindows::AskDirectory(std::string_view title, std::string_view directory) {
  session_.transcript.Line({"directorydialog", JsonString(title), JsonString(directory)});
  return WaitForPath(directory);
}

std::optional<Colour> ScriptWindows::AskColour(Colour colour) {
  session_.transcript.Line({"colourdialog", ColourWord(colour)});
  std::optional<Colour> given;
  session_.WaitForAnswer([&](const Words& words) -> Fault {
    if (IsCancel(words)) return std::nullopt;
    if (IsPair(words, "colour")) given = ReadColour(words[2]);
    return given ? Fault() : "the answer must be \"colour RRGGBB\" or \"cancel\"";
  });
  return given;
}

std::optional<FontChoice> ScriptWindows::AskFont(const FontChoice& font) {
  session_.transcript.Line({"fontdialog", JsonString(font.name), FontSizeWord(font.size)});
  std::optional<FontChoice> given;
  session_.WaitForAnswer([&](const Words& words) -> Fault {
    if (IsCancel(words)) return std::nullopt;
    FontChoice choice;
    Fault fault = TakeFont(words, choice);
    if (!fault) given = choice;
    return fault;
  });
  return given;
}

bool ScriptWindows::AskPrint() {
  session_.transcript.Line({"printdialog"});
  bool given = false;
  session_.WaitForAnswer([&](const Words& words) -> Fault {
    given = words.size() == 2 && words[1] == "ok";
    return given || IsCancel(words) ? Fault() : "the answer must be \"ok\" or \"cancel\"";
  });
  return given;
}

std::vector<std::string> ScriptWindows::FontNames() { return {std::begin(kFontNames), std::end(kFontNames)}; }

void ScriptWindows::SendKeys(std::string_view keys) { session_.transcript.Line({"sendkeys", JsonString(keys)}); }

}  // namespace morlan
