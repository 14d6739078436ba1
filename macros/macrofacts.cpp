#include "macros/macrofacts.h"

#include <algorithm>
#include <array>

#include "core/defs.h"
#include "core/document.h"
#include "core/text.h"
#include "text/dateformat.h"

namespace morlan {

bool IsMacroName(std::string_view name) { return !Trim(name).empty() && name.find_first_of("\\/:*?\"<>|\r\n\t") == name.npos; }

std::string MacroPath(const Program& program, std::string_view name) { return Concat({program.ProgramPath, "MAKRO\\", name, ".mac"}); }

std::shared_ptr<TEditor> DocumentInFront(const Program& program) {
  const auto found = std::find_if(program.documents.begin(), program.documents.end(),
                                  [&](const auto& document) { return document.get() == program.ActiveDocument; });
  return found == program.documents.end() ? nullptr : *found;
}

std::string MomentText(Program& program, std::string_view pattern) { return FormatDateTime(program.platform.clock.Now(), pattern); }

std::optional<std::string> FileAsMacroText(Program& program, std::string_view fileName, std::string_view charset) {
  std::optional<std::string> bytes = program.platform.files.Read(fileName);
  if (!bytes) return std::nullopt;
  if (!EqualNoCase(charset, kMacroCharset) && program.passes.fromCharset) bytes = program.passes.fromCharset(*std::move(bytes), charset);
  return Concat({"<-- wstawiony plik : ", fileName, "-->", CrLf, "<PRE>", CrLf, *bytes, CrLf, "</PRE>", CrLf, "<-- wstawiony plik -->"});
}

MessageRequest MessageOfStyle(std::int32_t style) {
  constexpr std::array kButtons = {Buttons::Ok,          Buttons::OkCancel, Buttons::AbortRetryIgnore,
                                   Buttons::YesNoCancel, Buttons::YesNo,    Buttons::RetryCancel};
  constexpr std::array kIcons = {Icon::None, Icon::Stop, Icon::Question, Icon::Warning, Icon::Information};
  const auto number = static_cast<std::uint32_t>(style);
  const std::size_t buttons = number & 0xF, icon = number >> 4 & 0xF;
  MessageRequest request;
  if (buttons < kButtons.size()) request.buttons = kButtons[buttons];
  if (icon < kIcons.size()) request.icon = kIcons[icon];
  return request;
}

std::string_view AnswerWord(Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return "Ok";
    case Answer::Cancel:
      return "Cancel";
    case Answer::Abort:
      return "Abort";
    case Answer::Retry:
      return "Retry";
    case Answer::Ignore:
      return "Ignore";
    case Answer::No:
      return "No";
    case Answer::Yes:
      break;  // the word was bound to a number that no button has
  }
  return "";
}

bool ComparisonHolds(std::string_view first, std::string_view second, std::string_view method) {
  struct MethodRow {
    std::string_view name;
    bool less, equal, greater;
  };
  static constexpr MethodRow kMethods[] = {
      {"equ", false, true, false}, {"equal", false, true, false}, {"=", false, true, false}, {"bigger", false, false, true},
      {">", false, false, true},   {"lower", true, false, false}, {"<", true, false, false}, {"<=", true, true, false},
      {"=<", true, true, false},   {">=", false, true, true},     {"=>", false, true, true},
  };
  const auto row = std::find_if(std::begin(kMethods), std::end(kMethods), [&](const MethodRow& each) { return each.name == method; });
  if (row == std::end(kMethods)) return false;
  const int order = first.compare(second);
  return order < 0 ? row->less : order > 0 ? row->greater : row->equal;
}

}  // namespace morlan
