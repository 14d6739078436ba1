// The dialog "Wybór języka dokumentu": puts the language of the active document into its META tag.
#pragma once

#include "core/defs.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class SelectLanguage : public Form {
 public:
  explicit SelectLanguage(Program& program);

  ListBox Language{*this, "Language"};
  Button Command3{*this, "Command3", "&Ok"};
  Button Command2{*this, "Command2", "&Anuluj"};
  Button Command1{*this, "Command1", "&Nowy"};

 private:
  void Form_Load();
  void TakeLanguage();
  Program& program_;
};

}  // namespace morlan
