// The sixteen colour options that the dialogs of lines and fonts share.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/forms/controls.h"

namespace morlan {

class Program;

// The dialog of a line does not see its white option: neither a read nor a written colour is ever white there.
enum class WhiteOption { Works, IsNotSeen };

class ColourOptions {
 public:
  // Makes "kolory(0)" to "kolory(15)" on the form. The sample follows the choice.
  ColourOptions(Program& program, Form& form, ColourBox& sample, WhiteOption white);

  // Selects the option of a value that was read, in any letter case and without its "#"; an empty one selects the first. A
  // value without an option becomes the user's colour and loses its first character on the way: every time that such a
  // tag is edited, its colour is one digit shorter.
  void SelectValue(std::string_view value);
  // The word for the document, in upper case; nothing when there is no colour to write.
  std::optional<std::string> Word() const;
  // Shows the selected option's colour in the sample: the user's as the value of its digits, with no swap of red and blue.
  void ShowSelected();

  Layout Page() const;

 private:
  Colour UserColour() const;
  void ShowSample(std::optional<Colour> colour);
  void Select(std::size_t index);
  std::size_t Selected() const;
  void AskUserColour();

  Program& program_;
  ColourBox& sample_;
  WhiteOption white_;
  std::array<std::unique_ptr<OptionButton>, 16> options_;
};

}  // namespace morlan
