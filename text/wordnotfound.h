// The dialog "Brak słowa w słowniku". Its word arrives in DialogResult, the user's choice leaves in DialogChoice.
#pragma once

#include "core/defs.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class MlnDictionary;

enum class WordChoice : std::uint8_t { None, Stop, Ignore, Add, Change };

class WordNotFound : public Form {
 public:
  explicit WordNotFound(Program& program);

  Label Word{*this, "Word"};
  ComboBox Change{*this, "Change"};
  ListBox Similar{*this, "Similar"};  // words like this one; shown where there are any
  Button Command4{*this, "Command4", "&Zmień"_pl};
  Button Command3{*this, "Command3", "&Dodaj"};
  Button Command2{*this, "Command2", "&Ignoruj"};
  Button Command1{*this, "Command1", "&Przerwij"};

  // The control that found the word, whose files are looked up; null where nobody checks.
  const MlnDictionary* Dictionary = nullptr;
  // What the user wants in the place of the word; set by "Zmień".
  std::string Replacement;

 private:
  void Form_Load();
  void ShowProposals();
  void ChangeOnEnter(KeyPress& press);
  void Choose(WordChoice choice);
  Program& program_;
};

}  // namespace morlan
