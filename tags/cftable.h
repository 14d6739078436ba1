// The dialog of a table of a query's results, the CFTABLE tag.
#pragma once

#include "tags/serverdialog.h"

namespace morlan {

// The fields as they go into the document.
struct CfTableValues {
  std::string query{}, spacing{}, headerLines{}, maxRows{};
  bool columnHeaders = false, htmlTable = false;
};
// The attributes alone, each with a blank in front.
std::string CfTableText(const CfTableValues& values);

struct CFTable : ServerDialog {
  ComboBox Query{*this, "Query"};
  TextBox spacing{*this, "spacing"}, headerlines{*this, "headerlines"}, maxrows{*this, "maxrows"};
  CheckBox colheaders_{*this, "colheaders_", "&Column headers"}, htmltable_{*this, "htmltable_", "HTML &Table"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit CFTable(Program& program);
  void Read(std::string_view tag);
  CfTableValues Values() const;
  std::string Result() const override { return CfTableText(Values()); }
};

}  // namespace morlan
