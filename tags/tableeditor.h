// The dialog of a table, the TABLE tag.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

struct TableValues {
  std::string border{}, height{}, width{}, background{};
  std::optional<Colour> backColour{};
  int align = -1, valign = -1;  // rows of TableAlign and TableVAlign
  bool noflow = false, nowarp = false;
  std::string cellspacing{}, cellpadding{};
};
std::string TableText(const TableValues& values);

struct Tabela : Form {
  TextBox border{*this, "border"}, Height_{*this, "Height_"}, Width_{*this, "Width_"}, background{*this, "background"};
  Button backgroundFile{*this, "backgroundFile", "..."};
  CheckBox isbackcolor{*this, "isbackcolor", "Wypełnij &kolorem"_pl};
  ColourBox fillwithcolor{*this, "fillwithcolor", ""};
  ComboBox align{*this, "align", ComboBox::Style::ListOnly}, valign{*this, "valign", ComboBox::Style::ListOnly};
  CheckBox noflow{*this, "noflow", "Oblewanie tabeli tekst&em"}, nowarp{*this, "nowarp", "Tekst ła&many"_pl};
  TextBox cellspacing{*this, "cellspacing"}, cellpadding{*this, "cellpadding"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Tabela(Program& program);
  void Read(std::string_view tag);
  TableValues Values() const;
  std::string Text() const;  // the tag, with a word in the status line while it is made

 private:
  void SetUpToolTips();
  Program& program_;
};

void EditTable(Program& program);
void InsertTable(Program& program);

}  // namespace morlan
