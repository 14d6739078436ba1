// What a run of a macro remembers: its variables, open loops and open conditions.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace morlan {

struct MacroVariable {
  std::string name;  // in small letters; empty for a free record
  std::string value;
  bool numeric = false;
};

struct MacroLoop {
  std::string name;              // in small letters
  std::size_t jumpPosition = 0;  // in the macro's text, from 1: the character in front of the one where reading goes on
  std::int64_t last = 0, counter = 0;
};

struct MacroState {
  static constexpr std::size_t kVariables = 40, kLoops = 10, kConditions = 10;

  std::string MacroName;    // without directory and extension
  bool MacroFatal = false;  // a command has failed; looked at after every command
  std::array<MacroVariable, kVariables> MacroVariables;
  std::array<MacroLoop, kLoops> MacroLoops;  // a stack
  std::size_t MacroLoopCount = 0;
  std::array<bool, kConditions> MacroConditions{};  // a stack: whether each holds
  std::size_t MacroConditionCount = 0;
  std::size_t MacroCurrentVariable = 0;

  // Clears the three tables.
  void DisposeAll();
  // The record of that name, else a free one; null when there is neither.
  MacroVariable* VariableToFill(std::string_view name);
  // A variable's record, by its name in small letters; null when there is none.
  MacroVariable* FindVariable(std::string_view name);
  bool HasLoop(std::string_view name) const;
  // What "%%name" stands for: a variable's value, one pair of line ends cut at either end, or a loop's counter. Nothing when
  // neither has that name.
  std::optional<std::string> ValueOf(std::string_view name);
};

// Cuts two characters at the front when both are CR or LF, then two at the end likewise.
std::string_view TrimLineEnds(std::string_view text);

// Whether every character is CR or LF; an empty text counts.
bool HoldsLineEndsOnly(std::string_view text);

// A parameter of a command, before variables are looked up. `commandText` is the command from its "{" on, without its "}". The
// name counts wherever it stands first, in a longer name and in a value too. The value stands between the next two quotes; one
// without its closing quote runs to the end. A name with no quote behind it gives "true", one that is absent an empty text.
std::string RawMacroParam(std::string_view commandText, std::string_view paramName);

}  // namespace morlan
