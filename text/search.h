// The dialog "Szukaj" and the repeated search.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "core/defs.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class SearchForm : public Form {
 public:
  explicit SearchForm(Program& program);

  ComboBox Szukaj{*this, "Szukaj"};  // its rows are the texts sought in this run
  CheckBox matchcase{*this, "matchcase", "Zgodnie z wielkością &liter"_pl};
  CheckBox wholewords{*this, "wholewords", "Tylko &całe wyrazy"_pl};
  Button Command2{*this, "Command2", "&Szukaj"};
  Button Command1{*this, "Command1", "&Anuluj"};

  // The last search, for the repeated one.
  std::string SearchText;
  std::uint8_t SearchOptions = 0;
  std::optional<std::ptrdiff_t> SearchPosition;  // offset of the last hit; none when the last text was not found

 private:
  void Search();
  Program& program_;
};

std::uint8_t ChosenOptions(const CheckBox& wholewords, const CheckBox& matchcase);
// A combo box keeps the texts that were used, each once without regard to case.
void RememberText(ComboBox& box);

// Selects the next hit behind the last one; before any search it does nothing, and nothing is said when there is none.
void FindNext(Program& program);

}  // namespace morlan
