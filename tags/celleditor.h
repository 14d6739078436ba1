// The dialog of a cell of a table, the TD and the TH tag.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tags/tagdialog.h"

namespace morlan {

// TD and TH.
enum class CellKind { Cell, Header };

// The fields as they go into the document.
struct CellValues {
  int align = -1, valign = -1;  // rows of CellAlign and CellVAlign
  std::string tlo{};
  std::optional<Colour> backColour{};
  bool nowarp = false;
  std::string szer{}, wys{}, rowspawn{}, colspawn{};
};
// ROWSPAWN, COLSPAWN and NOWARP are spelt like this in the document.
std::string CellText(CellKind kind, const CellValues& values);

// One dialog for both kinds of cells; its caption tells which.
struct DTH : TagDialog {
  TextBox tlo{*this, "tlo"};
  Button tloFile{*this, "tloFile", "..."};
  ComboBox szer{*this, "szer"}, wys{*this, "wys"};
  TextBox rowspawn{*this, "rowspawn"}, colspawn{*this, "colspawn"};
  CheckBox nowarp2{*this, "nowarp2", "&Nie załamuj tekstu"_pl};
  CheckBox isbackcolor2{*this, "isbackcolor2", "Wypełnij &kolorem"_pl};
  ColourBox fillwithcolor2{*this, "fillwithcolor2", ""};
  ComboBox align{*this, "align", ComboBox::Style::ListOnly}, valign{*this, "valign", ComboBox::Style::ListOnly};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit DTH(Program& program);
  void SetKind(CellKind kind);
  void Read(std::string_view tag) override;
  CellValues Values() const;
  std::string Text() const override { return CellText(kind_, Values()); }
  std::string_view Closing() const override { return kind_ == CellKind::Header ? "</TH>" : "</TD>"; }

 private:
  void SetUpToolTips();
  CellKind kind_ = CellKind::Cell;
};

// Writes the tag under the caret anew, and puts a new pair of tags round the selection.
void EditCell(Program& program);
void InsertHeaderCell(Program& program);
void InsertCell(Program& program);

}  // namespace morlan
