// The dialog that defines a character set of the user's own, or changes one.
#pragma once

#include <array>
#include <memory>

#include "core/defs.h"
#include "platform/forms/controls.h"
#include "text/charsetfile.h"

namespace morlan {

struct CreateCharSet : Form {
  explicit CreateCharSet(Program& program);

  ComboBox CharSetName{*this, "CharSetName"};
  TextBox CharSetInfo{*this, "CharSetInfo"};
  using Letters = std::array<std::unique_ptr<Button>, kNationalLetters.size()>;
  Letters n = MakeLetters();  // "n(0)" to "n(17)", a letter and its code each
  Label Mixed{*this, "Mixed"};
  Button Command2{*this, "Command2", "Zapi&sz"}, Command1{*this, "Command1", "&Zamknij"};

 private:
  Letters MakeLetters();
  Layout LetterLayout();
  void Form_Load();
  void FillNames();
  void ShowRecord();
  void ShowCodes();
  void n_Click(std::size_t letter);
  void Command2_Click();

  Program& program_;
  CharSetCodes codes_{};
};

void ShowCreateCharSet(Program& program);

// Warns of the letters of a set that get mixed up when it is converted; empty where there are none.
std::string MixedLettersNote(const CharSetFile& file, const CharSetCodes& codes);

}  // namespace morlan
