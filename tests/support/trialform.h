// A form with a control of every kind, which notes the events that reach it.
#pragma once

#include <string>
#include <vector>

#include "core/defs.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class TrialForm : public Form {
 public:
  explicit TrialForm(Program& program);

  Label opis{*this, "opis", "Opis"};
  TextBox nazwa{*this, "nazwa", "abc"};
  TextBox tresc{*this, "tresc", "", TextBox::Lines::Many};
  ComboBox wybor{*this, "wybor", ComboBox::Style::ListOnly};
  ComboBox adres{*this, "adres"};
  ListBox lista{*this, "lista"};
  ListBox wiele{*this, "wiele", ListBox::Selection::Multiple};
  CheckBox duze{*this, "duze", "&Duże litery"_pl};
  OptionButton lewa{*this, "lewa", "&Lewa", "strona", true};
  OptionButton prawa{*this, "prawa", "P&rawa", "strona"};
  SpinButton licznik{*this, "licznik", 3, 0, 9};
  Grid siatka{*this, "siatka", 2, 3};
  Tabs karty{*this, "karty"};
  ToolBar pasek{*this, "pasek"};
  Picture obraz{*this, "obraz", 100, 50};
  Button ukryty{*this, "ukryty", "Ukryty"}, nieczynny{*this, "nieczynny", "Nieczynny"};
  Button Command3{*this, "Command3", "&Zapytaj"}, Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};
  Timer zegar{*this, "zegar", 1000, false};

  std::vector<std::string> events;

 private:
  void NoteRows(RowControl& control);
};

// Registers the form as "TrialForm", which opens it as a modal one, and as "TrialTool", which shows it beside the window.
void RegisterTrialForm(Program& program);

}  // namespace morlan
