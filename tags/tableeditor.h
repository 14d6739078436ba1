// The dialog of a table, the TABLE tag.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tags/tagdialog.h"

namespace morlan {

// The fields as they go into the document.
struct TableValues {
  std::string border{}, height{}, width{}, background{};
  std::optional<Colour> backColour{};
  int align = -1, valign = -1;  // rows of TableAlign and TableVAlign
  bool noflow = false, nowarp = false;
  std::string cellspacing{}, cellpadding{};
};
// The opening tag. Numbers are written when they are above zero; NOWARP is spelt like this.
std::string TableText(const TableValues& values);

struct Tabela : TagDialog {
  TextBox border{*this, "border"}, Height_{*this, "Height_"}, Width_{*this, "Width_"}, background{*this, "background"};
  Button backgroundFile{*this, "backgroundFile", "..."};
  CheckBox isbackcolor{*this, "isbackcolor", "Wypełnij &kolorem"_pl};
  ColourBox fillwithcolor{*this, "fillwithcolor", ""};
  ComboBox align{*this, "align", ComboBox::Style::ListOnly}, valign{*this, "valign", ComboBox::Style::ListOnly};
  CheckBox noflow{*this, "noflow", "Oblewanie tabeli tekst&em"}, nowarp{*this, "nowarp", "Tekst ła&many"_pl};
  TextBox cellspacing{*this, "cellspacing"}, cellpadding{*this, "cellpadding"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Tabela(Program& program);
  void Read(std::string_view tag) override;
  TableValues Values() const;
  std::string Text() const override { return TableText(Values()); }
  std::string_view Closing() const override { return "</TABLE>"; }

 private:
  void SetUpToolTips();
};

// Writes the tag under the caret anew, and puts a new pair of tags round the selection.
void EditTable(Program& program);
void InsertTable(Program& program);

}  // namespace morlan
