#include "macros/macrostate.h"

#include <algorithm>

#include "core/text.h"

namespace morlan {
namespace {

bool IsLineEnd(char character) { return character == '\r' || character == '\n'; }

}  // namespace

void MacroState::DisposeAll() {
  MacroVariables = {};
  MacroLoops = {};
  MacroLoopCount = 0;
  MacroConditions = {};
  MacroConditionCount = 0;
}

MacroVariable* MacroState::FindVariable(std::string_view name) {
  const auto found = std::find_if(MacroVariables.begin(), MacroVariables.end(), [&](const auto& record) { return record.name == name; });
  return found == MacroVariables.end() ? nullptr : &*found;
}

MacroVariable* MacroState::VariableToFill(std::string_view name) {
  MacroVariable* found = FindVariable(name);
  return found ? found : FindVariable("");
}

bool MacroState::HasLoop(std::string_view name) const {
  return std::any_of(MacroLoops.begin(), MacroLoops.begin() + static_cast<std::ptrdiff_t>(MacroLoopCount),
                     [&](const MacroLoop& loop) { return loop.name == name; });
}

std::optional<std::string> MacroState::ValueOf(std::string_view name) {
  if (const MacroVariable* variable = FindVariable(name)) return std::string(TrimLineEnds(variable->value));
  for (std::size_t i = 0; i < MacroLoopCount; ++i)
    if (MacroLoops[i].name == name) return NumberText(MacroLoops[i].counter);
  return std::nullopt;
}

std::string_view TrimLineEnds(std::string_view text) {
  const auto areLineEnds = [](std::string_view two) { return two.size() == 2 && IsLineEnd(two[0]) && IsLineEnd(two[1]); };
  if (areLineEnds(text.substr(0, 2))) text.remove_prefix(2);
  if (text.size() >= 2 && areLineEnds(text.substr(text.size() - 2))) text.remove_suffix(2);
  return text;
}

bool HoldsLineEndsOnly(std::string_view text) { return std::all_of(text.begin(), text.end(), IsLineEnd); }

std::string RawMacroParam(std::string_view commandText, std::string_view paramName) {
  constexpr char kMark = '"';  // a "}" would be a mark too, but ends the command
  const std::size_t place = FindNoCase(commandText, paramName);
  if (!place) return "";
  const std::size_t left = commandText.find(kMark, place - 1 + paramName.size());
  if (left == commandText.npos) return "true";
  const std::size_t right = std::min(commandText.find(kMark, left + 1), commandText.size());
  return std::string(commandText.substr(left + 1, right - left - 1));
}

}  // namespace morlan
