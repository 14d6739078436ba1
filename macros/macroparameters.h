// The constants of a macro that a user may want to change without reading it: what its variables start with and what its
// questions offer.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace morlan {

struct MacroParameter {
  std::string name;  // the variable's name, or the question's prompt
  std::string value;
  std::size_t offset = 0, length = 0;  // of the value in the macro's text, from 0
};

// In the order of the text: each variable whose value is a plain text, and each {inputbox} with a "value".
std::vector<MacroParameter> MacroParametersOf(std::string_view macroText);

// The text with the values put in their places. They must be the text's own parameters, in order.
std::string WithMacroParameters(std::string_view macroText, const std::vector<MacroParameter>& parameters);

// Whether a text can stand in a macro: the language has no way to write a brace, nor a quote within a value.
bool CanStandInMacro(std::string_view text);

}  // namespace morlan
