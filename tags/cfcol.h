// The dialog of a column in a table of a query's results, the CFCOL tag.
#pragma once

#include "tags/serverdialog.h"

namespace morlan {

// The fields as they go into the document.
struct CfColValues {
  std::string header{}, text{}, align{}, width{};
};
// The attributes alone, each with a blank in front.
std::string CfColText(const CfColValues& values);

struct CFCOL : ServerDialog {
  TextBox header{*this, "header"}, text_{*this, "text_"};
  ComboBox align{*this, "align"};
  TextBox width_{*this, "width_"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit CFCOL(Program& program);
  void Read(std::string_view tag);
  CfColValues Values() const;
  std::string Result() const override { return CfColText(Values()); }
};

}  // namespace morlan
