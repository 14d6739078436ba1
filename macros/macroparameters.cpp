#include "macros/macroparameters.h"

#include <algorithm>

#include "core/text.h"
#include "macros/macrostate.h"

namespace morlan {
namespace {

std::string_view NameOfCommand(std::string_view command) {
  const std::size_t blank = std::min(command.find(' '), command.size());
  return command.substr(1, blank - 1);
}

bool IsOneOf(std::string_view name, std::string_view first, std::string_view second) {
  return EqualNoCase(name, first) || EqualNoCase(name, second);
}

// A variable's value that runs straight from its command to the closing one.
void AddVariable(std::vector<MacroParameter>& parameters, std::string_view text, std::string_view command, std::size_t from) {
  const std::size_t end = text.find('{', from);
  if (end == text.npos) return;
  const std::string_view closing = text.substr(end, std::min(text.find('}', end), text.size()) - end);
  if (!IsOneOf(NameOfCommand(closing), "/variable", "/var")) return;
  parameters.push_back({RawMacroParam(command, "name"), std::string(text.substr(from, end - from)), from, end - from});
}

void AddQuestion(std::vector<MacroParameter>& parameters, std::string_view text, std::string_view command) {
  constexpr std::string_view kValue = "value=\"";
  const std::size_t place = FindNoCase(command, kValue);
  const std::string prompt = RawMacroParam(command, "prompt");
  // A prompt that holds the word takes the value's place when the macro is run.
  if (!place || FindNoCase(command, "value") != place || prompt.empty()) return;
  const std::string value = RawMacroParam(command, "value");
  const auto offset = static_cast<std::size_t>(command.data() - text.data()) + place - 1 + kValue.size();
  if (!value.starts_with("%%")) parameters.push_back({prompt, value, offset, value.size()});
}

}  // namespace

std::vector<MacroParameter> MacroParametersOf(std::string_view macroText) {
  std::vector<MacroParameter> parameters;
  for (std::size_t open = macroText.find('{'); open != macroText.npos;) {
    const std::size_t close = std::min(macroText.find('}', open), macroText.size());
    const std::string_view command = macroText.substr(open, close - open), name = NameOfCommand(command);
    if (IsOneOf(name, "variable", "var"))
      AddVariable(parameters, macroText, command, std::min(close + 1, macroText.size()));
    else if (EqualNoCase(name, "inputbox"))
      AddQuestion(parameters, macroText, command);
    open = macroText.find('{', std::min(close + 1, macroText.size()));
  }
  return parameters;
}

std::string WithMacroParameters(std::string_view macroText, const std::vector<MacroParameter>& parameters) {
  std::string text;
  std::size_t copied = 0;
  for (const MacroParameter& parameter : parameters) {
    text += Concat({macroText.substr(copied, parameter.offset - copied), parameter.value});
    copied = parameter.offset + parameter.length;
  }
  return text += macroText.substr(copied);
}

bool CanStandInMacro(std::string_view text) { return text.find_first_of("{}\"") == text.npos; }

}  // namespace morlan
