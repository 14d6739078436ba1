// The dialog "Szukaj & Zastąp".
#pragma once

#include "core/defs.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class SearchReplace : public Form {
 public:
  explicit SearchReplace(Program& program);

  ComboBox Szukaj{*this, "Szukaj"};
  ComboBox zastap{*this, "zastap"};
  CheckBox matchcase{*this, "matchcase", "Zgodnie z wielkością &liter"_pl};
  CheckBox wholewords{*this, "wholewords", "Tylko &całe wyrazy"_pl};
  Button Command2{*this, "Command2", "&Zastąp"_pl};
  Button Command3{*this, "Command3", "Zastąp &wszystkie"_pl};
  Button Command1{*this, "Command1", "&Anuluj"};

 private:
  enum class Extent { Asking, All };
  void Run(Extent extent);
  // Both tell at the end what they did.
  void ReplaceAsking();  // from the caret on
  void ReplaceAll();     // the whole text
  Program& program_;
};

}  // namespace morlan
